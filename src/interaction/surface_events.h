#pragma once

#include "core/clicked_column.h"
#include "core/column_properties.h"
#include "core/control_setters.h"
#include "core/events.h"
#include "core/reporting.h"
#include "core/state/face_state.h"
#include "core/state/grouping_state.h"
#include "core/state/lifetime.h"
#include "core/state/tool_state.h"
#include "host/message_boxes.h"
#include "interaction/heading_drag.h"
#include "interaction/menu_state.h"
#include "interaction/selection_events.h"
#include "load/empty_report.h"
#include "menu/menu_bar.h"
#include "sql/dictionary.h"
#include "surface/grid_surface.h"

#include <functional>
#include <memory>

namespace zkp {

/// What the control does with the mouse and keys of the visible surface; takes all its notifications.
class SurfaceEvents {
public:
    /// `showChart` draws the chart anew.
    SurfaceEvents(const GroupingState& grouping, const FaceState& face, const Lifetime& lifetime,
                  ClickedColumn& clicked, ControlSetters& setters, const ToolState& tools,
                  ColumnProperties& properties, GridSurface& surface, MenuBar& menu, Events& events,
                  const Dictionary& dictionary, EmptyReport& emptyReport, MenuState& menuState,
                  HeadingDrag& drag, SelectionEvents& selection, MessageBoxes& boxes,
                  const Reporting& reporting, std::function<void()> showChart)
        : grouping_(grouping)
        , face_(face)
        , lifetime_(lifetime)
        , clicked_(clicked)
        , setters_(setters)
        , tools_(tools)
        , properties_(properties)
        , surface_(surface)
        , menu_(menu)
        , events_(events)
        , dictionary_(dictionary)
        , emptyReport_(emptyReport)
        , menuState_(menuState)
        , drag_(drag)
        , selection_(selection)
        , boxes_(boxes)
        , reporting_(reporting)
        , showChart_(std::move(showChart)) {}

    /// Takes the surface's notifications. `owner` keeps everything here alive while one of them runs,
    /// since a handler may destroy the control.
    void connect(const std::weak_ptr<void>& owner);

private:
    void mouseDown(const SurfaceMouse& mouse);
    bool isPressTold(const SurfaceMouse& mouse);
    void showShape();
    void columnResized(int col);
    void click();
    void keyDown(int code, int shift);

    const GroupingState& grouping_;
    const FaceState& face_;
    const Lifetime& lifetime_;
    ClickedColumn& clicked_;
    ControlSetters& setters_;
    const ToolState& tools_;
    ColumnProperties& properties_;
    GridSurface& surface_;
    MenuBar& menu_;
    Events& events_;
    const Dictionary& dictionary_;
    EmptyReport& emptyReport_;
    MenuState& menuState_;
    HeadingDrag& drag_;
    SelectionEvents& selection_;
    MessageBoxes& boxes_;
    Reporting reporting_;
    std::function<void()> showChart_;
};

} // namespace zkp
