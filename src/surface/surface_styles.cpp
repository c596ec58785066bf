#include "surface/surface_styles.h"

namespace zkp {

void SurfaceStyles::write(const CellRange& block, const StylePatch& patch, const SurfaceShape& shape,
                          StyleOrigin origin) {
    for (const StylePiece& piece : stylePieces(block, shape))
        writePiece(piece, patch, origin);
}

void SurfaceStyles::writePiece(const StylePiece& piece, const StylePatch& patch, StyleOrigin origin) {
    const CellRange& block = piece.range;
    switch (piece.target) {
    case StyleTarget::Body:
        layers_.writeBody(patch, origin);
        return;
    case StyleTarget::Columns:
        for (int col = block.left; col <= block.right; ++col)
            layers_.writeColumn(columns_.id(col), patch, origin);
        return;
    case StyleTarget::Rows:
    case StyleTarget::Cells:
        break;
    }
    rows_.touch(block.bottom);
    for (int row = block.top; row <= block.bottom; ++row) {
        const RowId id = rows_.id(row);
        if (piece.target == StyleTarget::Rows)
            layers_.writeRow(id, patch, origin);
        else
            for (int col = block.left; col <= block.right; ++col)
                layers_.writeCell(id, columns_.id(col), patch, origin);
    }
}

void SurfaceStyles::writePart(SurfacePart part, const StylePatch& patch) {
    switch (part) {
    case SurfacePart::Whole:
        layers_.writeSurface(patch, StyleOrigin::Section);
        return;
    case SurfacePart::Body:
        layers_.writeBody(patch, StyleOrigin::Section);
        return;
    case SurfacePart::Fixed:
        layers_.writeFixed(patch, StyleOrigin::Section);
        return;
    }
}

BagFont SurfaceStyles::font() const {
    return {own_.fontName, own_.fontSize, own_.bold, own_.italic, own_.underline, own_.strikethru};
}

void SurfaceStyles::setFont(const BagFont& font) {
    StylePatch patch;
    patch.fontName = own_.fontName = font.name;
    patch.fontSize = own_.fontSize = font.size;
    patch.bold = own_.bold = font.bold;
    patch.italic = own_.italic = font.italic;
    patch.underline = own_.underline = font.underline;
    patch.strikethru = own_.strikethru = font.strikethru;
    layers_.writeSurface(patch, StyleOrigin::Section);
}

} // namespace zkp
