#include "widgets/grid/grid_view.h"

#include "widgets/grid/full_text_tip.h"
#include "widgets/grid/key_codes.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QMouseEvent>

namespace zkp {

namespace {

constexpr int kScrollInterval = 50; // milliseconds between two rows while a selection is dragged outside

} // namespace

CellPlace GridView::cellAt(QPoint at) {
    const PageLayout& shown = page();
    const Span* row = spanAt(shown.rows, at.y());
    const Span* col = spanAt(shown.cols, at.x());
    return {row ? row->index : -1, col ? col->index : -1};
}

bool GridView::viewportEvent(QEvent* event) {
    return (event->type() == QEvent::ToolTip && showWholeText(*static_cast<QHelpEvent*>(event))) ||
           QAbstractScrollArea::viewportEvent(event);
}

/// False where nothing is cut.
bool GridView::showWholeText(const QHelpEvent& event) {
    if (!surface_)
        return false;
    const PageLayout& shown = page();
    const Span* row = spanAt(shown.rows, event.y());
    const Span* col = spanAt(shown.cols, event.x());
    if (!row || !col || !painter_.isCut({*surface_, shown, palette(), hasFocus()}, *row, *col))
        return false;
    showFullText(event, *viewport(), shown.cellRect(row->index, col->index),
                 surface_->TextMatrix(row->index, col->index));
    return true;
}

SurfaceMouse GridView::mouseAt(QPoint at, Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers) {
    const CellPlace cell = cellAt(at);
    return {mouseButtons(buttons),
            shiftBits(modifiers),
            scale_.twips(at.x()),
            scale_.twips(at.y()),
            cell.row,
            cell.col};
}

void GridView::mousePressEvent(QMouseEvent* event) {
    if (!surface_)
        return;
    const QPoint at = event->position().toPoint();
    const bool left = event->button() == Qt::LeftButton;
    if (const Span* border = left ? resizableAt(at) : nullptr) {
        gesture_.pressBorder(*border, at.x());
        viewport()->update();
        return;
    }
    const SurfaceMouse mouse = mouseAt(at, event->button(), event->modifiers());
    const CellPlace anchor{surface_->Row(), surface_->Col()};
    const bool heading = mouse.row >= 0 && mouse.row < surface_->FixedRows();
    pressed_ = left ? CellPlace{mouse.row, mouse.col} : CellPlace{-1, -1};
    if (!report([&](GridSurface& surface) { surface.userPress(mouse); }))
        return;
    currentCol_ = surface_->Col(); // a second click must find what the first one found
    if (left && heading && mouse.col >= 0)
        pressHeading(mouse.col, at);
    const QPointer<GridView> self(this);
    if (left && !heading && mouse.row >= 0 && mouse.col >= 0)
        startSelecting({mouse.row, mouse.col}, anchor, event->modifiers().testFlag(Qt::ShiftModifier));
    if (self)
        Q_EMIT reported();
}

void GridView::startSelecting(CellPlace cell, CellPlace anchor, bool extend) {
    selecting_ = true;
    if (cell.row >= surface_->Rows() || cell.col >= surface_->Cols())
        return; // a listener took them away
    const bool alive = report([&](GridSurface& surface) {
        if (extend && anchor.row < surface.Rows() && anchor.col < surface.Cols())
            surface.Select(anchor.row, anchor.col, cell.row, cell.col);
        else if (cell == anchor || cell != CellPlace{surface.Row(), surface.Col()})
            surface.userSelect(cell.row, cell.col); // unless the press itself has moved there
    });
    if (alive)
        showCell(cell);
}

void GridView::mouseMoveEvent(QMouseEvent* event) {
    if (!surface_)
        return;
    const QPoint at = event->position().toPoint();
    const bool left = event->buttons().testFlag(Qt::LeftButton);
    if (gesture_.isResizing()) {
        dragHeading(at);
        return;
    }
    if (!left && gesture_.isDragging())
        endGesture(); // the button was released where nobody heard of it
    const SurfaceMouse mouse = mouseAt(at, event->buttons(), event->modifiers());
    if (!report([&](GridSurface& surface) { surface.userMove(mouse); }))
        return;
    if (left)
        dragHeading(at);
    showCursor(at);
    const QPointer<GridView> self(this);
    if (left && selecting_)
        extendSelection(at);
    if (self)
        Q_EMIT reported();
}

/// Beyond the page's edge the selection goes on by one row or column, and on and on by the timer.
void GridView::extendSelection(QPoint at) {
    const PageLayout& shown = page();
    if (shown.shownRows() == 0 || shown.cols.empty())
        return;
    const int bodyTop = shown.bodyTop();
    const bool above = at.y() < bodyTop;
    const bool below = at.y() >= shown.size.height();
    const bool before = at.x() < 0;
    const bool behind = at.x() >= shown.size.width();
    CellPlace to = cellAt(at);
    if (above)
        to.row = surface_->TopRow() - 1;
    else if (to.row < 0)
        to.row = shown.rows.back().index + (below ? 1 : 0);
    if (before)
        to.col = surface_->LeftCol() - 1;
    else if (to.col < 0)
        to.col = shown.cols.back().index + (behind ? 1 : 0);
    if (above || below || before || behind) {
        if (!scrollTimer_.isActive())
            scrollTimer_.start(kScrollInterval, this);
    } else {
        scrollTimer_.stop();
    }
    to.row = std::clamp(to.row, surface_->FixedRows(), surface_->Rows() - 1);
    to.col = std::clamp(to.col, std::min(surface_->FixedCols(), surface_->Cols() - 1), surface_->Cols() - 1);
    if (to == CellPlace{surface_->RowSel(), surface_->ColSel()})
        return;
    if (report([&](GridSurface& surface) { surface.Select(surface.Row(), surface.Col(), to.row, to.col); }))
        showCell(to);
}

void GridView::timerEvent(QTimerEvent* event) {
    if (event->timerId() != scrollTimer_.timerId()) {
        QAbstractScrollArea::timerEvent(event);
        return;
    }
    if (surface_ && gesture_.isDragging()) {
        scrollDrag();
        return;
    }
    if (!surface_ || !selecting_ || !(QApplication::mouseButtons() & Qt::LeftButton)) {
        scrollTimer_.stop();
        return;
    }
    extendSelection(viewport()->mapFromGlobal(QCursor::pos()));
}

void GridView::mouseReleaseEvent(QMouseEvent* event) {
    if (!surface_)
        return;
    scrollTimer_.stop();
    if (gesture_.isResizing()) {
        finishResize();
        return;
    }
    const QPoint at = event->position().toPoint();
    const SurfaceMouse mouse = mouseAt(at, event->button(), event->modifiers());
    const ColumnGesture gesture = gesture_;
    const CellPlace pressed = pressed_;
    endGesture();
    pressed_ = {-1, -1};
    selecting_ = false;
    if (!report([&](GridSurface& surface) { surface.userRelease(mouse); }))
        return;
    bool alive = true;
    if (gesture.isDragging()) {
        alive = dropHeading(gesture.column(), mouse);
    } else if (event->button() == Qt::LeftButton && pressed.row >= 0 &&
               pressed == CellPlace{mouse.row, mouse.col}) {
        alive = report([&](GridSurface& surface) { surface.userClick(pressed.row, pressed.col); });
    }
    if (alive)
        Q_EMIT reported();
}

void GridView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (!surface_)
        return;
    const QPoint at = event->position().toPoint();
    pressed_ = {-1, -1}; // the release after it is no second click
    if (event->button() != Qt::LeftButton)
        return;
    if (const Span* border = resizableAt(at)) {
        fitColumn(border->index);
        return;
    }
    const CellPlace cell = cellAt(at);
    if (report([&](GridSurface& surface) { surface.userDblClick(cell.row, cell.col); }))
        Q_EMIT reported();
}

void GridView::contextMenuEvent(QContextMenuEvent* event) {
    event->accept();
    if (surface_ && event->reason() == QContextMenuEvent::Keyboard)
        openMenu();
}

} // namespace zkp
