#include "base/currency.h"

#include <cmath>

namespace zkp {

std::optional<Currency> Currency::fromDouble(double value) {
    const double scaled = std::nearbyint(value * kScale);
    // The comparison is false for NaN as well.
    if (!(std::abs(scaled) < 9.2e18))
        return std::nullopt;
    return Currency{static_cast<std::int64_t>(scaled)};
}

QString Currency::toPlainText() const {
    const bool negative = scaled < 0;
    const auto magnitude =
        negative ? 0 - static_cast<std::uint64_t>(scaled) : static_cast<std::uint64_t>(scaled);
    QString text = QString::number(magnitude / kScale);
    if (const auto fraction = magnitude % kScale; fraction != 0) {
        QString decimals = QString::number(fraction).rightJustified(4, u'0');
        while (decimals.endsWith(u'0'))
            decimals.chop(1);
        text += u'.' + decimals;
    }
    return negative ? u'-' + text : text;
}

} // namespace zkp
