#include "surface/grid_surface.h"

#include "surface/grid_surface_data.h"

#include <algorithm>

namespace zkp {

int GridSurface::MouseRow() const {
    return d->mouseRow;
}

int GridSurface::MouseCol() const {
    return d->mouseCol;
}

#define ZKP_MOUSE(Name, notification)                                                                        \
    void GridSurface::Name(const SurfaceMouse& mouse) {                                                      \
        d->mouseRow = mouse.row;                                                                             \
        d->mouseCol = mouse.col;                                                                             \
        Data::raise(notifications.notification, mouse);                                                      \
    }
ZKP_GRIDSURFACE_MOUSE(ZKP_MOUSE)
#undef ZKP_MOUSE

void GridSurface::userClick(int row, int col) {
    d->mouseRow = row;
    d->mouseCol = col;
    Data::raise(notifications.click);
}

void GridSurface::userDblClick(int row, int col) {
    d->mouseRow = row;
    d->mouseCol = col;
    Data::raise(notifications.dblClick);
}

void GridSurface::userKey(int code, int shift) {
    Data::raise(notifications.keyDown, code, shift);
}

void GridSurface::userKeyUp(int code, int shift) {
    Data::raise(notifications.keyUp, code, shift);
}

void GridSurface::userChar(int ascii) {
    Data::raise(notifications.keyPress, ascii);
}

void GridSurface::userSelect(int row, int col) {
    const int rows = d->rows.size();
    const int cols = d->columns.size();
    if (rows == 0 || cols == 0)
        return;
    SurfaceCursor next = d->cursor;
    next.moveTo(std::clamp(row, 0, rows - 1), std::clamp(col, 0, cols - 1));
    if (next == d->cursor)
        Data::raise(notifications.selectedAgain);
    else
        d->moveCursor(next);
}

void GridSurface::userScroll(int topRow, int leftCol) {
    SurfaceCursor next = d->cursor;
    next.topRow = SurfaceCursor::scrollable(topRow, d->fixedRows, d->rows.size());
    next.leftCol = SurfaceCursor::scrollable(leftCol, d->fixedCols, d->columns.size());
    d->moveCursor(next);
}

void GridSurface::userResizeColumn(int col, int twips) {
    if (col == -1) {
        for (int c = 0; c < Cols(); ++c)
            if (!d->columns.at(c).hidden)
                d->columns.at(c).width = std::max(0, twips);
        d->news.changed();
    } else {
        setColWidth(col, std::max(0, twips));
    }
    Data::raise(notifications.columnResized, col);
}

bool GridSurface::mayDragHeading(int col) const {
    const auto mayDrag = notifications.mayDragHeading;
    return !mayDrag || mayDrag(col);
}

void GridSurface::userDrop(int from, int to) {
    const auto isOutside = [this](int col) { return col < 0 || col >= Cols(); };
    if (isOutside(from) || isOutside(to))
        return;
    const auto accepts = notifications.headingDropped;
    if (accepts && !accepts(from, to))
        return;
    setColPosition(from, to); // checked again: the listener may have changed Cols
}

} // namespace zkp
