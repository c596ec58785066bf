#pragma once

#include "surface/grid_surface.h"

#include <vector>

namespace zkp::app {

/// The selected body cells as they show: whole rows or columns where the surface selects by them.
/// Empty (bottom above top, or right before left) where there are none.
CellRange selectedBlock(const GridSurface& surface);

inline bool isEmpty(const CellRange& block) {
    return block.bottom < block.top || block.right < block.left;
}

/// The columns of a range that have a width and are not hidden.
std::vector<int> shownColumns(const GridSurface& surface, int left, int right);

} // namespace zkp::app
