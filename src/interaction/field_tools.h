#pragma once

#include "base/listeners.h"
#include "core/clicked_column.h"
#include "core/column_properties.h"
#include "core/group_columns.h"
#include "core/selection_notices.h"
#include "core/stat_field.h"
#include "core/state/data_settings.h"
#include "core/state/lifetime.h"
#include "core/state/tool_state.h"
#include "load/load_driver.h"
#include "menu/menu_bar.h"
#include "surface/grid_surface.h"

#include <memory>

namespace zkp {

/// The two tools that stand for the current column: the list of fields that it may show, and its caption.
class FieldTools {
public:
    FieldTools(const DataSettings& data, const Lifetime& lifetime, SelectionNotices& notices,
               const ClickedColumn& clicked, LoadDriver& driver, const ToolState& tools, ColumnList& columns,
               ColumnProperties& properties, GroupColumns& groups, GridSurface& surface, MenuBar& menu)
        : data_(data)
        , lifetime_(lifetime)
        , notices_(notices)
        , clicked_(clicked)
        , driver_(driver)
        , tools_(tools)
        , columns_(columns)
        , properties_(properties)
        , groups_(groups)
        , surface_(surface)
        , menu_(menu) {}

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

    const DataSettings& data_;
    const Lifetime& lifetime_;
    SelectionNotices& notices_;
    const ClickedColumn& clicked_;
    LoadDriver& driver_;
    const ToolState& tools_;
    ColumnList& columns_;
    ColumnProperties& properties_;
    GroupColumns& groups_;
    GridSurface& surface_;
    MenuBar& menu_;
    Listening lists_;
    Listening texts_;
};

} // namespace zkp
