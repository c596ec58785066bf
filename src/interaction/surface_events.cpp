#include "interaction/surface_events.h"

#include "base/number.h"
#include "base/texts/rows.h"
#include "interaction/menu_table.h"
#include "interaction/owner_guard.h"

namespace zkp {

namespace {

constexpr int kEndKey = 35;
constexpr int kRightButton = 2;
constexpr int kCtrl = 2;

} // namespace

void SurfaceEvents::connect(const std::weak_ptr<void>& owner) {
    const auto guarded = [&](auto handler) { return guardedBy(owner, lifetime_, handler); };
    SurfaceNotifications& on = surface_.notifications;
    on.mouseDown = guarded([this](const SurfaceMouse& mouse) { reporting_.run([&] { mouseDown(mouse); }); });
    on.mouseMove =
        guarded([this](const SurfaceMouse& mouse) { reporting_.run([&] { drag_.showPointer(mouse); }); });
    on.click = guarded([this] { click(); });
    on.dblClick = guarded([this] { Q_EMIT events_.DblClick(); });
    on.keyDown = guarded([this](int& code, int shift) { reporting_.run([&] { keyDown(code, shift); }); });
    on.mayDragHeading = [owner, this](int col) {
        const std::shared_ptr<void> alive = owner.lock();
        return alive && !lifetime_.destroyed && drag_.mayDrag(col);
    };
    on.headingDropped = [drop = guarded([this](int from, int to) { drag_.drop(from, to); })](int from,
                                                                                             int to) {
        drop(from, to);
        return false; // what was to be moved has been moved
    };
    on.columnResized = guarded([this](int col) { columnResized(col); });
    on.currentCellChanged = guarded([this] { selection_.currentCellChanged(); });
    on.selectionChanged = guarded([this] { selection_.selectionChanged(); });
    on.selectedAgain = guarded([this] { selection_.selectedAgain(); });
    on.scrolled = guarded([this] { selection_.scrolled(); });
    on.visibleRowsGrew = guarded([this] { selection_.visibleRowsGrew(); });
}

void SurfaceEvents::mouseDown(const SurfaceMouse& mouse) {
    if (mouse.col >= 0) {
        clicked_.take(mouse.col);
        surface_.setCol(mouse.col);
        lifetime_.throwIfDestroyed();
    }
    if (!isPressTold(mouse))
        return;
    lifetime_.throwIfDestroyed();
    MouseArgs args{toInt16(mouse.button), toInt16(mouse.shift), mouse.x, mouse.y};
    Q_EMIT events_.MouseDown(args);
}

/// Whether the host is to hear of the press, after it has opened the menu or prepared a drag.
bool SurfaceEvents::isPressTold(const SurfaceMouse& mouse) {
    if ((mouse.button & kRightButton) != 0) {
        menuState_.MenuRefresh();
        menu_.popup(QStringView(bands::kContext));
        return true;
    }
    if (!tools_.MenusLocked)
        return drag_.prepare();
    setters_.setMousePointer(kPointerNoDrop);
    return true;
}

/// The first click on a control that has loaded nothing shows the report's shape. The chart follows a
/// click on a group factor, or on the first column after them.
void SurfaceEvents::click() {
    if (!dictionary_.isOpen())
        reporting_.run([this] { emptyReport_.prepare(); });
    lifetime_.throwIfDestroyed();
    const int col = surface_.Col();
    if (col < 0)
        return;
    clicked_.take(col);
    if (face_.GraphVisible && col <= grouping_.GroupFactorCount && showChart_)
        showChart_();
    lifetime_.throwIfDestroyed();
    Q_EMIT events_.Click();
}

/// There is no continuation of a load: Ctrl with End only says so.
void SurfaceEvents::keyDown(int code, int shift) {
    if (code == kEndKey && (shift & kCtrl) != 0)
        boxes_.msgBox(texts::hitBottom());
}

void SurfaceEvents::columnResized(int col) {
    if (col < 0)
        drag_.saveWidths();
    else if (drag_.exists(col))
        properties_.setColWidth(col, surface_.ColWidth(col));
}

} // namespace zkp
