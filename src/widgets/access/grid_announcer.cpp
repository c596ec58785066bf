#include "widgets/access/grid_announcer.h"

#include "widgets/access/grid_accessible.h"
#include "widgets/grid/grid_view.h"
#include "widgets/grid/surface_selection.h"

#include <QAccessible>

#include <limits>
#include <utility>

namespace zkp {

namespace {

/// Whether a screen reader is there; the application is told when one comes or goes.
class Listeners : public QAccessible::ActivationObserver {
public:
    Listeners() { QAccessible::installActivationObserver(this); }
    void accessibilityActiveChanged(bool active) override { any_ = active; }
    bool any() const { return any_; }

private:
    bool any_ = QAccessible::isActive();
};

const Listeners& listeners() {
    static const auto* const one = new Listeners; // for as long as the program runs, to its very end
    return *one;
}

void tell(GridView& view, QAccessibleEvent& event) {
    if (view.relays.tellReaders)
        view.relays.tellReaders(event);
    else
        QAccessible::updateAccessibility(&event);
}

void tellReset(GridView& view) {
    GridAccessible::dropCellsOf(view);
    QAccessibleTableModelChangeEvent event(&view, QAccessibleTableModelChangeEvent::ModelReset);
    tell(view, event);
}

void tellCell(GridView& view, CellPlace cell, QAccessible::Event type) {
    const qint64 index = qint64(cell.row) * view.surface()->Cols() + cell.col;
    QAccessibleEvent event(&view, type);
    if (index <= std::numeric_limits<int>::max())
        event.setChild(static_cast<int>(index));
    tell(view, event);
}

void tellSelection(GridView& view, const CellRange& block) {
    if (block.top == block.bottom && block.left == block.right) {
        tellCell(view, {block.top, block.left}, QAccessible::Selection);
        return;
    }
    QAccessibleEvent event(&view, QAccessible::SelectionWithin);
    tell(view, event);
}

} // namespace

GridAnnouncer::GridAnnouncer() {
    listeners();
}

void GridAnnouncer::announce(GridView& view) {
    const GridSurface* surface = view.surface();
    if (!surface || !listeners().any())
        return;
    const Seen now{
        surface->Rows(), surface->Cols(), {surface->Row(), surface->Col()}, selectedBlock(*surface)};
    const std::optional<Seen> before = std::exchange(seen_, now);
    const bool other =
        std::exchange(reloaded_, false) || (before && (before->rows != now.rows || before->cols != now.cols));
    const bool again = std::exchange(refocused_, false);
    if (other)
        tellReset(view);
    const bool hasCell = now.current.row >= 0 && now.current.row < now.rows && now.current.col >= 0 &&
                         now.current.col < now.cols;
    if (!hasCell)
        return;
    if (view.hasFocus() && (other || again || !before || before->current != now.current))
        tellCell(view, now.current, QAccessible::Focus);
    if (before && before->selected != now.selected)
        tellSelection(view, now.selected);
}

void GridAnnouncer::announceNothing(GridView& view) {
    if (listeners().any())
        tellReset(view);
}

} // namespace zkp
