#pragma once

#include "window/report_columns.h"

namespace zkp::app {

/// The columns of a totals report behind its group factors.
std::vector<ReportColumn> totalsColumns(const std::vector<DictionaryField>& fields);

/// Counts become whole and ratios get two decimals in a loaded totals report: a control shows every sum
/// with the decimals of an amount, and a quotient with all it has.
void formatFigures(ZkpGrid& grid);

} // namespace zkp::app
