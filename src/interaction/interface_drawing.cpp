#include "interaction/interface_drawing.h"

#include "base/scope_guard.h"
#include "base/text.h"
#include "base/texts/rows.h"
#include "core/paint_scopes.h"
#include "core/section_style.h"

#include <algorithm>

namespace zkp {

namespace {

/// What `DrawInterface` puts back: the other corner of the selection, `FillStyle` and `TopRow`.
struct SavedView {
    explicit SavedView(const GridSurface& surface)
        : rowSel(surface.RowSel())
        , colSel(surface.ColSel())
        , fillStyle(surface.FillStyle())
        , topRow(surface.TopRow()) {}

    /// A corner in row or column 0 does not come back, as wanted; nor does a place that a handler took away.
    void putBack(GridSurface& surface) const {
        if (rowSel > 0 && rowSel < surface.Rows())
            surface.setRowSel(rowSel);
        if (colSel > 0 && colSel < surface.Cols())
            surface.setColSel(colSel);
        surface.setFillStyle(fillStyle);
        if (topRow < surface.Rows())
            surface.setTopRow(topRow);
    }

    int rowSel;
    int colSel;
    int fillStyle;
    int topRow;
};

} // namespace

void InterfaceDrawing::DrawInterface() {
    if (drawing_)
        return;
    drawing_ = true;
    const ScopeGuard done([this] { drawing_ = false; });
    const RedrawOff still(surface_);
    reporting_.run([&] {
        if (source_.ReportRecordset)
            paintSections();
        Q_EMIT events_.StopInterface(); // alone when there is no record source, as wanted
        lifetime_.throwIfDestroyed();
    });
}

void InterfaceDrawing::paintSections() {
    Q_EMIT events_.StartInterface();
    lifetime_.throwIfDestroyed();
    const SavedView saved(surface_);
    const ScopeGuard restore([&] {
        const SelectionQuiet quiet(notices_);
        saved.putBack(surface_);
        painted_.take(surface_); // what shows from now on is painted
    });
    marking_.forgetRow();
    paintFonts();
    const CellRange page{std::max(surface_.TopRow(), surface_.FixedRows()), 0, surface_.BottomRow(),
                         surface_.Cols() - 1};
    if (page.top <= page.bottom && surface_.Rows() >= 2) {
        paintGroupCells(page);
        paintRows(page);
    }
    marking_.Selectrow();
}

void InterfaceDrawing::paintFonts() {
    const int first = surface_.FixedRows();
    const int firstCol = std::min(surface_.FixedCols(), surface_.Cols() - 1);
    fonts_.SetCellFonts(first, fontOf(look(Section::Details)),
                        {.col = firstCol, .rowEnd = surface_.Rows() - 1, .colEnd = {}}, StyleOrigin::Section);
    fonts_.paintHeading();
}

int InterfaceDrawing::groupColumns() const {
    return std::min<int>(grouping_.GroupFactorCount, surface_.Cols());
}

CellStyle InterfaceDrawing::look(Section section) const {
    return styleOf(section, sections_, surface_);
}

void InterfaceDrawing::paintGroupCells(const CellRange& page) {
    if (groupColumns() > 0)
        surface_.applyStyle({page.top, 0, page.bottom, groupColumns() - 1},
                            coloursAndFontOf(look(Section::GroupFactors)), StyleOrigin::Section);
}

void InterfaceDrawing::paintRows(const CellRange& page) {
    if (surface_.Cols() <= grouping_.GroupFactorCount)
        return;
    std::vector<int> kinds; // from the page's first row on
    for (int row = page.top; row <= page.bottom; ++row)
        kinds.push_back(surface_.RowData(row));
    markBlankFactors(page, kinds);
    paintDetailRows(page, kinds);
    paintSumRows(page, kinds);
}

/// A blank factor cell that shows takes the mark of a repeated value; sums and rows out of sight don't.
void InterfaceDrawing::markBlankFactors(const CellRange& page, const std::vector<int>& kinds) {
    const int count = groupColumns();
    for (int row = page.top; count > 0 && row <= page.bottom; ++row) {
        if (isSumRow(kinds[static_cast<std::size_t>(row - page.top)]))
            continue;
        for (int c = 0; c < count; ++c)
            if (isBlank(surface_.TextMatrix(row, c)))
                surface_.setTextMatrix(row, c, texts::repeatedValue());
    }
}

/// Rows that stand together are one write; the sums among them are painted over it afterwards.
void InterfaceDrawing::paintDetailRows(const CellRange& page, const std::vector<int>& kinds) {
    const StylePatch colours = coloursOf(look(Section::Details));
    int first = page.top;
    for (int row = page.top; row <= page.bottom + 1; ++row) {
        const int kind = row <= page.bottom ? kinds[static_cast<std::size_t>(row - page.top)] : 0;
        if (kind == ZKPSingleRow || isSumRow(kind))
            continue;
        if (first < row)
            surface_.applyStyle({first, groupColumns(), row - 1, page.right}, colours, StyleOrigin::Section);
        first = row + 1;
    }
}

void InterfaceDrawing::paintSumRows(const CellRange& page, const std::vector<int>& kinds) {
    const StylePatch subTotals = coloursAndFontOf(look(Section::SubTotals));
    const StylePatch totals = coloursAndFontOf(look(Section::Totals));
    for (int row = page.top; row <= page.bottom; ++row)
        if (const int kind = kinds[static_cast<std::size_t>(row - page.top)]; isSumRow(kind))
            surface_.applyStyle({row, 0, row, page.right}, kind == ZKPTotals ? totals : subTotals,
                                StyleOrigin::Section);
}

void InterfaceDrawing::RefreshInterface(int what) {
    const RedrawOff still(surface_);
    const int shown = pointer_.pointer();
    const ScopeGuard restore([&] { pointer_.setPointer(shown); });
    pointer_.setPointer(kPointerHourglass);
    if (surface_.FixedRows() > 0)
        fonts_.FontsRow(0, fontMarksOf(look(Section::Heading)), StyleOrigin::Section);
    if (what == 0)
        return;
    PaintGroupBlock(true);
    refreshTotals();
    menu_.Refresh();
}

void InterfaceDrawing::refreshTotals() {
    const StylePatch subTotalsFont = fontMarksOf(look(Section::SubTotals));
    const StylePatch totalsFont = fontMarksOf(look(Section::Totals));
    for (int row = surface_.FixedRows(); row < surface_.Rows(); ++row) {
        const int kind = surface_.RowData(row);
        if (kind == ZKPSubTotals)
            markRow(row, look(Section::SubTotals), subTotalsFont);
        else if (kind == ZKPTotals)
            markRow(row, look(Section::Totals), totalsFont);
    }
}

/// Marking the current row raises `Selecting`, whose handler may take rows away.
void InterfaceDrawing::markRow(int row, const CellStyle& colours, const StylePatch& font) {
    marking_.reversecolor(row, colours.backColor, colours.foreColor, StyleOrigin::Section);
    if (row < surface_.Rows())
        fonts_.FontsRow(row, font, StyleOrigin::Section);
}

/// In a totals report the innermost of several factors is a plain cell.
void InterfaceDrawing::PaintGroupBlock(bool fromTop) {
    if (grouping_.GroupFactorCount == 0)
        return;
    const bool innerIsPlain = data_.TotalForm && grouping_.GroupFactorCount != 1;
    const int count = std::min(grouping_.GroupFactorCount - (innerIsPlain ? 1 : 0), surface_.Cols());
    const RedrawOff still(surface_);
    const SelectionQuiet quiet(notices_);
    surface_.setMergeCells(0);
    if (surface_.Rows() > surface_.FixedRows() && count > 0) {
        const int last = surface_.Rows() - 1;
        surface_.Select(fromTop ? surface_.FixedRows() : last, 0, last, count - 1); // and stays so, as wanted
        const CellStyle style = look(Section::GroupFactors);
        StylePatch patch = fontMarksOf(style); // the typeface stays, as wanted
        patch.backColor = style.backColor;
        patch.foreColor = style.foreColor;
        surface_.applyStyle(surface_.selection(), patch, StyleOrigin::Section);
    }
    surface_.setFillStyle(0);
    surface_.setMergeCells(1);
    for (int c = 0; c < surface_.Cols(); ++c)
        surface_.setMergeCol(c, c < count);
    surface_.Refresh();
}

} // namespace zkp
