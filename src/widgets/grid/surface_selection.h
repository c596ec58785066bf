#pragma once

#include "surface/grid_surface.h"

#include <vector>

namespace zkp {

/// The body cells that are selected: the selected range, as `SelectionMode` widens it to whole rows or
/// columns. Empty (bottom above top, or right before left) where there are none.
CellRange selectedBlock(const GridSurface& surface);

inline bool isEmpty(const CellRange& block) {
    return block.bottom < block.top || block.right < block.left;
}

/// The columns of a range that have a width and are not hidden.
std::vector<int> shownColumns(const GridSurface& surface, int left, int right);

/// What of a surface shows as selected, by its settings: `HighLight` 0 nothing, 1 always, 2 with the
/// focus; `SelectionMode` 1 whole rows, 2 whole columns. Headings never do. The current cell of a free
/// selection keeps its own colours and is marked by the focus rectangle, if there is one.
class ShownSelection {
public:
    ShownSelection(const GridSurface& surface, bool focused);

    /// The cells of a column from `firstRow` to `lastRow`, which show as one: all of them or none.
    bool covers(int firstRow, int lastRow, int col) const;
    bool hasFocusRect() const { return focusRect_; }

private:
    bool highlights_ = false;
    bool focusRect_ = false;
    bool sparesCurrent_ = false;
    CellRange block_;
    int row_ = 0;
    int col_ = 0;
};

} // namespace zkp
