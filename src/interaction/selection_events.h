#pragma once

#include "core/clicked_column.h"
#include "core/events.h"
#include "core/key_column.h"
#include "core/painted_place.h"
#include "core/row_marking.h"
#include "core/selection_notices.h"
#include "core/state/export_state.h"
#include "core/state/face_state.h"
#include "core/state/grouping_state.h"
#include "core/state/lifetime.h"
#include "core/state/source_state.h"
#include "host/pointer.h"
#include "interaction/interface_drawing.h"
#include "interaction/menu_state.h"
#include "surface/grid_surface.h"

#include <functional>

namespace zkp {

/// What the control does when the current cell, the selection or the scroll position of the visible
/// surface moves: the key of the row is taken, the band, the menus and the chart follow, and rows that come
/// into sight are painted. While the control itself moves them (SelectionQuiet), and while a report is
/// exported, it does nothing.
class SelectionEvents {
public:
    SelectionEvents(const SourceState& source, const GroupingState& grouping, const FaceState& face,
                    const Lifetime& lifetime, const SelectionNotices& notices, PaintedPlace& painted,
                    ClickedColumn& clicked, const ExportState& exporting, KeyColumn& key,
                    GridSurface& surface, Events& events, RowMarking& marking, InterfaceDrawing& drawing,
                    MenuState& menus, Pointer& pointer, std::function<void()> showChart)
        : source_(source)
        , grouping_(grouping)
        , face_(face)
        , lifetime_(lifetime)
        , notices_(notices)
        , painted_(painted)
        , clicked_(clicked)
        , exporting_(exporting)
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
    bool isQuiet() const { return exporting_.ExportRunning || !notices_.isHeard(); }

    const SourceState& source_;
    const GroupingState& grouping_;
    const FaceState& face_;
    const Lifetime& lifetime_;
    const SelectionNotices& notices_;
    PaintedPlace& painted_;
    ClickedColumn& clicked_;
    const ExportState& exporting_;
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
