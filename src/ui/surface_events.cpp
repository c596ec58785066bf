#include "ui/surface_events.h"

#include "base/texts.h"
#include "core/keep_alive.h"

namespace zkp {

namespace {

constexpr int kEndKey = 35;
constexpr int kCtrl = 2;

} // namespace

void SurfaceEvents::connect(const std::weak_ptr<void>& owner) {
    const auto guarded = [this, owner](auto handler) {
        return [this, owner, handler](auto&&... arguments) {
            const std::shared_ptr<void> alive = owner.lock();
            if (!alive || state_.destroyed)
                return;
            handler(arguments...);
            if (state_.destroyed)
                releaseLater(alive); // the surface itself is still at work below
        };
    };
    SurfaceNotifications& on = surface_.notifications;
    on.click = guarded([this] { click(); });
    on.dblClick = guarded([this] { Q_EMIT events_.DblClick(); });
    on.keyDown = guarded([this](int& code, int shift) { keyDown(code, shift); });
    on.columnResized = guarded([this](int col) { properties_.setColWidth(col, surface_.ColWidth(col)); });
}

void SurfaceEvents::click() {
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
