#pragma once

#include "core/column_properties.h"
#include "core/state/data_settings.h"
#include "core/state/face_state.h"
#include "core/state/grouping_state.h"
#include "core/state/tool_state.h"
#include "menu/menu_bar.h"
#include "sql/dictionary.h"
#include "surface/grid_surface.h"

namespace zkp {

/// Keeps the tools in line with the surface's current column. A view hears of it once, and only when a
/// tool has changed, since this runs at every move of the selection.
class MenuState {
public:
    MenuState(const DataSettings& data, const GroupingState& grouping, const FaceState& face,
              ToolState& tools, const ColumnList& columns, const ColumnProperties& properties,
              const GridSurface& surface, MenuBar& menu, const Dictionary& dictionary)
        : data_(data)
        , grouping_(grouping)
        , face_(face)
        , tools_(tools)
        , columns_(columns)
        , properties_(properties)
        , surface_(surface)
        , menu_(menu)
        , dictionary_(dictionary) {}

    /// Nothing while the menus are locked, and without `MenusVisible`.
    void MenuRefresh();
    /// The fields that the current column may show go into the list of "mnuField", and its caption into
    /// "mnuCaption". Nothing without `MenusVisible`, an open dictionary or a field.
    void fillBandField();
    void fillcombos() { fillBandField(); }
    void fillTotalcombos() { fillBandField(); }
    /// No command calls these two; they stand ready for one that may not be disturbed.
    void LockMenus() { setLocked(true); }
    void UnlockMenus() { setLocked(false); }

private:
    class Changes;

    void bringInLine(Changes& changes) const;
    void checkAlignment(Changes& changes) const;
    void fillField(Changes& changes);
    void listFields(Tool& list, Changes& changes);
    void setLocked(bool locked);
    /// The surface's current column; -1 where there is none.
    int column() const;
    bool isFactor() const { return surface_.Col() < grouping_.GroupFactorCount; }

    const DataSettings& data_;
    const GroupingState& grouping_;
    const FaceState& face_;
    ToolState& tools_;
    const ColumnList& columns_;
    const ColumnProperties& properties_;
    const GridSurface& surface_;
    MenuBar& menu_;
    const Dictionary& dictionary_;
};

} // namespace zkp
