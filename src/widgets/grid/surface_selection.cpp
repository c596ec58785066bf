#include "widgets/grid/surface_selection.h"

#include <algorithm>

namespace zkp {

namespace {

enum HighLightMode { kHighLightNever = 0, kHighLightWithFocus = 2 };
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

ShownSelection::ShownSelection(const GridSurface& surface, bool focused)
    : block_(selectedBlock(surface))
    , row_(surface.Row())
    , col_(surface.Col()) {
    const GridSurface::Look& look = surface.look();
    highlights_ = look.HighLight != kHighLightNever && (look.HighLight != kHighLightWithFocus || focused);
    focusRect_ = look.FocusRect != 0;
    sparesCurrent_ = focusRect_ && look.SelectionMode == 0;
}

bool ShownSelection::covers(int firstRow, int lastRow, int col) const {
    const bool inside =
        firstRow >= block_.top && lastRow <= block_.bottom && col >= block_.left && col <= block_.right;
    if (!highlights_ || !inside)
        return false;
    const bool isCurrent = col == col_ && firstRow <= row_ && row_ <= lastRow;
    return !(sparesCurrent_ && isCurrent);
}

} // namespace zkp
