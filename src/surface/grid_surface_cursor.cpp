#include "surface/grid_surface.h"

#include "surface/grid_surface_data.h"

#include <algorithm>

namespace zkp {

/// The cursor stands at its new place before anybody hears of it, so that a listener may move it on.
void GridSurface::Data::moveCursor(const SurfaceCursor& next) {
    const SurfaceCursor old = cursor;
    if (next == old)
        return;
    cursor = next;
    const bool scrolling = next.topRow != old.topRow || next.leftCol != old.leftCol;
    const bool current = next.row != old.row || next.col != old.col;
    const bool selected = current || next.rowSel != old.rowSel || next.colSel != old.colSel;
    if (selected)
        news.changed();
    else if (scrolling)
        news.scrolled();
    if (scrolling)
        raise(surface.notifications.scrolled);
    if (current)
        raise(surface.notifications.currentCellChanged);
    if (selected)
        raise(surface.notifications.selectionChanged);
}

#define ZKP_READ(Type, Name, member)                                                                         \
    Type GridSurface::Name() const {                                                                         \
        return d->cursor.member;                                                                             \
    }
ZKP_GRIDSURFACE_CURSOR(ZKP_READ)
#undef ZKP_READ

void GridSurface::setRow(int row) {
    d->checkRow(row);
    SurfaceCursor next = d->cursor;
    next.moveTo(row, next.col);
    d->moveCursor(next);
}

void GridSurface::setCol(int col) {
    d->checkCol(col);
    SurfaceCursor next = d->cursor;
    next.moveTo(next.row, col);
    d->moveCursor(next);
}

void GridSurface::setRowSel(int row) {
    d->checkRow(row);
    SurfaceCursor next = d->cursor;
    next.rowSel = row;
    d->moveCursor(next);
}

void GridSurface::setColSel(int col) {
    d->checkCol(col);
    SurfaceCursor next = d->cursor;
    next.colSel = col;
    d->moveCursor(next);
}

void GridSurface::Select(int row, int col, int rowSel, int colSel) {
    d->checkCell(row, col);
    SurfaceCursor next = d->cursor;
    next.moveTo(row, col);
    if (rowSel != -1) {
        d->checkRow(rowSel);
        next.rowSel = rowSel;
    }
    if (colSel != -1) {
        d->checkCol(colSel);
        next.colSel = colSel;
    }
    d->moveCursor(next);
}

CellRange GridSurface::selection() const {
    return d->cursor.selection();
}

void GridSurface::setTopRow(int row) {
    if (row != d->cursor.topRow) // with no body row it stands one past the last row
        d->checkRow(row);
    SurfaceCursor next = d->cursor;
    next.topRow = SurfaceCursor::scrollable(row, d->fixedRows, d->rows.size());
    d->moveCursor(next);
}

void GridSurface::setLeftCol(int col) {
    if (col != d->cursor.leftCol)
        d->checkCol(col);
    SurfaceCursor next = d->cursor;
    next.leftCol = SurfaceCursor::scrollable(col, d->fixedCols, d->columns.size());
    d->moveCursor(next);
}

int GridSurface::BottomRow() const {
    const int last = d->rows.size() - 1;
    if (d->visibleRows == 0)
        return last;
    return static_cast<int>(
        std::min<std::int64_t>(last, std::int64_t{d->cursor.topRow} + d->visibleRows - 1));
}

bool GridSurface::RowIsVisible(int row) const {
    d->checkRow(row);
    if (RowHidden(row))
        return false;
    return row < d->fixedRows || (row >= d->cursor.topRow && row <= BottomRow());
}

int GridSurface::VisibleRows() const {
    return d->visibleRows;
}

void GridSurface::setVisibleRows(int rows) {
    const int bottom = BottomRow();
    d->visibleRows = std::max(0, rows);
    if (BottomRow() > bottom)
        Data::raise(notifications.visibleRowsGrew);
}

} // namespace zkp
