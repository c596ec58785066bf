#pragma once

#include "core/events.h"
#include "core/key_column.h"
#include "core/report_state.h"
#include "core/row_marking.h"
#include "host/pointer.h"
#include "interaction/interface_drawing.h"
#include "interaction/menu_state.h"
#include "surface/grid_surface.h"

#include <functional>

namespace zkp {

/// What the control does when the current cell, the selection or the scroll position of the visible
/// surface moves: the key of the row is taken, the band, the menus and the chart follow, and rows that come
/// into sight are painted. While the control itself moves them (`PaintReady` False), and while a report is
/// exported, it does nothing.
class SelectionEvents {
public:
    SelectionEvents(ReportState& state, KeyColumn& key, GridSurface& surface, Events& events,
                    RowMarking& marking, InterfaceDrawing& drawing, MenuState& menus, Pointer& pointer,
                    std::function<void()> showChart)
        : state_(state)
        , key_(key)
        , surface_(surface)
        , events_(events)
        , marking_(marking)
        , drawing_(drawing)
        , menus_(menus)
        , pointer_(pointer)
        , showChart_(std::move(showChart)) {}

    void currentCellChanged();
    void selectionChanged();
    /// The user chose the cell that was current already.
    void selectedAgain();
    void scrolled();
    /// More rows show than before.
    void visibleRowsGrew();

private:
    bool isQuiet() const { return state_.ExportRunning || !state_.PaintReady; }

    ReportState& state_;
    KeyColumn& key_;
    GridSurface& surface_;
    Events& events_;
    RowMarking& marking_;
    InterfaceDrawing& drawing_;
    MenuState& menus_;
    Pointer& pointer_;
    std::function<void()> showChart_; ///< may be empty
};

} // namespace zkp
