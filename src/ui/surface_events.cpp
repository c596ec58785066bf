#include "ui/surface_events.h"

#include "base/error_in_flight.h"
#include "base/number.h"
#include "base/scope_guard.h"
#include "base/texts.h"
#include "core/keep_alive.h"
#include "support/utility.h"

namespace zkp {

namespace {

constexpr int kEndKey = 35;
constexpr int kRightButton = 2;
constexpr int kCtrl = 2;

} // namespace

void SurfaceEvents::connect(const std::weak_ptr<void>& owner) {
    const auto guarded = [this, owner](auto handler) {
        return [this, owner, handler](auto&&... arguments) {
            const std::shared_ptr<void> alive = owner.lock();
            if (!alive || state_.destroyed)
                return;
            const ScopeGuard release([&] {
                if (state_.destroyed)
                    releaseLater(alive); // the surface itself is still at work below
            });
            try {
                handler(arguments...);
            } catch (const ControlDestroyed&) { // whoever moved the surface finds out by itself
            }
        };
    };
    SurfaceNotifications& on = surface_.notifications;
    on.mouseDown = guarded([this](const SurfaceMouse& mouse) { mouseDown(mouse); });
    on.click = guarded([this] { click(); });
    on.dblClick = guarded([this] { Q_EMIT events_.DblClick(); });
    on.keyDown = guarded([this](int& code, int shift) { keyDown(code, shift); });
    // A dropped heading goes back: no column would follow it, and it would stand over another field.
    on.headingDropped = [](int, int) { return false; };
    on.columnResized = guarded([this](int col) { properties_.setColWidth(col, surface_.ColWidth(col)); });
    on.currentCellChanged = guarded([this] { selection_.currentCellChanged(); });
    on.selectionChanged = guarded([this] { selection_.selectionChanged(); });
    on.selectedAgain = guarded([this] { selection_.selectedAgain(); });
    on.scrolled = guarded([this] { selection_.scrolled(); });
    on.visibleRowsGrew = guarded([this] { selection_.visibleRowsGrew(); });
}

void SurfaceEvents::mouseDown(const SurfaceMouse& mouse) {
    try {
        if (mouse.col >= 0) {
            state_.LastClickedCol = mouse.col;
            surface_.setCol(mouse.col);
        }
        if ((mouse.button & kRightButton) == 0 && !preparesHeadingDrag())
            return;
        MouseArgs args{toInt16(mouse.button), toInt16(mouse.shift), mouse.x, mouse.y};
        Q_EMIT events_.MouseDown(args);
    } catch (const ControlDestroyed&) {
        throw;
    } catch (...) {
        ShowError(host_, errorInFlight());
    }
}

/// A left press on a data row, on the heading of a group factor or of the first column after them is
/// not told to the host, as wanted.
bool SurfaceEvents::preparesHeadingDrag() {
    GridSurface::Look look = surface_.look();
    look.Tag.clear();
    const int pressed = state_.LastClickedCol;
    if (state_.TotalForm && surface_.MouseRow() == 0) {
        if (properties_.Colcnt(pressed)) {
            state_.MousePointer = kPointerNoDrop;
            surface_.setLook(look);
            return true;
        }
    } else if (surface_.MouseRow() != 0 || pressed <= state_.GroupFactorCount) {
        surface_.setLook(look);
        return false;
    }
    look.Tag = QString::number(pressed);
    surface_.setLook(look);
    return true;
}

/// The first click on a control that has loaded nothing shows the report's shape.
void SurfaceEvents::click() {
    if (!dictionary_.isOpen())
        emptyReport_.prepare();
    state_.throwIfDestroyed();
    if (surface_.Col() < 0)
        return;
    state_.LastClickedCol = surface_.Col();
    Q_EMIT events_.Click();
}

/// There is no continuation of a load: Ctrl with End only says so.
void SurfaceEvents::keyDown(int code, int shift) {
    if (code == kEndKey && (shift & kCtrl) != 0)
        host_.msgBox(texts::hitBottom());
}

} // namespace zkp
