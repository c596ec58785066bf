#include "bag/property_bag_text.h"

#include "bag/property_bag_text_form.h"
#include "base/text.h"

#include <charconv>

namespace zkp {

using namespace bag_text;

namespace {

/// Half a pair can't stand in UTF-8, and the others don't show or end a line in some editors.
bool needsNumber(QStringView text, qsizetype i) {
    const QChar c = text[i];
    if (c.isHighSurrogate())
        return i + 1 == text.size() || !text[i + 1].isLowSurrogate();
    if (c.isLowSurrogate())
        return i == 0 || !text[i - 1].isHighSurrogate();
    return c < u' ' || (c >= u'\u007F' && c <= u'\u009F') || c == u'\u2028' || c == u'\u2029' ||
           c == u'\uFEFF' || c >= u'\uFFFE';
}

QString quoted(QStringView text) {
    QString result(u'"');
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        const auto* escape =
            std::find_if(kEscapes.begin(), kEscapes.end(), [&](const Escape& e) { return e.character == c; });
        if (escape != kEscapes.end())
            result += QStringLiteral("\\") + escape->letter;
        else if (needsNumber(text, i))
            result += QStringLiteral("\\u%1").arg(int(c.unicode()), 4, 16, QLatin1Char('0'));
        else
            result += c;
    }
    return result + u'"';
}

/// The shortest digits that read back as the same number.
template <class Number>
QString digits(Number number) {
    std::array<char, 32> room{};
    const auto end = std::to_chars(room.data(), room.data() + room.size(), number).ptr;
    return QString::fromLatin1(room.data(), end - room.data());
}

QString valueText(bool value) {
    return value ? kTrue : kFalse;
}

QString valueText(const QString& value) {
    return quoted(value);
}

QString valueText(Color value) {
    return QStringLiteral("0x") + QStringLiteral("%1").arg(value, 8, 16, QLatin1Char('0')).toUpper();
}

QString valueText(const BagFont& font) {
    QString result = quoted(font.name) + u' ' + digits(font.size);
    for (const Style& style : kStyles) {
        if (font.*style.member)
            result += u' ' + style.name;
    }
    return result;
}

template <class Number>
QString valueText(Number value) {
    return digits(value);
}

/// Where the digits that start at `i` end; leading zeros are passed over by moving `i`.
qsizetype numberEnd(QStringView text, qsizetype& i) {
    qsizetype end = i;
    while (end < text.size() && isDigit(text[end]))
        ++end;
    while (i + 1 < end && text[i] == u'0')
        ++i;
    return end;
}

/// Less than 0, 0 or more as `a` sorts before, with or behind `b`: "COL2" before "COL10".
qsizetype compareKeys(QStringView a, QStringView b) {
    qsizetype i = 0;
    qsizetype j = 0;
    while (i < a.size() && j < b.size()) {
        if (!isDigit(a[i]) || !isDigit(b[j])) {
            if (a[i] != b[j])
                return a[i].unicode() - b[j].unicode();
            ++i;
            ++j;
            continue;
        }
        const qsizetype endA = numberEnd(a, i);
        const qsizetype endB = numberEnd(b, j);
        if (endA - i != endB - j)
            return (endA - i) - (endB - j);
        if (const int order = a.sliced(i, endA - i).compare(b.sliced(j, endB - j)))
            return order;
        i = endA;
        j = endB;
    }
    return (a.size() - i) - (b.size() - j);
}

struct SortedEntry {
    QString capitals;
    const PropertyBag::Entry* entry;
};

std::vector<SortedEntry> sorted(const PropertyBag& bag) {
    std::vector<SortedEntry> entries;
    for (const PropertyBag::Entry& entry : bag.entries())
        entries.push_back({upper(entry.key), &entry});
    std::sort(entries.begin(), entries.end(), [](const SortedEntry& a, const SortedEntry& b) {
        const qsizetype order = compareKeys(a.capitals, b.capitals);
        return order != 0 ? order < 0 : a.capitals < b.capitals; // "A1" and "A01"
    });
    return entries;
}

} // namespace

QByteArray bagText(const PropertyBag& bag) {
    QString text = kFirstLine + u'\n';
    for (const SortedEntry& each : sorted(bag)) {
        const PropertyBag::Entry& entry = *each.entry;
        text += isBare(entry.key) ? entry.key : quoted(entry.key);
        text += u' ' + kTypeNames[entry.value.index()] + u' ';
        text += std::visit([](const auto& held) { return valueText(held); }, entry.value);
        text += u'\n';
    }
    text += kLastLine + u'\n';
    return text.toUtf8();
}

} // namespace zkp
