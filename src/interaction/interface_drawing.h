#pragma once

#include "core/cell_fonts.h"
#include "core/events.h"
#include "core/painted_place.h"
#include "core/reporting.h"
#include "core/row_marking.h"
#include "core/section_style.h"
#include "core/selection_notices.h"
#include "core/state/data_settings.h"
#include "core/state/grouping_state.h"
#include "core/state/lifetime.h"
#include "core/state/section_settings.h"
#include "core/state/source_state.h"
#include "host/pointer.h"
#include "menu/menu_bar.h"
#include "surface/grid_surface.h"

#include <vector>

namespace zkp {

/// Paints the report's sections: heading, group factor cells, detail rows, subtotals and totals take
/// the colours and fonts that the control stores for them.
class InterfaceDrawing {
public:
    InterfaceDrawing(const DataSettings& data, const SourceState& source, const GroupingState& grouping,
                     const SectionSettings& sections, const Lifetime& lifetime, SelectionNotices& notices,
                     PaintedPlace& painted, GridSurface& surface, Events& events, FontWriter& fonts,
                     RowMarking& marking, MenuBar& menu, Pointer& pointer, const Reporting& reporting)
        : data_(data)
        , source_(source)
        , grouping_(grouping)
        , sections_(sections)
        , lifetime_(lifetime)
        , notices_(notices)
        , painted_(painted)
        , surface_(surface)
        , events_(events)
        , fonts_(fonts)
        , marking_(marking)
        , menu_(menu)
        , pointer_(pointer)
        , reporting_(reporting) {}

    /// Paints the rows that show, whatever the report's length. A failure shows the error box. Called
    /// again by one of its own handlers, it does nothing.
    void DrawInterface();
    /// Repaints the heading row, and unless `what` is 0 all group, subtotal and totals cells.
    void RefreshInterface(int what);
    /// Repaints the group factor cells of all rows, or of the last row alone. They stay selected.
    void PaintGroupBlock(bool fromTop);

private:
    void paintSections();
    void paintFonts();
    void paintGroupCells(const CellRange& page);
    void paintRows(const CellRange& page);
    void markBlankFactors(const CellRange& page, const std::vector<int>& kinds);
    void paintDetailRows(const CellRange& page, const std::vector<int>& kinds);
    void paintSumRows(const CellRange& page, const std::vector<int>& kinds);
    void refreshTotals();
    void markRow(int row, const CellStyle& colours, const StylePatch& font);
    int groupColumns() const;
    CellStyle look(Section section) const;

    const DataSettings& data_;
    const SourceState& source_;
    const GroupingState& grouping_;
    const SectionSettings& sections_;
    const Lifetime& lifetime_;
    SelectionNotices& notices_;
    PaintedPlace& painted_;
    GridSurface& surface_;
    Events& events_;
    FontWriter& fonts_;
    RowMarking& marking_;
    MenuBar& menu_;
    Pointer& pointer_;
    Reporting reporting_;
    bool drawing_ = false;
};

} // namespace zkp
