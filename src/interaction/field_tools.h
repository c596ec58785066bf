#pragma once

#include "base/listeners.h"
#include "core/column_properties.h"
#include "core/group_columns.h"
#include "core/report_state.h"
#include "core/stat_field.h"
#include "menu/menu_bar.h"
#include "surface/grid_surface.h"

#include <functional>
#include <memory>

namespace zkp {

/// The two tools that stand for the current column: the list of fields that it may show, and its caption.
class FieldTools {
public:
    FieldTools(ReportState& state, ColumnList& columns, ColumnProperties& properties, GroupColumns& groups,
               GridSurface& surface, MenuBar& menu, std::function<void()> fillGrid)
        : state_(state)
        , columns_(columns)
        , properties_(properties)
        , groups_(groups)
        , surface_(surface)
        , menu_(menu)
        , fillGrid_(std::move(fillGrid)) {}

    /// Listens to what the user does with lists and texts of the bar. `owner` keeps everything here alive
    /// meanwhile.
    void connect(const std::weak_ptr<void>& owner);

    /// "mnuField": the current column takes another field of the dictionary, with its caption, width and so
    /// on. Data that will not be read now are blanked.
    void fieldChosen(const Tool& tool);
    /// "mnuCaption": the column that was clicked last takes the text.
    void captionTyped(const Tool& tool);

private:
    const StatField* chosenField(const Tool& tool) const;
    bool exists(int col) const;
    void blankData(int col);
    void giveField(int col, const StatField& field);

    ReportState& state_;
    ColumnList& columns_;
    ColumnProperties& properties_;
    GroupColumns& groups_;
    GridSurface& surface_;
    MenuBar& menu_;
    std::function<void()> fillGrid_;
    Listening lists_;
    Listening texts_;
};

} // namespace zkp
