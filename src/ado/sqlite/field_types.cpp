#include "ado/sqlite/field_types.h"

#include "ado/constants.h"
#include "ado/field_size.h"

#include <QHash>
#include <QLatin1String>

namespace zkp::ado::sqlite {

namespace {

const QHash<QByteArray, Declared>& knownWords() {
    static const QHash<QByteArray, Declared> words = [] {
        QHash<QByteArray, Declared> t;
        const auto add = [&t](std::initializer_list<const char*> names, int type,
                              Storage storage = Storage::AsGiven) {
            for (const char* name : names)
                t.insert(name, Declared{type, 0, storage});
        };
        add({"MONEY", "SMALLMONEY", "CURRENCY", "DECIMAL", "NUMERIC"}, adCurrency, Storage::Amount);
        add({"DATE"}, adDBDate, Storage::Date);
        add({"DATETIME", "DATETIME2", "SMALLDATETIME", "TIMESTAMP"}, adDBTimeStamp, Storage::Date);
        add({"BIT", "BOOLEAN", "BOOL", "LOGICAL", "YESNO"}, adBoolean, Storage::Boolean);
        add({"SMALLINT", "TINYINT", "INT2"}, adSmallInt);
        add({"INTEGER", "INT", "INT4", "MEDIUMINT", "LONG", "COUNTER"}, adInteger);
        add({"BIGINT", "INT8"}, adBigInt);
        add({"REAL", "DOUBLE", "FLOAT", "SINGLE"}, adDouble);
        add({"VARCHAR", "CHAR", "CHARACTER"}, adVarChar);
        add({"NVARCHAR", "NCHAR", "TEXT", "NTEXT", "CLOB", "MEMO"}, adVarWChar);
        add({"BLOB", "IMAGE", "BINARY", "VARBINARY", "LONGBINARY"}, adLongVarBinary);
        return t;
    }();
    return words;
}

/// Days since 1970-01-01 in the Gregorian calendar.
std::int64_t daysFromDate(int year, int month, int day) {
    year -= month <= 2;
    const int era = year / 400;
    const int yearOfEra = year - era * 400;
    const int dayOfYear = (153 * (month + (month > 2 ? -3 : 9)) + 2) / 5 + day - 1;
    const int dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return std::int64_t(era) * 146'097 + dayOfEra - 719'468;
}

/// Reads digits of a fixed width off the front of a text.
bool takeDigits(std::string_view& text, std::size_t width, int& value) {
    if (text.size() < width)
        return false;
    value = 0;
    for (std::size_t i = 0; i < width; ++i) {
        if (text[i] < '0' || text[i] > '9')
            return false;
        value = value * 10 + (text[i] - '0');
    }
    text.remove_prefix(width);
    return true;
}

bool takeSign(std::string_view& text, char sign) {
    if (text.empty() || text.front() != sign)
        return false;
    text.remove_prefix(1);
    return true;
}

int daysInMonth(int year, int month) {
    constexpr int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool leap = (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
    return month == 2 && leap ? 29 : days[month - 1];
}

/// H:mm, seconds and fractions as far as they are there; milliseconds of the day.
std::optional<std::int64_t> parseTime(std::string_view text) {
    int hour = 0;
    int minute = 0;
    int second = 0;
    if (!takeDigits(text, 2, hour) || !takeSign(text, ':') || !takeDigits(text, 2, minute))
        return std::nullopt;
    if (takeSign(text, ':') && !takeDigits(text, 2, second))
        return std::nullopt;
    int thousandths = 0;
    if (takeSign(text, '.')) {
        int scale = 100;
        for (; !text.empty() && text.front() >= '0' && text.front() <= '9'; text.remove_prefix(1)) {
            thousandths += (text.front() - '0') * scale;
            scale /= 10;
        }
    }
    if (!text.empty() || hour > 23 || minute > 59 || second > 59)
        return std::nullopt;
    return ((hour * 60ll + minute) * 60 + second) * 1000 + thousandths;
}

int typeOfValues(const store::ColumnBuilder& values) {
    using store::ValueKind;
    if (values.has(ValueKind::Text))
        return adVarWChar;
    if (values.has(ValueKind::Binary))
        return adLongVarBinary;
    if (values.has(ValueKind::Double))
        return adDouble;
    if (values.has(ValueKind::Integer))
        return values.hasLongInteger() ? adBigInt : adInteger;
    return adVarWChar;
}

} // namespace

Declared declaredType(const char* words) {
    if (!words)
        return {};
    const QByteArray text = QByteArray(words).toUpper().trimmed();
    const auto bracket = text.indexOf('(');
    const QByteArray name = text.left(bracket < 0 ? text.size() : bracket).trimmed();
    const auto known =
        knownWords().constFind(name.left(name.indexOf(' ') < 0 ? name.size() : name.indexOf(' ')));
    if (known == knownWords().cend())
        return {};
    Declared declared = *known;
    if (bracket >= 0)
        declared.size = text.mid(bracket + 1, text.indexOf(')', bracket) - bracket - 1).trimmed().toInt();
    return declared;
}

int definedSize(const Declared& declared, int type) {
    return definedSizeOf(type, declared.size);
}

FieldInfo fieldInfo(const QString& name, const Declared& declared, const store::ColumnBuilder& values) {
    int type = declared.type != 0 ? declared.type : typeOfValues(values);
    if (type == adInteger && values.hasLongInteger())
        type = adBigInt;
    return {name, type, definedSize(declared, type)};
}

std::optional<std::int64_t> parseIsoMoment(std::string_view text) {
    int year = 0;
    int month = 0;
    int day = 0;
    if (!takeDigits(text, 4, year) || !takeSign(text, '-') || !takeDigits(text, 2, month) ||
        !takeSign(text, '-') || !takeDigits(text, 2, day))
        return std::nullopt;
    if (month < 1 || month > 12 || day < 1 || day > daysInMonth(year, month))
        return std::nullopt;
    const std::int64_t midnight = daysFromDate(year, month, day) * 86'400'000;
    if (text.empty())
        return midnight;
    if (!takeSign(text, ' ') && !takeSign(text, 'T'))
        return std::nullopt;
    const auto time = parseTime(text);
    return time ? std::optional(midnight + *time) : std::nullopt;
}

} // namespace zkp::ado::sqlite
