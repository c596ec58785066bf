#pragma once

#include "core/child_controls.h"
#include "core/events.h"
#include "core/row_marking.h"
#include "core/state/face_state.h"
#include "core/state/section_settings.h"
#include "interaction/interface_drawing.h"

namespace zkp {

/// What the place that holds the control tells it: size, focus and keys.
class Lifecycle {
public:
    Lifecycle(const SectionSettings& sections, const FaceState& face, ChildControls& children, Events& events,
              RowMarking& marking, InterfaceDrawing& drawing)
        : sections_(sections)
        , face_(face)
        , children_(children)
        , events_(events)
        , marking_(marking)
        , drawing_(drawing) {}

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
    const SectionSettings& sections_;
    const FaceState& face_;
    ChildControls& children_;
    Events& events_;
    RowMarking& marking_;
    InterfaceDrawing& drawing_;
};

} // namespace zkp
