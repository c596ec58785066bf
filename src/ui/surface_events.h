#pragma once

#include "core/column_properties.h"
#include "core/events.h"
#include "core/report_state.h"
#include "load/empty_report.h"
#include "platform/grid_surface.h"
#include "platform/host.h"
#include "sql/dictionary.h"
#include "ui/selection_events.h"

#include <memory>

namespace zkp {

/// What the control does with the mouse and keys of the visible surface; takes all its notifications.
class SurfaceEvents {
public:
    SurfaceEvents(ReportState& state, ColumnProperties& properties, GridSurface& surface, Events& events,
                  const Dictionary& dictionary, EmptyReport& emptyReport, SelectionEvents& selection,
                  Host& host)
        : state_(state)
        , properties_(properties)
        , surface_(surface)
        , events_(events)
        , dictionary_(dictionary)
        , emptyReport_(emptyReport)
        , selection_(selection)
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
    const Dictionary& dictionary_;
    EmptyReport& emptyReport_;
    SelectionEvents& selection_;
    Host& host_;
};

} // namespace zkp
