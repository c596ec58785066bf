#pragma once

#include "window/report_columns.h"
#include "window/report_list.h"

namespace zkp::app {

/// A load that the program asked for.
struct LoadRecord {
    QString filter; ///< that it was given; the control has written its own over it
    LoadOutcome outcome;

    bool isLoaded() const { return outcome.result == ZKPLoaded; }
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

/// Loads a prepared control with a `Filter`. Failures of the load show the control's box.
LoadRecord loadReport(ZkpGrid& grid, const QString& filter);

/// Loads a loaded control again, sorted by its current column: ascending, or descending when it is
/// sorted so already. The `Filter` must be given afresh.
/// `sort` becomes what the report is sorted by then.
LoadRecord sortReport(ZkpGrid& grid, const QString& filter, ColumnSort& sort);

/// Marks the heading of the sorted column, which gets the room for it; group factors are always in
/// ascending order.
void showSort(ZkpGrid& grid, const ColumnSort& sort);

} // namespace zkp::app
