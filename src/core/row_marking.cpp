#include "core/row_marking.h"

#include "base/number.h"
#include "base/scope_guard.h"
#include "core/paint_scopes.h"

namespace zkp {

void RowMarking::Selectrow() {
    if (!marking_.RowSelect || isHeading(surface_.Row()) || !hasCurrentCell())
        return;
    {
        const RedrawOff still(surface_);
        const SelectionQuiet quiet(notices_);
        redrawMarkedRow();
        notices_.hush(); // RedrawRow has ended it
        RememberRowColours();
        marking_.PreRow = surface_.Row();
        surface_.setFillStyle(1);
        paint(bandOf(surface_.Row()), {surface_.look().BackColorSel, surface_.look().ForeColorSel});
        selectCurrentCell(surface_);
    }
    key_.takeKey();
    Q_EMIT events_.Selecting();
    lifetime_.throwIfDestroyed();
}

/// The last column is the one that group cells can't have touched.
void RowMarking::RememberRowColours() {
    if (isHeading(surface_.Row())) {
        coverSurface();
        return;
    }
    const CellStyle style = surface_.styleAt(surface_.Row(), lastCol());
    marking_.PreBackColor = style.backColor;
    marking_.PreForeColor = style.foreColor;
}

void RowMarking::coverSurface() {
    marking_.PreBackColor = surface_.BackColor();
    marking_.PreForeColor = surface_.ForeColor();
}

/// A row beyond the bound, which with several fixed rows is short of the last row, is not chosen: the
/// selection that stands is painted instead. Wanted. So is a row that is gone. Row 0 means that no row has
/// the band.
void RowMarking::RedrawRow(double given) {
    const int row = toInt32(given);
    if (row < surface_.FixedRows())
        return;
    const RedrawOff still(surface_);
    const ScopeGuard hearing([this] { notices_.hear(); });
    notices_.hush();
    const bool chosen = row <= surface_.Rows() - surface_.FixedRows() && row < surface_.Rows();
    paint(chosen ? bandOf(row) : surface_.selection(), {marking_.PreBackColor, marking_.PreForeColor});
    if (surface_.ColSel() == 0) // a corner in the first column does not come back, as wanted
        surface_.setColSel(surface_.Col());
}

void RowMarking::Releasemark(int row) {
    const RedrawOff still(surface_);
    const SelectionQuiet quiet(notices_);
    surface_.setFillStyle(1);
    paint({row, surface_.FixedCols(), row, lastCol()}, {marking_.PreBackColor, marking_.PreForeColor});
    selectCurrentCell(surface_);
}

void RowMarking::reversecolor(int row, Color back, Color fore) {
    const RedrawOff still(surface_);
    const SelectionQuiet quiet(notices_);
    surface_.setFillStyle(1);
    paint({row, 0, row, lastCol()}, {back, fore});
    selectCurrentCell(surface_);
    if (surface_.Row() != row)
        return;
    marking_.PreRow = row;
    RememberRowColours();
    Selectrow();
}

void RowMarking::ReverseCell(int row, int from, int to, Color back, Color fore) {
    const RedrawOff still(surface_);
    const SelectionQuiet quiet(notices_);
    surface_.setFillStyle(1);
    surface_.applyStyle({row, from, row, to}, patchOf({back, fore}));
    selectCurrentCell(surface_);
}

void RowMarking::makeRowByrow() {
    if (!marking_.RowByRow)
        return;
    const RedrawOff still(surface_);
    const SelectionQuiet quiet(notices_);
    surface_.setFillStyle(1);
    const int first = surface_.FixedRows();
    if (first < surface_.Rows())
        paint({first, surface_.FixedCols(), surface_.Rows() - 1, lastCol()},
              {surface_.BackColor(), surface_.ForeColor()});
    for (int row = first; row < surface_.Rows(); ++row)
        if (row % 2 > 0)
            reversecolor(row, marking_.Row1BackColor, marking_.Row1ForeColor);
}

/// Nothing to paint where the group factors or fixed columns are all the columns there are.
void RowMarking::paint(const CellRange& cells, const Colours& colours) {
    if (cells.left <= lastCol())
        surface_.applyStyle(cells, patchOf(colours));
}

StylePatch RowMarking::patchOf(const Colours& colours) {
    return {.backColor = colours.back, .foreColor = colours.fore};
}

} // namespace zkp
