#include "core/cell_fonts.h"

#include "core/paint_scopes.h"

#include <algorithm>

namespace zkp {

void FontWriter::SetCellFonts(int row, const CellFont& font, const Block& block) {
    if (row < 0 || row >= surface_.Rows() || surface_.Cols() == 0)
        return;
    const int last = surface_.Cols() - 1;
    const int left = block.col.value_or(row > 0 ? state_.GroupFactorCount : 0);
    if (!block.col && left > last)
        return; // all columns are group factors
    StylePatch patch;
    patch.fontName = font.name;
    patch.fontSize = font.size;
    patch.bold = font.bold;
    patch.italic = font.italic;
    patch.underline = font.underline;

    const RedrawOff still(surface_);
    const SelectionQuiet quiet(state_);
    surface_.applyStyle({row, left, block.rowEnd.value_or(row), block.colEnd.value_or(last)}, patch);
    selectCurrentCell(surface_);
}

void FontWriter::paintHeading() {
    if (surface_.FixedRows() == 0)
        return;
    const CellFont font{state_.FixedFontName, state_.FixedFontSize, state_.FixedFontBold,
                        state_.FixedFontItalic, state_.FixedFontUnderline};
    SetCellFonts(0, font, {0, surface_.FixedRows() - 1, {}});
}

void FontWriter::FontsRow(int row, const FontMarks& marks) {
    const SelectionQuiet quiet(state_);
    const int last = surface_.Cols() - 1;
    if (last >= 0)
        mark({row, std::min(surface_.FixedCols(), last), row, last}, marks);
    surface_.setFillStyle(1); // stays so, as wanted
    report(QStringLiteral("Row"));
    report(QStringLiteral("Col"));
}

void FontWriter::CellFonts(int row, int col, const FontMarks& marks) {
    const SelectionQuiet quiet(state_);
    mark({row, col, row, col}, marks);
    report(QStringLiteral("Row"));
    report(QStringLiteral("Col"));
}

void FontWriter::mark(const CellRange& cells, const FontMarks& marks) {
    const RedrawOff still(surface_);
    StylePatch patch;
    patch.fontSize = marks.size.value_or(surface_.FontSize());
    patch.underline = marks.underline.value_or(surface_.FontUnderline());
    patch.bold = marks.bold.value_or(surface_.FontBold());
    patch.italic = marks.italic.value_or(surface_.FontItalic());
    patch.strikethru = marks.strikethru.value_or(surface_.FontStrikethru());
    surface_.applyStyle(cells, patch);
    selectCurrentCell(surface_);
}

/// The control's own setters put the current cell back, and they report it.
void FontWriter::report(const QString& key) {
    events_.notify(key);
    state_.throwIfDestroyed();
}

} // namespace zkp
