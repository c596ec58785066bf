#pragma once

#include "core/column_list.h"
#include "core/events.h"
#include "core/state/grouping_state.h"

namespace zkp {

/// The group factors as the columns' flags tell them. A column is a factor when its `ForTot` is True.
class GroupFactorFlags {
public:
    GroupFactorFlags(GroupingState& grouping, const ColumnList& columns, Events& events)
        : grouping_(grouping)
        , columns_(columns)
        , events_(events) {}

    const GroupingState& state() const { return grouping_; }

    /// How many of the first `cols` columns are group factors. Entries of `Columns` behind them, which an
    /// opened template leaves, don't count.
    short FindGroupNum(int cols) const;
    /// True for two or more group factors. Despite its name it speaks of factors and not of totals.
    bool HasTotals(int cols) const { return FindGroupNum(cols) >= 2; }
    /// Rebuilds `Groupby` and `GroupFactorCount` from the flags of the first `cols` columns; the flags
    /// win over whatever `Groupby` held. A factor with no field counts and adds nothing to the text.
    void CheckGroupBy(int cols);

    /// A statement builder writes the text; its factors stay as they are.
    void setGroupby(const QString& text);
    /// A text that the host gave stands again, until its columns are made.
    void recall(const QString& given) { grouping_.give(given); }
    /// The factors that the text names; they count from here on.
    QStringList takeFactors();
    /// The factors have their columns: from here on the flags tell.
    void dropGiven() { grouping_.givenGroupby.reset(); }

private:
    GroupingState& grouping_;
    const ColumnList& columns_;
    Events& events_;
};

} // namespace zkp
