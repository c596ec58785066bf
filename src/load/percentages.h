#pragma once

#include "core/column_list.h"
#include "core/load_notes.h"
#include "core/state/grouping_state.h"
#include "core/state/source_state.h"
#include "host/message_boxes.h"
#include "load/group_value_index.h"
#include "surface/grid_surface.h"

#include <optional>

namespace zkp {

/// The share of a row's group in the group around it, from the records of a totals report.
class Percentages {
public:
    Percentages(const SourceState& source, const GroupingState& grouping, const ColumnList& columns,
                const GridSurface& surface, MessageBoxes& boxes, LoadNotes& notes)
        : source_(source)
        , grouping_(grouping)
        , columns_(columns)
        , surface_(surface)
        , boxes_(boxes)
        , notes_(notes) {}

    /// The share of the group that the keys of row `r` name to level + 1 in the one that they name to
    /// `level`, in "#0.00"; "0.00" with a point in every locale when either sum is 0, as wanted. The
    /// level left out is that of a record's parent. A failure shows its box and counts as 0.
    QString PercentOfParent(const QString& field, int r, std::optional<int> level = {});
    /// The sum of a field over the records whose keys are those of row `r` in columns 0 to `level`; over
    /// all records for a level below 0. A failure shows its box and gives 0.
    double GroupValueSum(int level, const QString& name, int r);
    /// A load with many rows tells each failure once; from here on it is told again.
    void tellFailuresAgain() { told_ = false; }

private:
    double sumOf(int level, const QString& name, int r);
    std::vector<GroupValueIndex::Key> keysOf(int level, int r) const;

    const SourceState& source_;
    const GroupingState& grouping_;
    const ColumnList& columns_;
    const GridSurface& surface_;
    MessageBoxes& boxes_;
    LoadNotes& notes_;
    GroupValueIndex index_;
    bool told_ = false;
};

} // namespace zkp
