#pragma once

#include "window/load_watch.h"
#include "window/report_columns.h"
#include "window/report_list.h"

namespace zkp::app {

/// What is known of a load.
struct LoadRecord {
    bool isLoaded = false;
    QString filter; ///< that it was given; the control has written its own over it
    QString built; ///< the statement as the builders made it
    QString sent;  ///< as the database received it
    int records = 0;
    double statementMs = 0; ///< statement and fetch
    double wholeMs = 0;     ///< with the rows laid out; 0 of a load that nobody watched
};

/// Makes a new control ready for a report and a user: locale, dictionary, and the identity with its rights.
/// A control keeps the dictionary rows of its first load, so each report and user gets a control of its
/// own. Failures are Error.
void prepareReport(ZkpGrid& grid, const ado::ConnectionPtr& connection, const ReportEntry& report,
                   const QString& userId);

/// Gives a prepared control its columns, form and order.
void layReport(ZkpGrid& grid, const std::vector<DictionaryField>& fields,
               const std::vector<ReportColumn>& columns, const ReportShape& shape);

/// What a prepared control is sorted by, as far as a user could have sorted it so.
ColumnSort sortOf(ZkpGrid& grid);

/// What is known of a load that the control has made by itself.
LoadRecord recordAsItStands(ZkpGrid& grid, const QString& sent);

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
