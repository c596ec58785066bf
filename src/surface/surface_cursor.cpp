#include "surface/surface_cursor.h"

#include <algorithm>

namespace zkp {

namespace {

int inside(int index, int count) {
    return std::max(0, std::min(index, count - 1));
}

} // namespace

CellRange SurfaceCursor::selection() const {
    return {std::min(row, rowSel), std::min(col, colSel), std::max(row, rowSel), std::max(col, colSel)};
}

void SurfaceCursor::moveTo(int toRow, int toCol) {
    row = rowSel = toRow;
    col = colSel = toCol;
}

int SurfaceCursor::scrollable(int wanted, int fixed, int count) {
    return std::max(fixed, std::min(wanted, count - 1));
}

void SurfaceCursor::keepInside(const SurfaceShape& shape) {
    row = inside(row, shape.rows);
    rowSel = inside(rowSel, shape.rows);
    col = inside(col, shape.cols);
    colSel = inside(colSel, shape.cols);
    topRow = scrollable(topRow, shape.fixedRows, shape.rows);
    leftCol = scrollable(leftCol, shape.fixedCols, shape.cols);
}

bool SurfaceCursor::isInside(const SurfaceShape& shape) const {
    SurfaceCursor kept = *this;
    kept.keepInside(shape);
    return kept == *this;
}

} // namespace zkp
