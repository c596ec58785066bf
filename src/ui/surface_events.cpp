#include "ui/surface_events.h"

#include "base/texts.h"

namespace zkp {

namespace {

constexpr int kEndKey = 35;
constexpr int kCtrl = 2;

} // namespace

void SurfaceEvents::connect() {
    SurfaceNotifications& on = surface_.notifications;
    on.click = [this] { click(); };
    on.dblClick = [this] { Q_EMIT events_.DblClick(); };
    on.keyDown = [this](int& code, int shift) { keyDown(code, shift); };
    on.columnResized = [this](int col) { properties_.setColWidth(col, surface_.ColWidth(col)); };
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
