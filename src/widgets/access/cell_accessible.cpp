#include "widgets/access/cell_accessible.h"

#include "widgets/access/spoken_cell.h"
#include "widgets/grid/grid_view.h"
#include "widgets/grid/surface_selection.h"

namespace zkp {

CellAccessible::CellAccessible(GridView& view, CellPlace place)
    : view_(&view)
    , place_(place) {}

bool CellAccessible::isValid() const {
    const GridSurface* surface = view_ ? view_->surface() : nullptr;
    return surface && place_.row < surface->Rows() && place_.col < surface->Cols();
}

QWindow* CellAccessible::window() const {
    return view_ ? view_->window()->windowHandle() : nullptr;
}

bool CellAccessible::isHeading() const {
    return place_.row < view_->surface()->FixedRows();
}

QString CellAccessible::text(QAccessible::Text which) const {
    if (!isValid())
        return {};
    if (which == QAccessible::Name)
        return spokenCell(*view_->surface(), place_.row, place_.col);
    if (which == QAccessible::Value)
        return view_->surface()->TextMatrix(place_.row, place_.col);
    return {};
}

QRect CellAccessible::rect() const {
    if (!isValid())
        return {};
    const QRect shown = view_->page().cellRect(place_.row, place_.col);
    return shown.isEmpty() ? QRect() : QRect(view_->viewport()->mapToGlobal(shown.topLeft()), shown.size());
}

QAccessible::Role CellAccessible::role() const {
    return isValid() && isHeading() ? QAccessible::ColumnHeader : QAccessible::Cell;
}

QAccessible::State CellAccessible::state() const {
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    const GridSurface& surface = *view_->surface();
    state.readOnly = true;
    state.disabled = !view_->isEnabled();
    state.invisible = surface.RowHidden(place_.row) || surface.ColHidden(place_.col);
    state.offscreen = view_->page().cellRect(place_.row, place_.col).isEmpty();
    if (isHeading())
        return state;
    state.selectable = true;
    state.focusable = true;
    state.selected = isSelected();
    state.active = place_ == CellPlace{surface.Row(), surface.Col()};
    state.focused = state.active && view_->hasFocus();
    return state;
}

void* CellAccessible::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TableCellInterface)
        return static_cast<QAccessibleTableCellInterface*>(this);
    if (type == QAccessible::ActionInterface)
        return static_cast<QAccessibleActionInterface*>(this);
    return nullptr;
}

bool CellAccessible::isSelected() const {
    if (!isValid())
        return false;
    const CellRange block = selectedBlock(*view_->surface());
    return place_.row >= block.top && place_.row <= block.bottom && place_.col >= block.left &&
           place_.col <= block.right;
}

QList<QAccessibleInterface*> CellAccessible::columnHeaderCells() const {
    QAccessibleInterface* grid = table();
    if (!isValid() || !grid || isHeading() || view_->surface()->FixedRows() == 0)
        return {};
    return {grid->tableInterface()->cellAt(0, place_.col)};
}

QAccessibleInterface* CellAccessible::table() const {
    return view_ ? QAccessible::queryAccessibleInterface(view_) : nullptr;
}

QStringList CellAccessible::actionNames() const {
    if (!isValid())
        return {};
    return isHeading() ? QStringList{pressAction()} : QStringList{setFocusAction(), pressAction()};
}

/// Nothing of the cell is touched after the call, in which it may go away.
void CellAccessible::doAction(const QString& name) {
    if (!actionNames().contains(name))
        return;
    if (name == pressAction())
        view_->clickCell(place_);
    else
        view_->moveTo(place_);
}

} // namespace zkp
