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
        band_ = {surface_.look().BackColorSel, surface_.look().ForeColorSel};
        paint(bandOf(surface_.Row()), band_, StyleOrigin::Section);
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
    const MarkedStyle cell = surface_.markedStyleAt(surface_.Row(), lastCol());
    remember({cell.style.backColor, cell.style.foreColor}, cell.marks.backColor || cell.marks.foreColor);
}

void RowMarking::coverSurface() {
    remember({surface_.BackColor(), surface_.ForeColor()}, false);
}

void RowMarking::remember(const Colours& colours, bool isMark) {
    marking_.PreBackColor = colours.back;
    marking_.PreForeColor = colours.fore;
    remembered_ = colours;
    markRemembered_ = isMark;
}

/// Colours that somebody has put in place of the remembered ones are a mark.
bool RowMarking::coversMark() const {
    return covered() != remembered_ || markRemembered_;
}

std::optional<RowMarking::Covered> RowMarking::coveredByBand(int row, int col, const CellStyle& shown) const {
    const bool lies = row == marking_.PreRow && col >= grouping_.GroupFactorCount &&
                      Colours{shown.backColor, shown.foreColor} == band_;
    if (!lies)
        return std::nullopt;
    return Covered{patchOf(covered()), coversMark()};
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
    paintCovered(chosen ? bandOf(row) : surface_.selection());
    if (surface_.ColSel() == 0) // a corner in the first column does not come back, as wanted
        surface_.setColSel(surface_.Col());
}

void RowMarking::Releasemark(int row) {
    const RedrawOff still(surface_);
    const SelectionQuiet quiet(notices_);
    surface_.setFillStyle(1);
    paintCovered({row, surface_.FixedCols(), row, lastCol()});
    selectCurrentCell(surface_);
}

void RowMarking::reversecolor(int row, Color back, Color fore, StyleOrigin origin) {
    const RedrawOff still(surface_);
    const SelectionQuiet quiet(notices_);
    surface_.setFillStyle(1);
    paint({row, 0, row, lastCol()}, {back, fore}, origin);
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
              {surface_.BackColor(), surface_.ForeColor()}, StyleOrigin::Section);
    for (int row = first; row < surface_.Rows(); ++row)
        if (row % 2 > 0)
            reversecolor(row, marking_.Row1BackColor, marking_.Row1ForeColor);
}

void RowMarking::paintCovered(const CellRange& cells) {
    paint(cells, covered(), coversMark() ? StyleOrigin::Mark : StyleOrigin::Section);
}

/// Nothing to paint where the group factors or fixed columns are all the columns there are.
void RowMarking::paint(const CellRange& cells, const Colours& colours, StyleOrigin origin) {
    if (cells.left <= lastCol())
        surface_.applyStyle(cells, patchOf(colours), origin);
}

StylePatch RowMarking::patchOf(const Colours& colours) {
    return {.backColor = colours.back, .foreColor = colours.fore};
}

} // namespace zkp
