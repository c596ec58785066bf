#pragma once

#include "window/load_watch.h"
#include "window/report_columns.h"
#include "window/report_list.h"

namespace zkp::app {

/// What is known of a load.
struct LoadRecord {
    bool isLoaded = false;
    QString built; ///< the statement as the builders made it
    QString sent;  ///< as the database received it
    int records = 0;
    double statementMs = 0; ///< statement and fetch
    double wholeMs = 0;     ///< with the rows laid out
};

/// Makes a new control ready for a report and a user: locale, dictionary, columns, form, order, and the
/// identity with its rights. A control keeps the dictionary rows of its first load, so each report and
/// user gets a control of its own. Failures are Error.
void prepareReport(ZkpGrid& grid, const ado::ConnectionPtr& connection, const ReportEntry& report,
                   const std::vector<DictionaryField>& fields, const ReportShape& shape,
                   const QString& userId);

/// Loads a prepared control with a `Filter`. Failures of the load show the control's box.
LoadRecord loadReport(ZkpGrid& grid, LoadWatch& watch, const QString& filter);

/// Loads a loaded control again, sorted by its current column: ascending, or descending when it is
/// sorted so already. The `Filter` must be given afresh.
/// `sort` becomes what the report is sorted by then.
LoadRecord sortReport(ZkpGrid& grid, LoadWatch& watch, const QString& filter, ColumnSort& sort);

/// Marks the heading of the sorted column, which gets the room for it; group factors are always in
/// ascending order.
void showSort(ZkpGrid& grid, const ColumnSort& sort);

} // namespace zkp::app
