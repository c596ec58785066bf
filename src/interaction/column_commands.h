#pragma once

#include "core/cell_fonts.h"
#include "core/column_properties.h"
#include "core/events.h"
#include "core/group_columns.h"
#include "core/report_state.h"
#include "core/reporting.h"
#include "host/message_boxes.h"
#include "host/pointer.h"
#include "surface/grid_surface.h"

#include <functional>

namespace zkp {

/// What the column menu does: adds, inserts and deletes columns and group factors, in the collection and
/// on the surface together. Data are read again only where it says so.
class ColumnCommands {
public:
    /// What the control does for these commands.
    struct Steps {
        std::function<void(int)> setCols;             ///< the control's `Cols` setter
        std::function<void(bool)> setRefreshOnChange; ///< and that of `RefreshOnChange`
        std::function<void()> fillGrid;
    };

    ColumnCommands(ReportState& state, ColumnList& columns, ColumnProperties& properties,
                   GroupFactorFlags& flags, GroupColumns& groups, GridSurface& surface, FontWriter& fonts,
                   Events& events, MessageBoxes& boxes, Pointer& pointer, const Reporting& reporting,
                   Steps steps)
        : state_(state)
        , columns_(columns)
        , properties_(properties)
        , flags_(flags)
        , groups_(groups)
        , surface_(surface)
        , fonts_(fonts)
        , events_(events)
        , boxes_(boxes)
        , pointer_(pointer)
        , reporting_(reporting)
        , steps_(std::move(steps)) {}

    /// `mnuAddColumn_Click`: a plain column at the end, which becomes the current one.
    void addColumn();
    /// `mnuInsert_Click`: an empty column where the mouse was pressed last.
    void insertColumn();
    /// `mnuAddOmadopoihsh_Click`: a group factor behind the others.
    void addGroup();
    /// `mnuInsertOmadopoihsh_Click`: a group factor at the current column.
    void insertGroup();
    /// `mnuDelete_Click`: the current column, unless it is the only one that shows or the last factor of a
    /// totals report; those have a box each.
    void deleteCurrent();
    /// Takes the current column off the surface and the entry at `position` out of the collection: two
    /// different columns when `position` is not the current one, as wanted. Loads again when the user says
    /// so, who is asked only about a group factor with a field. A failure shows the error box.
    void deletecolumn(int& position);

private:
    bool makeFactor(int position);
    int shownColumns() const;
    bool isLastFactor() const;
    void askForRefresh();
    void removeColumn(int& position);
    void setCol(int col);
    void raise(void (Events::*event)(ColumnArgs&));
    void checkGroupBy() {
        flags_.CheckGroupBy(surface_.Cols());
        state_.throwIfDestroyed();
    }

    ReportState& state_;
    ColumnList& columns_;
    ColumnProperties& properties_;
    GroupFactorFlags& flags_;
    GroupColumns& groups_;
    GridSurface& surface_;
    FontWriter& fonts_;
    Events& events_;
    MessageBoxes& boxes_;
    Pointer& pointer_;
    Reporting reporting_;
    Steps steps_;
};

} // namespace zkp
