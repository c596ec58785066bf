#include "base/number.h"

#include "base/currency.h"
#include "base/error.h"
#include "base/text.h"

#include <cmath>
#include <limits>
#include <string>

namespace zkp {

namespace {

bool isDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

double parse(const std::string& plain) {
    return plain.empty() ? 0.0 : std::strtod(plain.c_str(), nullptr);
}

/// Takes "e" or "E" with a sign and at least one digit, and moves `at` behind it.
void takeExponent(QStringView text, qsizetype& at, std::string& plain) {
    qsizetype i = at;
    if (i >= text.size() || (text[i] != u'e' && text[i] != u'E'))
        return;
    std::string exponent = "e";
    ++i;
    if (i < text.size() && (text[i] == u'+' || text[i] == u'-'))
        exponent += text[i++].toLatin1();
    const qsizetype digits = i;
    while (i < text.size() && isDigit(text[i]))
        exponent += text[i++].toLatin1();
    if (i == digits)
        return;
    plain += exponent;
    at = i;
}

double asDouble(const QVariant& value) {
    if (value.metaType() == QMetaType::fromType<Currency>())
        return value.value<Currency>().toDouble();
    bool ok = false;
    const double number =
        value.typeId() == QMetaType::Bool ? (value.toBool() ? -1.0 : 0.0) : value.toDouble(&ok);
    if (!ok && value.typeId() != QMetaType::Bool)
        throw Error(kErrTypeMismatch, QStringLiteral("Type mismatch"));
    return number;
}

template <class Int>
Int toWhole(double value) {
    const double rounded = std::nearbyint(value);
    if (!(rounded >= std::numeric_limits<Int>::min() && rounded <= std::numeric_limits<Int>::max()))
        throw Error(kErrOverflow, QStringLiteral("Overflow"));
    return static_cast<Int>(rounded);
}

} // namespace

double val(QStringView text) {
    qsizetype i = 0;
    while (i < text.size() && text[i] == u' ')
        ++i;
    std::string plain;
    if (i < text.size() && (text[i] == u'-' || text[i] == u'+'))
        plain += text[i++].toLatin1();
    bool point = false;
    bool digits = false;
    for (; i < text.size(); ++i) {
        if (isDigit(text[i]))
            digits = true;
        else if (text[i] == u'.' && !point)
            point = true;
        else
            break;
        plain += text[i].toLatin1();
    }
    if (!digits)
        return 0.0;
    takeExponent(text, i, plain);
    return parse(plain);
}

std::optional<double> toNumber(QStringView text, const ReportLocale& locale) {
    text = trimmed(text);
    std::string plain;
    qsizetype i = 0;
    if (i < text.size() && (text[i] == u'-' || text[i] == u'+'))
        plain += text[i++].toLatin1();

    const QStringView decimal = locale.decimalSign();
    const QStringView group = locale.groupSign();
    bool point = false;
    bool digits = false;
    while (i < text.size()) {
        const QStringView rest = text.sliced(i);
        if (isDigit(text[i])) {
            plain += text[i++].toLatin1();
            digits = true;
        } else if (!point && rest.startsWith(decimal)) {
            plain += '.';
            point = true;
            i += decimal.size();
        } else if (!point && digits && !group.isEmpty() && rest.startsWith(group)) {
            i += group.size();
        } else {
            break;
        }
    }
    if (!digits)
        return std::nullopt;
    takeExponent(text, i, plain);
    if (i != text.size())
        return std::nullopt;
    return parse(plain);
}

double roundHalfEven(double value, int decimals) {
    if (decimals == 0)
        return std::nearbyint(value);
    const double scale = std::pow(10.0, decimals);
    return std::nearbyint(value * scale) / scale;
}

std::int16_t toInt16(const QVariant& value) {
    return toWhole<std::int16_t>(asDouble(value));
}
std::int32_t toInt32(const QVariant& value) {
    return toWhole<std::int32_t>(asDouble(value));
}
std::int32_t toInt32(double value) {
    return toWhole<std::int32_t>(value);
}

} // namespace zkp
