#pragma once

#include "base/currency.h"
#include "base/decimal.h"
#include "base/report_locale.h"

#include <QString>

#include <cstdint>

namespace zkp {

/// The numeric formats that the reports use.
enum class NumberFormat : std::uint8_t {
    Grouped2,     ///< "#,##0.00"
    Grouped0,     ///< "#,##0"
    Plain2,       ///< "#0.00"
    PlainPercent, ///< "##0.#0": two decimals, no grouping
};

/// A number in a format, with the locale's signs. Rounds half away from zero on the value's
/// 15-digit decimal form (1.005 gives 1,01); a figure that rounds to zero carries no minus sign.
QString formatNumber(double value, NumberFormat format, const ReportLocale& locale);
QString formatNumber(Currency value, NumberFormat format, const ReportLocale& locale);
QString formatNumber(std::int64_t value, NumberFormat format, const ReportLocale& locale);
QString formatNumber(const Decimal& value, NumberFormat format, const ReportLocale& locale);

} // namespace zkp
