#include "base/decimal.h"

#include "base/number.h"
#include "base/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <string>

namespace zkp {

namespace {

constexpr double kUnits = 1e10;
constexpr int kSignificant = 15; // digits of a double that count
constexpr int kMaxDigits = 37;   // that surely fit

/// A sign, digits and perhaps one point, with "." whatever the locale.
std::string plainDigits(QStringView text, const ReportLocale& locale) {
    QString plain = trimmed(text).toString();
    plain.remove(locale.groupSign().toString()).replace(locale.decimalSign().toString(), QStringLiteral("."));
    return plain.toStdString();
}

} // namespace

std::string digitsOf(Decimal::Int magnitude, std::size_t least) {
    std::string digits;
    for (; magnitude != 0; magnitude /= 10)
        digits += static_cast<char>('0' + static_cast<int>(magnitude % 10));
    if (digits.size() < least)
        digits.append(least - digits.size(), '0');
    std::reverse(digits.begin(), digits.end());
    return digits;
}

/// Nothing when there is anything but digits and a point, or more of them than fit.
std::optional<Decimal> Decimal::fromDigits(std::string_view plain) {
    const bool negative = plain.starts_with('-');
    if (negative || plain.starts_with('+'))
        plain.remove_prefix(1);
    const std::size_t point = std::min(plain.find('.'), plain.size());
    const std::size_t decimals = plain.size() - std::min(point + 1, plain.size());
    if (point + kDecimals > kMaxDigits || decimals > kDecimals)
        return std::nullopt;
    Int units = 0;
    for (std::size_t i = 0; i < plain.size(); ++i) {
        if (i == point)
            continue;
        if (plain[i] < '0' || plain[i] > '9')
            return std::nullopt;
        units = units * 10 + (plain[i] - '0');
    }
    for (std::size_t i = decimals; i < kDecimals; ++i)
        units *= 10;
    Decimal result;
    result.units_ = negative ? -units : units;
    return result;
}

/// 15 digits and the place of the point, moved to ten decimals; where that drops digits, the double stays.
Decimal::Decimal(double value) {
    if (!std::isfinite(value) || value == 0)
        return;
    std::array<char, 32> buffer;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                   std::chars_format::scientific, kSignificant - 1)
                         .ptr;
    const std::string text(buffer.data(), end);
    const std::size_t e = text.find('e');
    std::string mantissa = text.substr(0, e);
    mantissa.erase(mantissa.find('.'), 1);
    int exponent = std::atoi(text.c_str() + e + 1) - (kSignificant - 1) + kDecimals;
    Int units = std::atoll(mantissa.c_str());
    for (; exponent < 0 && units % 10 == 0; ++exponent)
        units /= 10;
    if (exponent < 0 || exponent > kMaxDigits - kSignificant) {
        beyond_ = value;
        return;
    }
    for (; exponent > 0; --exponent)
        units *= 10;
    units_ = units;
}

std::optional<Decimal> Decimal::fromText(QStringView text, const ReportLocale& locale) {
    const std::optional<double> number = toNumber(text, locale);
    if (!number)
        return std::nullopt;
    if (const auto exact = fromDigits(plainDigits(text, locale)))
        return exact;
    return Decimal(*number);
}

Decimal& Decimal::operator+=(const Decimal& other) {
    Int sum = 0;
    if (__builtin_add_overflow(units_, other.units_, &sum)) {
        beyond_ += static_cast<double>(other.units_) / kUnits;
    } else {
        units_ = sum;
    }
    beyond_ += other.beyond_;
    return *this;
}

double Decimal::toDouble() const {
    return static_cast<double>(units_) / kUnits + beyond_;
}

QString Decimal::plainText(const ReportLocale& locale) const {
    if (beyond_ != 0)
        return locale.doubleText(toDouble());
    const bool negative = units_ < 0;
    const std::string digits = digitsOf(negative ? -units_ : units_, kDecimals + 1);
    const std::size_t whole = digits.size() - kDecimals;
    const std::size_t end = digits.find_last_not_of('0');
    QString text = QString::fromLatin1(digits.data(), static_cast<qsizetype>(whole));
    if (end != std::string::npos && end >= whole) {
        text += locale.decimalSign();
        text += QLatin1String(digits.data() + whole, static_cast<qsizetype>(end + 1 - whole));
    }
    return negative ? u'-' + text : text;
}

} // namespace zkp
