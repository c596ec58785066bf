#pragma once

#include "core/clicked_column.h"
#include "core/column_properties.h"
#include "core/control_setters.h"
#include "core/group_factors.h"
#include "core/reporting.h"
#include "core/selection_notices.h"
#include "core/state/data_settings.h"
#include "core/state/export_state.h"
#include "core/state/face_state.h"
#include "core/state/grouping_state.h"
#include "core/state/lifetime.h"
#include "core/state/tool_state.h"
#include "host/message_boxes.h"
#include "host/pointer.h"
#include "interaction/menu_state.h"
#include "surface/grid_surface.h"

#include <functional>

namespace zkp {

/// A heading that the user drags to another place: whether the press on it starts a drag, the pointer on
/// the way, and the drop.
class HeadingDrag {
public:
    /// `refresh` is the control's own, which tells the host of failed checks.
    HeadingDrag(const DataSettings& data, const GroupingState& grouping, const FaceState& face,
                const Lifetime& lifetime, SelectionNotices& notices, ClickedColumn& clicked,
                ControlSetters& setters, MenuState& menuState, const ExportState& exporting,
                const ToolState& tools, ColumnList& columns, ColumnProperties& properties,
                GroupFactorFlags& flags, GridSurface& surface, MessageBoxes& boxes, Pointer& pointer,
                const Reporting& reporting, std::function<void()> refresh)
        : data_(data)
        , grouping_(grouping)
        , face_(face)
        , lifetime_(lifetime)
        , notices_(notices)
        , clicked_(clicked)
        , setters_(setters)
        , menuState_(menuState)
        , exporting_(exporting)
        , tools_(tools)
        , columns_(columns)
        , properties_(properties)
        , flags_(flags)
        , surface_(surface)
        , boxes_(boxes)
        , pointer_(pointer)
        , reporting_(reporting)
        , refresh_(std::move(refresh)) {}

    /// A left press on the column pressed last: the surface's `Tag` takes its number when a drag may start,
    /// and a host that hears of the press may write another there. False when the host is not to hear of the
    /// press: one on a data row, or in a detail report on the heading of a group factor or of the first
    /// column after them.
    bool prepare();
    /// Whether a view may let the heading follow the pointer, after the press.
    bool mayDrag(int col) const;
    /// The pointer over the heading row tells what a drop there would do.
    void showPointer(const SurfaceMouse& mouse);
    /// Moves a column with its data, heading and look; the current cell goes along. For a group factor the
    /// user is asked whether to load again; without it the rows stay grouped as they were. A failure shows
    /// the error box.
    void drop(int from, int to);
    /// No column crosses the border between group factors and others, and a factor changes its place only
    /// when both have a field.
    bool isRefused(int from, int to) const;
    /// The entries of the collection take the widths that the surface's columns have.
    void saveWidths();
    /// Whether surface and collection both have the column.
    bool exists(int col) const;

private:
    void move(int from, int to);
    void writeBack(int col);
    void askForRefresh();

    const DataSettings& data_;
    const GroupingState& grouping_;
    const FaceState& face_;
    const Lifetime& lifetime_;
    SelectionNotices& notices_;
    ClickedColumn& clicked_;
    ControlSetters& setters_;
    MenuState& menuState_;
    const ExportState& exporting_;
    const ToolState& tools_;
    ColumnList& columns_;
    ColumnProperties& properties_;
    GroupFactorFlags& flags_;
    GridSurface& surface_;
    MessageBoxes& boxes_;
    Pointer& pointer_;
    Reporting reporting_;
    std::function<void()> refresh_;
};

} // namespace zkp
