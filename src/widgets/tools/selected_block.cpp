#include "widgets/tools/selected_block.h"

#include "widgets/grid/surface_selection.h"

#include <algorithm>

namespace zkp::app {

CellRange selectedBlock(const GridSurface& surface) {
    CellRange block = zkp::selectedBlock(surface);
    block.bottom = std::min(block.bottom, surface.Rows() - 1);
    block.right = std::min(block.right, surface.Cols() - 1);
    return block;
}

std::vector<int> shownColumns(const GridSurface& surface, int left, int right) {
    std::vector<int> shown;
    for (int col = left; col <= right; ++col)
        if (!surface.ColHidden(col) && surface.ColWidth(col) != 0)
            shown.push_back(col);
    return shown;
}

} // namespace zkp::app
