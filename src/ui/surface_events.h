#pragma once

#include "core/column_properties.h"
#include "core/events.h"
#include "core/report_state.h"
#include "platform/grid_surface.h"
#include "platform/host.h"

#include <memory>

namespace zkp {

/// What the control does with the notifications of the visible surface.
class SurfaceEvents {
public:
    SurfaceEvents(ReportState& state, ColumnProperties& properties, GridSurface& surface, Events& events,
                  Host& host)
        : state_(state)
        , properties_(properties)
        , surface_(surface)
        , events_(events)
        , host_(host) {}

    /// Takes the surface's notifications. `owner` keeps everything here alive while one of them runs,
    /// since a handler may destroy the control.
    void connect(const std::weak_ptr<void>& owner);

private:
    void mouseDown(const SurfaceMouse& mouse);
    bool preparesHeadingDrag();
    void click();
    void keyDown(int code, int shift);

    ReportState& state_;
    ColumnProperties& properties_;
    GridSurface& surface_;
    Events& events_;
    Host& host_;
};

} // namespace zkp
