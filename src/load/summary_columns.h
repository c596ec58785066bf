#pragma once

#include "core/column_list.h"
#include "core/state/data_settings.h"
#include "core/state/grouping_state.h"
#include "surface/grid_surface.h"

#include <utility>
#include <vector>

namespace zkp {

/// Works out the averages and percentages of subtotal and totals rows from the sums that stand in them.
/// No part of the system calls these; hosts reach them by name.
class SummaryColumns {
public:
    SummaryColumns(const DataSettings& data, const GroupingState& grouping, const ColumnList& columns,
                   GridSurface& surface)
        : data_(data)
        , grouping_(grouping)
        , columns_(columns)
        , surface_(surface) {}

    /// Each "AVG_" cell becomes the sum by the count, to two decimals. A count or sum of 0 leaves it.
    void RecalcAverageColumns();
    /// Each "POS_" cell becomes the share of the row's sum in that of the group around it.
    void RecalcPercentColumns();
    /// The grid column with that field, trimmed and in capitals; -1 when there is none.
    int FindColumnByField(const QString& name) const;
    /// The next row below that is the subtotal of an outer level, or the totals row; -1 when there is none.
    int FindParentRow(int r) const;

private:
    bool isSummary(int row) const;
    int levelOf(int row) const;
    double numberAt(int row, int c) const;
    /// Each summary row that has a parent, with that.
    std::vector<std::pair<int, int>> parents() const;

    const DataSettings& data_;
    const GroupingState& grouping_;
    const ColumnList& columns_;
    GridSurface& surface_;
};

} // namespace zkp
