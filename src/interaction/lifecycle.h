#pragma once

#include "core/child_controls.h"
#include "core/events.h"
#include "core/report_state.h"

#include <functional>

namespace zkp {

/// What the place that holds the control tells it: size, focus and keys.
class Lifecycle {
public:
    /// `drawInterface` repaints the sections; it may be empty.
    Lifecycle(ReportState& state, ChildControls& children, Events& events,
              std::function<void()> drawInterface)
        : state_(state)
        , children_(children)
        , events_(events)
        , drawInterface_(std::move(drawInterface)) {}

    /// A control that is placed new, with nothing stored.
    void initProperties();
    /// Lays the children out in the control's `Width` and `Height`.
    void resize();
    void enterFocus();
    void exitFocus();
    /// Escape hides a chart that shows; `KeyDown` is raised in any case. The code that handlers leave.
    int keyDown(int code, int shift);
    int keyPress(int ascii);

private:
    ReportState& state_;
    ChildControls& children_;
    Events& events_;
    std::function<void()> drawInterface_;
};

} // namespace zkp
