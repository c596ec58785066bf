#include "surface/style_pieces.h"

#include <algorithm>

namespace zkp {

namespace {

StylePiece rowsOrCells(const CellRange& block, const SurfaceShape& shape) {
    const bool wide = block.left == 0 && block.right == shape.cols - 1;
    return {wide ? StyleTarget::Rows : StyleTarget::Cells, block};
}

/// All body rows of the block's columns.
void addTallPieces(std::vector<StylePiece>& pieces, const CellRange& block, const SurfaceShape& shape) {
    const bool wholeBody = block.left <= shape.fixedCols && block.right == shape.cols - 1;
    if (!wholeBody || shape.fixedCols == shape.cols) {
        pieces.push_back({StyleTarget::Columns, block});
        return;
    }
    pieces.push_back({StyleTarget::Body, {block.top, shape.fixedCols, block.bottom, block.right}});
    if (block.left < shape.fixedCols)
        pieces.push_back({StyleTarget::Columns, {block.top, block.left, block.bottom, shape.fixedCols - 1}});
}

} // namespace

std::vector<StylePiece> stylePieces(const CellRange& block, const SurfaceShape& shape) {
    std::vector<StylePiece> pieces;
    if (block.top < shape.fixedRows) {
        const int bottom = std::min(block.bottom, shape.fixedRows - 1);
        pieces.push_back(rowsOrCells({block.top, block.left, bottom, block.right}, shape));
    }
    const CellRange body{std::max(block.top, shape.fixedRows), block.left, block.bottom, block.right};
    if (body.top > body.bottom)
        return pieces;
    const bool tall = body.top == shape.fixedRows && body.bottom == shape.rows - 1 && body.top < body.bottom;
    if (tall)
        addTallPieces(pieces, body, shape);
    else
        pieces.push_back(rowsOrCells(body, shape));
    return pieces;
}

} // namespace zkp
