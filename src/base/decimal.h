#pragma once

#include "base/currency.h"
#include "base/report_locale.h"

#include <QString>

#include <optional>

namespace zkp {

/// A decimal number that adds up exactly: a hundred thousand shown figures that net to zero are zero.
/// Ten decimals and some 27 digits before them are kept; what goes beyond counts as a double.
class Decimal {
public:
    Decimal() = default;
    explicit Decimal(Currency amount)
        : units_(static_cast<Int>(amount.scaled) * kUnitsOfCurrency) {}
    /// The number's 15-digit decimal form; what is not finite counts as 0.
    explicit Decimal(double value);
    /// The number that a whole text is in the locale, digit by digit; nothing when it is none.
    static std::optional<Decimal> fromText(QStringView text, const ReportLocale& locale);

    Decimal& operator+=(const Decimal& other);
    bool isZero() const { return units_ == 0 && beyond_ == 0; }
    double toDouble() const;
    /// Digits with the locale's decimal sign, without grouping and without trailing zeros.
    QString plainText(const ReportLocale& locale) const;

    __extension__ using Int = __int128;
    /// The number in 10^-10, when all of it is exact.
    std::optional<Int> units() const { return beyond_ == 0 ? std::optional(units_) : std::nullopt; }
    static constexpr int kDecimals = 10;

    bool operator==(const Decimal&) const = default;

private:
    static constexpr Int kUnitsOfCurrency = 1'000'000;

    static std::optional<Decimal> fromDigits(std::string_view plain);

    Int units_ = 0;
    double beyond_ = 0;
};

/// The digits of a magnitude, at least `least` of them.
std::string digitsOf(Decimal::Int magnitude, std::size_t least);

} // namespace zkp
