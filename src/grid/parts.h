#pragma once

#include "core/account_columns.h"
#include "core/cell_fonts.h"
#include "core/child_controls.h"
#include "core/column_properties.h"
#include "core/group_factors.h"
#include "core/key_column.h"
#include "core/load_notes.h"
#include "core/record_source.h"
#include "core/report_state.h"
#include "core/reporting.h"
#include "core/row_marking.h"
#include "interaction/column_commands.h"
#include "interaction/field_tools.h"
#include "interaction/heading_drag.h"
#include "interaction/interface_drawing.h"
#include "interaction/lifecycle.h"
#include "interaction/menu_commands.h"
#include "interaction/menu_state.h"
#include "interaction/section_styles.h"
#include "interaction/selection_events.h"
#include "interaction/surface_events.h"
#include "load/empty_report.h"
#include "load/group_rows.h"
#include "load/load_driver.h"
#include "load/percentages.h"
#include "load/row_reader.h"
#include "load/sorting.h"
#include "load/summary_columns.h"
#include "load/totals_rows.h"
#include "sql/dictionary.h"
#include "sql/percentage_statement.h"
#include "sql/settings_store.h"
#include "sql/statement_dispatch.h"
#include "sql/user_filter.h"
#include "template/template_store.h"
#include "zkp_grid.h"

namespace zkp {

/// The parts of one control, each built with what it may touch. Operations hold a reference of their
/// own while they run, so that a handler may destroy the control under them.
struct ZkpGrid::Parts {
    explicit Parts(std::shared_ptr<Host> givenHost);

    std::shared_ptr<Host> host;
    MessageBoxes& boxes;
    Pointer& pointer;
    ReportState state;
    ColumnList columns;
    Events events;
    ChildControls children;
    LoadHooks hooks;
    LoadNotes notes;
    Reporting reporting;
    std::function<void(const Error&)> errorSink;

    GridSurface& surface;
    ColumnProperties columnProperties;
    GroupFactorFlags groupFactors;
    AccountColumns accountColumns;
    GroupColumns groupColumns;
    KeyColumn keyColumn;
    FontWriter fonts;
    RowMarking marking;
    zkp::RecordSource source;
    Dictionary dictionary;
    SettingsStore settings;

    BuilderInputs inputs;
    Hierarchy hierarchy;
    FieldExpressions fields;
    MasterTableLookup masterTable;
    Joins joins;
    FilterTranslation translation;
    UserFilter userFilter;
    RunTimeStatement runTime;
    NormalStatement normal;
    GroupedStatement grouped;
    StatisticsStatement statistics;
    PercentageStatement percentageStatement;
    StatementDispatch dispatch;

    Percentages percentages;
    GroupRows groupRows;
    TotalsRows totalsRows;
    SummaryColumns summaryColumns;
    RowReader reader;
    LoadDriver driver;
    EmptyReport emptyReport;
    RowSorting sorting;
    InterfaceDrawing drawing;
    Lifecycle lifecycle;
    SavedProperties savedProperties;
    TemplateStore templates;
    ColumnCommands columnCommands;
    HeadingDrag headingDrag;
    FieldTools fieldTools;
    MenuState menuState;
    SectionStyles sectionStyles;
    MenuCommands menuCommands;
    SelectionEvents selectionEvents;
    SurfaceEvents surfaceEvents;

    void setCols(int count);
    void setRow(int row);
    void setRefreshOnChange(bool on);
    void setPrintCaption(const QString& title);

private:
    void connectHooks();
};

template <class Operation>
auto ZkpGrid::run(Operation operation) const {
    const std::shared_ptr<Parts> parts = parts_;
    try {
        return operation(*parts);
    } catch (const ControlDestroyed&) {
        return decltype(operation(*parts))();
    }
}

} // namespace zkp
