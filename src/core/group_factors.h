#pragma once

#include "core/column_list.h"
#include "core/events.h"
#include "core/report_state.h"

namespace zkp {

/// The group factors as the columns' flags tell them. A column is a factor when its `ForTot` is True.
class GroupFactorFlags {
public:
    GroupFactorFlags(ReportState& state, const ColumnList& columns, Events& events)
        : state_(state)
        , columns_(columns)
        , events_(events) {}

    /// How many of the first `cols` columns are group factors. Entries of `Columns` behind them, which an
    /// opened template leaves, don't count.
    short FindGroupNum(int cols) const;
    /// True for two or more group factors. Despite its name it speaks of factors and not of totals.
    bool HasTotals(int cols) const { return FindGroupNum(cols) >= 2; }
    /// Rebuilds `Groupby` and `GroupFactorCount` from the flags of the first `cols` columns; the flags
    /// win over whatever `Groupby` held. A factor with no field counts and adds nothing to the text.
    void CheckGroupBy(int cols);

private:
    ReportState& state_;
    const ColumnList& columns_;
    Events& events_;
};

} // namespace zkp
