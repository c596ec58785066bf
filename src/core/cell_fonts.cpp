#include "core/cell_fonts.h"

#include "core/paint_scopes.h"
#include "core/section_style.h"

#include <algorithm>

namespace zkp {

void FontWriter::SetCellFonts(int row, const StylePatch& font, const Block& block, StyleOrigin origin) {
    if (row < 0 || row >= surface_.Rows() || surface_.Cols() == 0)
        return;
    const int last = surface_.Cols() - 1;
    const int left = block.col.value_or(row > 0 ? grouping_.GroupFactorCount : 0);
    if (!block.col && left > last)
        return; // all columns are group factors
    const StylePatch patch{.fontName = font.fontName,
                           .fontSize = font.fontSize,
                           .bold = font.bold,
                           .italic = font.italic,
                           .underline = font.underline};

    const RedrawOff still(surface_);
    const SelectionQuiet quiet(notices_);
    surface_.applyStyle({row, left, block.rowEnd.value_or(row), block.colEnd.value_or(last)}, patch, origin);
    selectCurrentCell(surface_);
}

void FontWriter::paintHeading() {
    if (surface_.FixedRows() == 0)
        return;
    const StylePatch font = fontOf(styleOf(Section::Heading, sections_, surface_));
    SetCellFonts(0, font, {.col = 0, .rowEnd = surface_.FixedRows() - 1, .colEnd = {}}, StyleOrigin::Section);
}

void FontWriter::FontsRow(int row, const StylePatch& marks, StyleOrigin origin) {
    const SelectionQuiet quiet(notices_);
    const int last = surface_.Cols() - 1;
    if (last >= 0)
        mark({row, std::min(surface_.FixedCols(), last), row, last}, marks, origin);
    surface_.setFillStyle(1); // stays so, as wanted
    report(QStringLiteral("Row"));
    report(QStringLiteral("Col"));
}

void FontWriter::CellFonts(int row, int col, const StylePatch& marks, StyleOrigin origin) {
    const SelectionQuiet quiet(notices_);
    mark({row, col, row, col}, marks, origin);
    report(QStringLiteral("Row"));
    report(QStringLiteral("Col"));
}

void FontWriter::mark(const CellRange& cells, const StylePatch& marks, StyleOrigin origin) {
    const RedrawOff still(surface_);
    const StylePatch patch{.fontSize = marks.fontSize.value_or(surface_.FontSize()),
                           .bold = marks.bold.value_or(surface_.FontBold()),
                           .italic = marks.italic.value_or(surface_.FontItalic()),
                           .underline = marks.underline.value_or(surface_.FontUnderline()),
                           .strikethru = marks.strikethru.value_or(surface_.FontStrikethru())};
    surface_.applyStyle(cells, patch, origin);
    selectCurrentCell(surface_);
}

/// The control's own setters put the current cell back, and they report it.
void FontWriter::report(const QString& key) {
    events_.notify(key);
    lifetime_.throwIfDestroyed();
}

} // namespace zkp
