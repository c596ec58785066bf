#pragma once

#include "core/account_columns.h"
#include "core/cell_fonts.h"
#include "core/control_setters.h"
#include "core/group_columns.h"
#include "core/record_source.h"
#include "core/report_rows.h"
#include "core/report_state.h"
#include "core/reporting.h"
#include "core/row_marking.h"
#include "host/host.h"
#include "sql/statement_parts.h"

#include <memory>

namespace zkp {

/// What all other parts stand on: the stored members, the columns, the children, and those who write them.
struct CoreParts {
    explicit CoreParts(std::shared_ptr<Host> givenHost);

    /// What the statement builders are made from.
    StatementParts::From forStatements();

    std::shared_ptr<Host> host;
    MessageBoxes& boxes;
    Pointer& pointer;
    ReportState state;
    ColumnList columns;
    Events events;
    ChildControls children;
    LoadNotes notes;
    Reporting reporting;
    GridSurface& surface; ///< the visible one

    ColumnProperties columnProperties;
    ControlSetters setters;
    GroupFactorFlags groupFactors;
    AccountColumns accountColumns;
    GroupColumns groupColumns;
    KeyColumn keyColumn;
    FontWriter fonts;
    RowMarking marking;
    ReportRows rows;
    zkp::RecordSource source;
};

} // namespace zkp
