#include "base/date_text.h"

#include "base/text.h"

#include <QStringList>
#include <QTime>

#include <vector>

namespace zkp {

namespace {

constexpr int kFirstFullYear = 100;
constexpr int kFirstYearOfLastCentury = 30;

/// A number of a date, or the month that a name stands for.
struct Part {
    int number = 0;
    bool isLong = false; ///< more than two digits: can only be a year
    bool isMonthName = false;
};

int fullYear(const Part& part) {
    if (part.isLong)
        return part.number;
    return part.number + (part.number < kFirstYearOfLastCentury ? 2000 : 1900);
}

std::optional<QDate> valid(int year, int month, int day) {
    const QDate date(year, month, day);
    if (year < kFirstFullYear || !date.isValid())
        return std::nullopt;
    return date;
}

std::optional<QDate> inEitherOrder(int year, int month, int day) {
    const auto date = valid(year, month, day);
    return date ? date : valid(year, day, month);
}

std::optional<Part> monthByName(const QString& name, const QLocale& locale) {
    for (int month = 1; month <= 12; ++month) {
        for (const auto length : {QLocale::LongFormat, QLocale::ShortFormat}) {
            if (sameName(name, locale.monthName(month, length)) ||
                sameName(name, locale.standaloneMonthName(month, length)))
                return Part{month, false, true};
        }
    }
    return std::nullopt;
}

std::optional<Part> readPart(const QString& text, const QLocale& locale) {
    bool isNumber = text.size() <= 4 && !text.isEmpty();
    for (const QChar c : text)
        isNumber = isNumber && c >= u'0' && c <= u'9';
    if (isNumber)
        return Part{text.toInt(), text.size() > 2, false};
    return monthByName(text, locale);
}

QTime readTime(const QString& text) {
    const QTime time = QTime::fromString(text, QStringLiteral("H:m"));
    return time.isValid() ? time : QTime::fromString(text, QStringLiteral("H:m:s"));
}

/// The words of a text that are not its time, cut at the date's signs; nothing when there is a part
/// that cannot stand in a date. `time` stays invalid without a time.
std::optional<std::vector<Part>> readParts(QStringView text, const QLocale& locale, QTime& time) {
    std::vector<Part> parts;
    for (const QString& word : text.toString().split(u' ', Qt::SkipEmptyParts)) {
        if (word.contains(u':')) {
            if (time.isValid())
                return std::nullopt;
            time = readTime(word);
            if (!time.isValid())
                return std::nullopt;
            continue;
        }
        QString plain = word;
        plain.replace(u'-', u'/').replace(u'.', u'/');
        for (const QString& piece : plain.split(u'/')) {
            const auto part = readPart(piece, locale);
            if (!part)
                return std::nullopt;
            parts.push_back(*part);
        }
    }
    return parts;
}

std::optional<QDate> withMonthName(std::vector<Part> parts) {
    int month = 0;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        if (parts[i].isMonthName) {
            month = parts[i].number;
            parts.erase(parts.begin() + static_cast<std::ptrdiff_t>(i));
            break;
        }
    }
    if (parts.empty() || parts.front().isMonthName || parts.back().isMonthName)
        return std::nullopt;
    if (parts.size() == 1) {
        if (const auto date = valid(QDate::currentDate().year(), month, parts[0].number))
            return date;
        return valid(fullYear(parts[0]), month, 1);
    }
    const auto date = parts[0].isLong ? std::nullopt : valid(fullYear(parts[1]), month, parts[0].number);
    return date || parts[1].isLong ? date : valid(fullYear(parts[0]), month, parts[1].number);
}

std::optional<QDate> ofTwo(const Part& first, const Part& second, bool monthFirst) {
    if (first.isLong)
        return valid(first.number, second.number, 1);
    if (second.isLong)
        return valid(second.number, first.number, 1);
    const int year = QDate::currentDate().year();
    return monthFirst ? inEitherOrder(year, first.number, second.number)
                      : inEitherOrder(year, second.number, first.number);
}

std::optional<QDate> ofThree(const std::vector<Part>& parts, const QString& format) {
    const int first = parts[0].number;
    const int second = parts[1].number;
    const bool yearFirst = format.startsWith(u'y');
    if (parts[0].isLong || (yearFirst && !parts[2].isLong))
        return inEitherOrder(fullYear(parts[0]), second, parts[2].number);
    const bool monthFirst = format.indexOf(u'M') < format.indexOf(u'd');
    return monthFirst && !yearFirst ? inEitherOrder(fullYear(parts[2]), first, second)
                                    : inEitherOrder(fullYear(parts[2]), second, first);
}

/// The day of a text without its time; day 0 for a time alone.
std::optional<QDate> dayOf(const std::vector<Part>& parts, const QTime& time, const QLocale& locale) {
    for (const Part& part : parts) {
        if (part.isMonthName)
            return withMonthName(parts);
    }
    const QString format = locale.dateFormat(QLocale::ShortFormat);
    switch (parts.size()) {
    case 0:
        return time.isValid() ? std::optional(QDate(1899, 12, 30)) : std::nullopt;
    case 2:
        return ofTwo(parts[0], parts[1], format.indexOf(u'M') < format.indexOf(u'd'));
    case 3:
        return ofThree(parts, format);
    default:
        return std::nullopt;
    }
}

} // namespace

std::optional<QDateTime> toMoment(QStringView text, const ReportLocale& locale) {
    QTime time;
    const auto parts = readParts(trimmed(text), locale.locale(), time);
    if (!parts || parts->size() > 3)
        return std::nullopt;
    const auto day = dayOf(*parts, time, locale.locale());
    if (!day)
        return std::nullopt;
    return QDateTime(*day, time.isValid() ? time : QTime(0, 0), Qt::UTC);
}

std::optional<QDate> toDate(QStringView text, const ReportLocale& locale) {
    const auto moment = toMoment(text, locale);
    return moment ? std::optional(moment->date()) : std::nullopt;
}

QString shortDate(QDate date, const ReportLocale& locale) {
    // In universal time every day has a midnight, so that no time shows.
    return locale.dateText(QDateTime(date, QTime(0, 0), Qt::UTC));
}

} // namespace zkp
