#include "widgets/surface_selection.h"

#include <algorithm>

namespace zkp {

namespace {

enum HighLightMode { kHighLightNever = 0, kHighLightWithFocus = 2 };
enum SelectionModes { kSelectionByRow = 1, kSelectionByColumn = 2 };

} // namespace

ShownSelection::ShownSelection(const GridSurface& surface, bool focused)
    : block_(surface.selection())
    , row_(surface.Row())
    , col_(surface.Col()) {
    const GridSurface::Look& look = surface.look();
    highlights_ = look.HighLight != kHighLightNever && (look.HighLight != kHighLightWithFocus || focused);
    focusRect_ = look.FocusRect != 0;
    sparesCurrent_ = focusRect_ && look.SelectionMode == 0;
    if (look.SelectionMode == kSelectionByRow) {
        block_.left = 0;
        block_.right = surface.Cols() - 1;
    } else if (look.SelectionMode == kSelectionByColumn) {
        block_.top = surface.FixedRows();
        block_.bottom = surface.Rows() - 1;
    }
    block_.top = std::max(block_.top, surface.FixedRows());
    block_.left = std::max(block_.left, surface.FixedCols());
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
