#include "widgets/grid/grid_view.h"

#include "widgets/grid/key_codes.h"

#include <QInputMethodEvent>
#include <QKeyEvent>

#include <utility>

namespace zkp {

void GridView::keyPressEvent(QKeyEvent* event) {
    int code = keyCode(event->key());
    const int shift = shiftBits(event->modifiers());
    if (code == kKeyEscape && gesture_.isActive()) {
        endGesture();
        return;
    }
    event->ignore(); // what the surface has no use for is the form's
    if (!surface_)
        return;
    if (code != 0 && relays.keyDown) {
        const auto relay = relays.keyDown;
        if (!report([&](GridSurface&) { code = relay(code, shift); }))
            return;
    }
    if (code != 0 && !report([&](GridSurface& surface) { surface.userKey(code, shift); }))
        return;
    const QPointer<GridView> self(this);
    if (commandByKey(code, shift) || (self && surface_ && moveByKey(code, shift)))
        event->accept();
    if (self && surface_ && !reportText(event->text()))
        return;
    if (self)
        Q_EMIT reported();
}

void GridView::keyReleaseEvent(QKeyEvent* event) {
    event->ignore();
    const int code = keyCode(event->key());
    if (code != 0 && !event->isAutoRepeat())
        report([&](GridSurface& surface) { surface.userKeyUp(code, shiftBits(event->modifiers())); });
}

void GridView::inputMethodEvent(QInputMethodEvent* event) {
    const QString typed = event->commitString();
    event->accept();
    reportText(typed);
}

QVariant GridView::inputMethodQuery(Qt::InputMethodQuery query) const {
    return query == Qt::ImEnabled ? QVariant(true) : QAbstractScrollArea::inputMethodQuery(query);
}

bool GridView::reportText(const QString& text) {
    for (const QChar c : text)
        if (!reportChar(c.unicode()))
            return false;
    return true;
}

bool GridView::reportChar(int ascii) {
    if (relays.keyPress) {
        const auto relay = relays.keyPress;
        if (!report([&](GridSurface&) { ascii = relay(ascii); }))
            return false;
    }
    return ascii == 0 || report([&](GridSurface& surface) { surface.userChar(ascii); });
}

/// True for a key that moves, also when there is nowhere to go: it must not reach the form then.
bool GridView::moveByKey(int code, int shift) {
    const bool extend = (shift & kShift) != 0;
    const CellPlace from = extend ? CellPlace{surface_->RowSel(), surface_->ColSel()}
                                  : CellPlace{surface_->Row(), surface_->Col()};
    const int rows = std::max(1, page().wholeRows() - 1);
    const std::optional<CellPlace> to = cellByKey(*surface_, from, code, shift, rows);
    if (!to || (shift & kAlt) != 0)
        return false;
    const bool stays = *to == from && *to == CellPlace{surface_->RowSel(), surface_->ColSel()};
    const bool alive = stays || report([&](GridSurface& surface) {
                           if (extend)
                               surface.Select(surface.Row(), surface.Col(), to->row, to->col);
                           else
                               surface.userSelect(to->row, to->col);
                       });
    if (alive)
        showCell(*to);
    return true;
}

bool GridView::showCell(CellPlace cell) {
    const PageLayout& shown = page();
    const int top = firstToShow(shown.rowAxis, cell.row);
    const int left = firstToShow(shown.colAxis, cell.col);
    if (top == surface_->TopRow() && left == surface_->LeftCol())
        return true;
    // One direction after the other: of a move in both, a listener takes note of the one to the side alone.
    return report([&](GridSurface& surface) { surface.userScroll(top, surface.LeftCol()); }) &&
           report([&](GridSurface& surface) { surface.userScroll(surface.TopRow(), left); });
}

/// A command has moved the current cell to another column, which is then looked for. Where a user is at
/// work with the mouse, nothing moves away under the pointer.
bool GridView::followCurrentColumn() {
    const int col = surface_->Col();
    const std::optional<int> before = std::exchange(currentCol_, col);
    const bool byMouse = selecting_ || gesture_.isPressed() || gesture_.isActive();
    if (!before || *before == col || byMouse || col >= surface_->Cols() || surface_->ColHidden(col))
        return true;
    const int left = firstToShow(page().colAxis, col);
    return left == surface_->LeftCol() ||
           report([&](GridSurface& surface) { surface.userScroll(surface.TopRow(), left); });
}

} // namespace zkp
