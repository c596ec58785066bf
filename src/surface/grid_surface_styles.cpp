#include "surface/grid_surface.h"

#include "surface/grid_surface_data.h"

#include <algorithm>

namespace zkp {

void GridSurface::applyStyle(const CellRange& range, const StylePatch& patch, StyleOrigin origin) {
    const CellRange block{std::min(range.top, range.bottom), std::min(range.left, range.right),
                          std::max(range.top, range.bottom), std::max(range.left, range.right)};
    d->checkRow(block.top);
    d->checkRow(block.bottom);
    d->checkCol(block.left);
    d->checkCol(block.right);
    for (const StylePiece& piece : stylePieces(block, d->shape()))
        d->applyPiece(piece, patch, origin);
    if (block.top == block.bottom)
        d->rowChanged(block.top);
    else
        d->changed();
}

void GridSurface::Data::applyPiece(const StylePiece& piece, const StylePatch& patch, StyleOrigin origin) {
    const CellRange& block = piece.range;
    switch (piece.target) {
    case StyleTarget::Body:
        styles.writeBody(patch, origin);
        return;
    case StyleTarget::Columns:
        for (int col = block.left; col <= block.right; ++col)
            styles.writeColumn(columns.id(col), patch, origin);
        return;
    case StyleTarget::Rows:
    case StyleTarget::Cells:
        break;
    }
    touch(block.bottom);
    for (int row = block.top; row <= block.bottom; ++row) {
        const RowId id = order.at(row);
        if (piece.target == StyleTarget::Rows)
            styles.writeRow(id, patch, origin);
        else
            for (int col = block.left; col <= block.right; ++col)
                styles.writeCell(id, columns.id(col), patch, origin);
    }
}

CellStyle GridSurface::styleAt(int row, int col) const {
    const RowId id = d->idOf(row);
    d->checkCol(col);
    return d->styles.resolve(id, d->columns.id(col), row < d->fixedRows, col < d->fixedCols);
}

MarkedStyle GridSurface::markedStyleAt(int row, int col) const {
    const RowId id = d->idOf(row);
    d->checkCol(col);
    return d->styles.resolveMarked(id, d->columns.id(col), row < d->fixedRows, col < d->fixedCols);
}

// --- The current cell or the selected block

// Each pair reads the current cell and writes one attribute of what `FillStyle` says.
#define ZKP_CELL_ATTRIBUTE(Name, Type, Argument, member)                                                     \
    Type GridSurface::Name() const {                                                                         \
        return styleAt(d->cursor.row, d->cursor.col).member;                                                 \
    }                                                                                                        \
    void GridSurface::set##Name(Argument value) {                                                            \
        StylePatch patch;                                                                                    \
        patch.member = value;                                                                                \
        applyStyle(d->filledBlock(), patch);                                                                 \
    }

ZKP_CELL_ATTRIBUTE(CellBackColor, Color, Color, backColor)
ZKP_CELL_ATTRIBUTE(CellForeColor, Color, Color, foreColor)
ZKP_CELL_ATTRIBUTE(CellFontName, QString, const QString&, fontName)
ZKP_CELL_ATTRIBUTE(CellFontSize, double, double, fontSize)
ZKP_CELL_ATTRIBUTE(CellFontBold, bool, bool, bold)
ZKP_CELL_ATTRIBUTE(CellFontItalic, bool, bool, italic)
ZKP_CELL_ATTRIBUTE(CellFontUnderline, bool, bool, underline)
ZKP_CELL_ATTRIBUTE(CellFontStrikeThrough, bool, bool, strikethru)
#undef ZKP_CELL_ATTRIBUTE

// --- The surface's own colours and font

// Each pair reads what was set here last, and writes it over a whole layer.
#define ZKP_LAYER_ATTRIBUTE(Name, Type, Argument, stored, member, write)                                     \
    Type GridSurface::Name() const {                                                                         \
        return d->stored;                                                                                    \
    }                                                                                                        \
    void GridSurface::set##Name(Argument value) {                                                            \
        d->stored = value;                                                                                   \
        StylePatch patch;                                                                                    \
        patch.member = value;                                                                                \
        d->styles.write(patch, StyleOrigin::Section);                                                        \
        d->changed();                                                                                        \
    }

ZKP_LAYER_ATTRIBUTE(BackColor, Color, Color, own.backColor, backColor, writeBody)
ZKP_LAYER_ATTRIBUTE(ForeColor, Color, Color, own.foreColor, foreColor, writeBody)
ZKP_LAYER_ATTRIBUTE(BackColorFixed, Color, Color, fixedBack, backColor, writeFixed)
ZKP_LAYER_ATTRIBUTE(ForeColorFixed, Color, Color, fixedFore, foreColor, writeFixed)
ZKP_LAYER_ATTRIBUTE(FontName, QString, const QString&, own.fontName, fontName, writeSurface)
ZKP_LAYER_ATTRIBUTE(FontSize, double, double, own.fontSize, fontSize, writeSurface)
ZKP_LAYER_ATTRIBUTE(FontBold, bool, bool, own.bold, bold, writeSurface)
ZKP_LAYER_ATTRIBUTE(FontItalic, bool, bool, own.italic, italic, writeSurface)
ZKP_LAYER_ATTRIBUTE(FontUnderline, bool, bool, own.underline, underline, writeSurface)
ZKP_LAYER_ATTRIBUTE(FontStrikethru, bool, bool, own.strikethru, strikethru, writeSurface)
#undef ZKP_LAYER_ATTRIBUTE

BagFont GridSurface::Font() const {
    const CellStyle& own = d->own;
    return {own.fontName, own.fontSize, own.bold, own.italic, own.underline, own.strikethru};
}

void GridSurface::setFont(const BagFont& font) {
    StylePatch patch;
    patch.fontName = d->own.fontName = font.name;
    patch.fontSize = d->own.fontSize = font.size;
    patch.bold = d->own.bold = font.bold;
    patch.italic = d->own.italic = font.italic;
    patch.underline = d->own.underline = font.underline;
    patch.strikethru = d->own.strikethru = font.strikethru;
    d->styles.writeSurface(patch, StyleOrigin::Section);
    d->changed();
}

} // namespace zkp
