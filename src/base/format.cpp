#include "base/format.h"

#include <QVarLengthArray>

#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>

namespace zkp {

namespace {

int decimalsOf(NumberFormat format) {
    return format == NumberFormat::Grouped0 ? 0 : 2;
}

bool isGrouped(NumberFormat format) {
    return format == NumberFormat::Grouped0 || format == NumberFormat::Grouped2;
}

/// The finished text from the digits of a magnitude; `digits` hold at least decimals + 1 of them.
QString assemble(bool negative, std::string_view digits, NumberFormat format, const ReportLocale& locale) {
    const auto decimals = static_cast<std::size_t>(decimalsOf(format));
    const std::string_view whole = digits.substr(0, digits.size() - decimals);
    const std::string_view fraction = digits.substr(whole.size());
    const bool isZero = digits.find_first_not_of('0') == std::string_view::npos;

    QVarLengthArray<QChar, 64> text;
    const auto addSign = [&text](QStringView sign) { text.append(sign.data(), sign.size()); };
    if (negative && !isZero)
        text.append(u'-');
    for (std::size_t i = 0; i < whole.size(); ++i) {
        if (i > 0 && isGrouped(format) && (whole.size() - i) % 3 == 0)
            addSign(locale.groupSign());
        text.append(QLatin1Char(whole[i]));
    }
    if (decimals > 0)
        addSign(locale.decimalSign());
    for (const char digit : fraction)
        text.append(QLatin1Char(digit));
    return QString(text.data(), text.size());
}

QString formatScaled(std::uint64_t magnitude, bool negative, NumberFormat format,
                     const ReportLocale& locale) {
    std::array<char, 24> buffer;
    const auto decimals = static_cast<std::size_t>(decimalsOf(format));
    auto [end, ec] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude);
    std::string_view digits(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
    if (digits.size() > decimals)
        return assemble(negative, digits, format, locale);

    std::array<char, 4> padded{'0', '0', '0', '0'};
    std::memcpy(padded.data() + decimals + 1 - digits.size(), digits.data(), digits.size());
    return assemble(negative, std::string_view(padded.data(), decimals + 1), format, locale);
}

std::uint64_t magnitudeOf(std::int64_t value) {
    return value < 0 ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
}

/// Adds one to the last digit of a decimal digit string.
void roundUp(std::string& digits) {
    std::size_t i = digits.size();
    while (i > 0 && digits[i - 1] == '9')
        digits[--i] = '0';
    if (i > 0)
        ++digits[i - 1];
    else
        digits.insert(digits.begin(), '1');
}

} // namespace

QString formatNumber(Currency value, NumberFormat format, const ReportLocale& locale) {
    const std::uint64_t unit = decimalsOf(format) == 2 ? 100 : 10'000;
    const std::uint64_t magnitude = (magnitudeOf(value.scaled) + unit / 2) / unit;
    return formatScaled(magnitude, value.scaled < 0, format, locale);
}

QString formatNumber(std::int64_t value, NumberFormat format, const ReportLocale& locale) {
    const std::uint64_t magnitude = magnitudeOf(value);
    if (decimalsOf(format) == 0)
        return formatScaled(magnitude, value < 0, format, locale);
    const std::string digits = std::to_string(magnitude) + "00";
    return assemble(value < 0, digits, format, locale);
}

QString formatNumber(const Decimal& value, NumberFormat format, const ReportLocale& locale) {
    const auto units = value.units();
    if (!units)
        return formatNumber(value.toDouble(), format, locale);
    Decimal::Int unit = 1;
    for (int i = decimalsOf(format); i < Decimal::kDecimals; ++i)
        unit *= 10;
    const Decimal::Int magnitude = ((*units < 0 ? -*units : *units) + unit / 2) / unit;
    if (magnitude <= std::numeric_limits<std::int64_t>::max())
        return formatScaled(static_cast<std::uint64_t>(magnitude), *units < 0, format, locale);
    return assemble(*units < 0, digitsOf(magnitude, static_cast<std::size_t>(decimalsOf(format)) + 1), format,
                    locale);
}

QString formatNumber(double value, NumberFormat format, const ReportLocale& locale) {
    if (!std::isfinite(value))
        return std::isnan(value) ? QStringLiteral("NaN")
               : value < 0       ? QStringLiteral("-∞")
                                 : QStringLiteral("∞");

    // d.dddddddddddddde±xxx: the 15 significant digits and the place of the point.
    std::array<char, 32> buffer;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(value),
                                   std::chars_format::scientific, 14)
                         .ptr;
    const std::string_view text(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
    const std::size_t e = text.find('e');
    const int exponent = std::atoi(std::string(text.substr(e + 1)).c_str());
    std::string digits(1, text[0]);
    digits += text.substr(2, e - 2);

    const int kept = exponent + 1 + decimalsOf(format); // digits that the format shows
    const int have = static_cast<int>(digits.size());
    if (kept >= have) {
        digits.append(static_cast<std::size_t>(kept - have), '0');
    } else if (kept < 0) {
        digits.clear();
    } else {
        const bool up = digits[static_cast<std::size_t>(kept)] >= '5';
        digits.resize(static_cast<std::size_t>(kept));
        if (up)
            roundUp(digits);
    }
    const auto least = static_cast<std::size_t>(decimalsOf(format) + 1);
    if (digits.size() < least)
        digits.insert(0, least - digits.size(), '0');
    return assemble(std::signbit(value), digits, format, locale);
}

} // namespace zkp
