#pragma once

#include <QMetaType>
#include <QString>

#include <compare>
#include <cstdint>
#include <optional>

namespace zkp {

/// An exact amount: a whole number of ten-thousandths, as the databases' money type holds it.
struct Currency {
    std::int64_t scaled = 0; ///< the amount × 10,000

    static constexpr std::int64_t kScale = 10'000;
    static constexpr Currency fromWhole(std::int64_t whole) { return {whole * kScale}; }

    /// The nearest amount; nothing when the number is not finite or out of range.
    static std::optional<Currency> fromDouble(double value);

    double toDouble() const { return static_cast<double>(scaled) / kScale; }
    /// Plain digits with "." and up to four decimals, none of them a trailing zero.
    QString toPlainText() const;

    auto operator<=>(const Currency&) const = default;
};

} // namespace zkp

Q_DECLARE_METATYPE(zkp::Currency)
