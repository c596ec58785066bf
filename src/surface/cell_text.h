#pragma once

#include "base/currency.h"
#include "base/report_locale.h"
#include "surface/cell_binding.h"

#include <QString>

#include <optional>

namespace zkp {

/// The text that a bound cell shows. A record past the column's end shows nothing. In the grouped
/// formats a text that is a number in the locale counts as that number and any other shows as it is;
/// True counts as -1, a date as its days since 30 December 1899.
QString boundText(const CellBinding& binding, std::size_t record, const ReportLocale& locale);

/// The exact amount that this text is, where that can be told without making the text: for amounts and
/// whole numbers in range, and for a null in the grouped formats. What counts is the figure shown, so
/// that 1.005 in "#,##0.00" is 1.01.
std::optional<Currency> boundAmount(const CellBinding& binding, std::size_t record);

/// True when the text is empty or nothing but blanks; makes no text.
bool isBoundBlank(const CellBinding& binding, std::size_t record);

/// The number that this text is, where that can be told without making the text: for amounts and
/// whole numbers. What counts is the number shown, so that 1.005 in "#,##0.00" is 1.01.
std::optional<double> boundNumber(const CellBinding& binding, std::size_t record);

} // namespace zkp
