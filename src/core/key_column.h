#pragma once

#include "core/column_list.h"
#include "core/state/key_state.h"
#include "surface/grid_surface.h"

namespace zkp {

/// The key value of the current row, for the host.
class KeyColumn {
public:
    KeyColumn(KeyState& key, const ColumnList& columns, const GridSurface& surface)
        : key_(key)
        , columns_(columns)
        , surface_(surface) {}

    /// The first column with `ColIndexKey`; -1 when there is none.
    double FindKeyColumn() const;
    /// `indkey` takes the number in that column of the current row, 0 when it is none. Without such a
    /// column it keeps its value.
    void takeKey();

private:
    KeyState& key_;
    const ColumnList& columns_;
    const GridSurface& surface_;
};

} // namespace zkp
