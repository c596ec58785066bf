#pragma once

#include "core/cell_fonts.h"
#include "core/clicked_column.h"
#include "core/column_properties.h"
#include "core/control_setters.h"
#include "core/events.h"
#include "core/group_columns.h"
#include "core/reporting.h"
#include "core/state/data_settings.h"
#include "core/state/grouping_state.h"
#include "core/state/lifetime.h"
#include "core/state/section_settings.h"
#include "host/message_boxes.h"
#include "host/pointer.h"
#include "load/load_driver.h"
#include "surface/grid_surface.h"

namespace zkp {

/// What the column menu does: adds, inserts and deletes columns and group factors, in the collection and
/// on the surface together. Data are read again only where it says so.
class ColumnCommands {
public:
    ColumnCommands(const DataSettings& data, const GroupingState& grouping, const SectionSettings& sections,
                   const Lifetime& lifetime, ClickedColumn& clicked, ControlSetters& setters,
                   LoadDriver& driver, ColumnList& columns, ColumnProperties& properties,
                   GroupFactorFlags& flags, GroupColumns& groups, GridSurface& surface, FontWriter& fonts,
                   Events& events, MessageBoxes& boxes, Pointer& pointer, const Reporting& reporting)
        : data_(data)
        , grouping_(grouping)
        , sections_(sections)
        , lifetime_(lifetime)
        , clicked_(clicked)
        , setters_(setters)
        , driver_(driver)
        , columns_(columns)
        , properties_(properties)
        , flags_(flags)
        , groups_(groups)
        , surface_(surface)
        , fonts_(fonts)
        , events_(events)
        , boxes_(boxes)
        , pointer_(pointer)
        , reporting_(reporting) {}

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
        lifetime_.throwIfDestroyed();
    }

    const DataSettings& data_;
    const GroupingState& grouping_;
    const SectionSettings& sections_;
    const Lifetime& lifetime_;
    ClickedColumn& clicked_;
    ControlSetters& setters_;
    LoadDriver& driver_;
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
};

} // namespace zkp
