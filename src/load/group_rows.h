#pragma once

#include "core/column_list.h"
#include "core/state/data_settings.h"
#include "core/state/grouping_state.h"
#include "core/state/load_state.h"
#include "load/group_sums.h"
#include "load/percentages.h"
#include "surface/grid_surface.h"

namespace zkp {

/// Group rows on the surface: compares each record with the open groups and inserts the subtotal rows
/// of those that end, where the reader stands. The order of the records decides the groups.
class GroupRows {
public:
    GroupRows(const DataSettings& data, const GroupingState& grouping, LoadState& load,
              const ColumnList& columns, GridSurface& surface, Percentages& percentages)
        : data_(data)
        , grouping_(grouping)
        , load_(load)
        , columns_(columns)
        , surface_(surface)
        , percentages_(percentages) {}

    /// With the first record in grid row 1: starts the sums and adds two rows at the end, a blank one
    /// that closes the last groups and one tagged as the totals. False without a summed column; then
    /// nothing is added, and `areTotalsNeeded` stays as it was. Where nobody can see that tag it is better
    /// left out: it makes rows of all the blank ones before it, and `FinishTotals` removes it.
    bool InitTotalsGrid(bool tagIsSeen = true);
    /// Takes in the record that stands in row `r`; `r` moves down with it past inserted rows.
    void AccumulateRow(int& r);
    /// Inserts the subtotal rows of the levels from the innermost out to `level` before row `r`.
    void EmitSubTotalRows(int level, int& r);
    /// The record in row `r` opens the groups from `level` inwards.
    void ResetGroupLevels(int level, int r);

    /// The same for a record that is not on the surface yet; `r` is where it will stand.
    void takeRecord(const GroupRow& record, int& r);
    GroupSums& sums() { return sums_; }
    const GroupSums& sums() const { return sums_; }

    /// Writes the accumulator as a grid.
    void showAccumulator(GridSurface& accumulator) const;

private:
    GroupShape shapeOfReport() const;
    void closeGroups(const GroupRow& record, int& r);
    void writeSubtotalRow(int row, int level);
    void writeSubtotalCell(int row, int level, int c, bool named);

    const DataSettings& data_;
    const GroupingState& grouping_;
    LoadState& load_;
    const ColumnList& columns_;
    GridSurface& surface_;
    Percentages& percentages_;
    GroupSums sums_;
};

} // namespace zkp
