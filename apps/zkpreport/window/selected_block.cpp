#include "window/selected_block.h"

#include <algorithm>

namespace zkp::app {

namespace {

enum SelectionModes { kSelectionByRow = 1, kSelectionByColumn = 2 };

} // namespace

CellRange selectedBlock(const GridSurface& surface) {
    CellRange block = surface.selection();
    const int mode = surface.look().SelectionMode;
    if (mode == kSelectionByRow) {
        block.left = 0;
        block.right = surface.Cols() - 1;
    } else if (mode == kSelectionByColumn) {
        block.top = surface.FixedRows();
        block.bottom = surface.Rows() - 1;
    }
    block.top = std::max(block.top, surface.FixedRows());
    block.left = std::max(block.left, surface.FixedCols());
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
