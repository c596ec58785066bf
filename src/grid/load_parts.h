#pragma once

#include "grid/core_parts.h"
#include "load/empty_report.h"
#include "load/sorting.h"
#include "load/summary_columns.h"
#include "sql/statement_parts.h"

namespace zkp {

/// The parts of a load.
struct LoadParts {
    LoadParts(CoreParts& core, StatementParts& statements);

    LoadHooks hooks; ///< InteractionParts fills them in
    Percentages percentages;
    GroupRows groupRows;
    TotalsRows totalsRows;
    SummaryColumns summaryColumns;
    RowReader reader;
    LoadDriver driver;
    EmptyReport emptyReport;
    RowSorting sorting;
};

} // namespace zkp
