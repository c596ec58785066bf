#include "widgets/grid/grid_view.h"

#include "widgets/grid/key_codes.h"

namespace zkp {

namespace {

constexpr int kWidthStep = 8; // pixels a key makes a column wider or narrower, and the narrowest it gets

} // namespace

/// What the mouse does to the whole report and to columns; false for a key that does nothing of it.
bool GridView::commandByKey(int code, int shift) {
    if (code == kKeyA && shift == kCtrl)
        selectAll();
    else if (code == kKeyF10 && shift == kShift)
        openMenu();
    else if ((code == kKeyPageUp || code == kKeyPageDown) && shift == (kCtrl | kShift))
        moveColumn(code == kKeyPageUp ? kKeyLeft : kKeyRight);
    else if ((code == kKeyLeft || code == kKeyRight) && shift == kAlt)
        resizeColumnBy(code == kKeyLeft ? -kWidthStep : kWidthStep);
    else if (code == kKeyDown && shift == kAlt)
        fitCurrentColumn();
    else
        return false;
    return true;
}

void GridView::selectAll() {
    const CellRange body{surface_->FixedRows(), surface_->FixedCols(), surface_->Rows() - 1,
                         surface_->Cols() - 1};
    if (body.top <= body.bottom && body.left <= body.right)
        selectBlock(body);
}

/// The menu key is a right press on the current cell.
void GridView::openMenu() {
    const CellPlace cell{surface_->Row(), surface_->Col()};
    if (!showCell(cell))
        return;
    const QRect shown = page().cellRect(cell.row, cell.col);
    SurfaceMouse mouse = mouseAt(shown.center(), Qt::RightButton, {});
    mouse.row = cell.row;
    mouse.col = cell.col;
    menuPlace_ = viewport()->mapToGlobal(shown.bottomLeft());
    const bool alive = report([&](GridSurface& surface) { surface.userPress(mouse); }) &&
                       report([&](GridSurface& surface) { surface.userRelease(mouse); });
    if (!alive)
        return;
    menuPlace_.reset();
    Q_EMIT reported();
}

void GridView::resizeColumnBy(int pixels) {
    const int col = surface_->Col();
    if (!showCell({surface_->Row(), col}))
        return;
    if (const Span* span = spanOf(page().cols, col))
        resizeTo(col, std::max(kWidthStep, span->size + pixels));
}

void GridView::fitCurrentColumn() {
    const int col = surface_->Col();
    if (showCell({surface_->Row(), col}) && spanOf(page().cols, col))
        fitColumn(col);
}

/// The heading of the current column is dragged to its neighbour, with all that a drag reports.
void GridView::moveColumn(int arrow) {
    const CellPlace from{surface_->Row(), surface_->Col()};
    const std::optional<CellPlace> to = cellByKey(*surface_, from, arrow, 0, 1);
    if (!to || *to == from || surface_->FixedRows() == 0 || !showCell(from))
        return;
    SurfaceMouse mouse = mouseAt(page().cellRect(0, from.col).center(), Qt::LeftButton, {});
    mouse.row = 0;
    mouse.col = from.col;
    if (!report([&](GridSurface& surface) { surface.userPress(mouse); }))
        return;
    const bool mayDrag = surface_->mayDragHeading(from.col);
    mouse.col = to->col;
    if (mayDrag && !report([&](GridSurface& surface) { surface.userMove(mouse); }))
        return;
    if (!report([&](GridSurface& surface) { surface.userRelease(mouse); }))
        return;
    if (mayDrag && from.col < surface_->Cols())
        followColumn(from, *to, mouse);
    else
        Q_EMIT reported();
}

/// The current cell goes with its column, so that the same key moves the column on. Who refuses a drop
/// says nothing: the heading shows it.
void GridView::followColumn(CellPlace from, CellPlace to, const SurfaceMouse& drop) {
    const auto look = [this](int col) {
        return std::pair(surface_->TextMatrix(0, col), surface_->ColWidth(col));
    };
    const auto before = look(from.col);
    if (!dropHeading(from.col, drop))
        return;
    const bool stands = from.row < surface_->Rows() && to.col < surface_->Cols();
    if (stands && look(to.col) == before && look(from.col) != before)
        moveTo({from.row, to.col});
    else
        Q_EMIT reported();
}

void GridView::moveTo(CellPlace cell) {
    if (report([&](GridSurface& surface) { surface.userSelect(cell.row, cell.col); }) && showCell(cell))
        Q_EMIT reported();
}

void GridView::clickCell(CellPlace cell) {
    const bool heading = cell.row < surface_->FixedRows();
    if (!showCell({heading ? surface_->TopRow() : cell.row, cell.col}))
        return;
    SurfaceMouse mouse = mouseAt(page().cellRect(cell.row, cell.col).center(), Qt::LeftButton, {});
    mouse.row = cell.row;
    mouse.col = cell.col;
    const auto select = [&](GridSurface& surface) {
        if (!heading)
            surface.userSelect(cell.row, cell.col);
    };
    if (report([&](GridSurface& surface) { surface.userPress(mouse); }) && report(select) &&
        report([&](GridSurface& surface) { surface.userRelease(mouse); }) &&
        report([&](GridSurface& surface) { surface.userClick(cell.row, cell.col); }))
        Q_EMIT reported();
}

void GridView::selectBlock(const CellRange& block) {
    if (report(
            [&](GridSurface& surface) { surface.Select(block.top, block.left, block.bottom, block.right); }))
        Q_EMIT reported();
}

} // namespace zkp
