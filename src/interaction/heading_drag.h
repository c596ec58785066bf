#pragma once

#include "core/column_properties.h"
#include "core/group_factors.h"
#include "core/report_state.h"
#include "core/reporting.h"
#include "host/message_boxes.h"
#include "host/pointer.h"
#include "surface/grid_surface.h"

#include <functional>

namespace zkp {

/// A heading that the user drags to another place: whether the press on it starts a drag, the pointer on
/// the way, and the drop.
class HeadingDrag {
public:
    /// What a drop asks of the control: its `refresh`, and `MenuRefresh`.
    struct Control {
        std::function<void()> refresh;
        std::function<void()> MenuRefresh;
    };

    HeadingDrag(ReportState& state, ColumnList& columns, ColumnProperties& properties,
                GroupFactorFlags& flags, GridSurface& surface, MessageBoxes& boxes, Pointer& pointer,
                const Reporting& reporting, Control control)
        : state_(state)
        , columns_(columns)
        , properties_(properties)
        , flags_(flags)
        , surface_(surface)
        , boxes_(boxes)
        , pointer_(pointer)
        , reporting_(reporting)
        , control_(std::move(control)) {}

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

    ReportState& state_;
    ColumnList& columns_;
    ColumnProperties& properties_;
    GroupFactorFlags& flags_;
    GridSurface& surface_;
    MessageBoxes& boxes_;
    Pointer& pointer_;
    Reporting reporting_;
    Control control_;
};

} // namespace zkp
