#include "surface/grid_surface.h"

#include "base/text.h"
#include "surface/grid_surface_data.h"

#include <algorithm>

namespace zkp {

int GridSurface::MergeCells() const {
    return d->mergeCells;
}

void GridSurface::setMergeCells(int mode) {
    d->mergeCells = mode;
    d->news.changed();
}

bool GridSurface::MergeRow(int row) const {
    d->checkRow(row);
    return d->rows.isMerged(row);
}

void GridSurface::setMergeRow(int row, bool merge) {
    d->checkRow(row);
    d->rows.setMerged(row, merge);
    d->news.changed();
}

CellRange GridSurface::mergedRange(int row, int col, int fromRow, int toRow) const {
    d->checkCell(row, col);
    CellRange block{row, col, row, col};
    const bool down = d->columns.at(col).merge;
    if (d->mergeCells == 0 || (!down && !d->rows.isMerged(row)))
        return block;
    const QString text = d->cells.text(row, col);
    if (isBlank(text))
        return block;
    const auto equal = [&](int otherRow, int otherCol) { return d->cells.text(otherRow, otherCol) == text; };
    const bool fixed = row < d->fixedRows;
    const int first = std::max(fromRow, fixed ? 0 : d->fixedRows);
    const int last = std::min(toRow, (fixed ? d->fixedRows : d->rows.size()) - 1);
    if (down) {
        while (block.top > first && equal(block.top - 1, col))
            --block.top;
        while (block.bottom < last && equal(block.bottom + 1, col))
            ++block.bottom;
        return block;
    }
    while (block.left > 0 && equal(row, block.left - 1))
        --block.left;
    while (block.right < d->columns.size() - 1 && equal(row, block.right + 1))
        ++block.right;
    return block;
}

} // namespace zkp
