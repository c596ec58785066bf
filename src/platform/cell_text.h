#pragma once

#include "base/report_locale.h"
#include "platform/cell_binding.h"

#include <QString>

#include <optional>

namespace zkp {

/// The text that a bound cell shows. A record past the column's end shows nothing. In the grouped
/// formats a text that is a number in the locale counts as that number and any other shows as it is;
/// True counts as -1, a date as its days since 30 December 1899.
QString boundText(const CellBinding& binding, std::size_t record, const ReportLocale& locale);

/// The number that this text is, where that can be told without making the text: for amounts and
/// whole numbers. What counts is the number shown, so that 1.005 in "#,##0.00" is 1.01.
std::optional<double> boundNumber(const CellBinding& binding, std::size_t record);

} // namespace zkp
