#pragma once

#include "core/events.h"
#include "core/key_column.h"
#include "core/report_state.h"
#include "core/row_marking.h"
#include "platform/grid_surface.h"
#include "platform/host.h"
#include "ui/interface_drawing.h"

namespace zkp {

/// What the control does when the current cell, the selection or the scroll position of the visible
/// surface moves: the key of the row is taken, the band follows, and rows that come into sight are
/// painted. While the control itself moves them (`PaintReady` False) it does nothing.
class SelectionEvents {
public:
    SelectionEvents(ReportState& state, KeyColumn& key, GridSurface& surface, Events& events,
                    RowMarking& marking, InterfaceDrawing& drawing, Host& host)
        : state_(state)
        , key_(key)
        , surface_(surface)
        , events_(events)
        , marking_(marking)
        , drawing_(drawing)
        , host_(host) {}

    void currentCellChanged();
    void selectionChanged();
    /// The user chose the cell that was current already.
    void selectedAgain();
    void scrolled();
    /// More rows show than before.
    void visibleRowsGrew();

private:
    ReportState& state_;
    KeyColumn& key_;
    GridSurface& surface_;
    Events& events_;
    RowMarking& marking_;
    InterfaceDrawing& drawing_;
    Host& host_;
};

} // namespace zkp
