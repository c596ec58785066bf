#pragma once

#include "core/column_list.h"
#include "core/selection_notices.h"
#include "core/state/data_settings.h"
#include "core/state/load_state.h"
#include "core/state/section_settings.h"
#include "load/group_sums.h"
#include "load/load_hooks.h"
#include "surface/grid_surface.h"

namespace zkp {

/// The row that closes a report, and the look of subtotal and totals rows.
class TotalsRows {
public:
    TotalsRows(const DataSettings& data, LoadState& load, SelectionNotices& notices,
               const SectionSettings& sections, const ColumnList& columns, GridSurface& surface,
               const GroupSums& sums, const LoadHooks& hooks)
        : data_(data)
        , load_(load)
        , notices_(notices)
        , sections_(sections)
        , columns_(columns)
        , surface_(surface)
        , sums_(sums)
        , hooks_(hooks) {}

    /// Ends a load with sums: the spare row goes, the one before it shows the totals, and all is painted.
    /// Totals are summed again from the grid, since handlers may have changed what was read, unless the
    /// rows show what was counted.
    void FinishTotals(bool rowsAreAsCounted = false);
    /// Gives all subtotal rows, shown or not, and the last row their colours and fonts.
    void PaintTotalsRows();
    /// Adds a row in the colours of totals, tagged -1, at the end.
    void AppendTotalsRow();
    /// Shows the sum of a column in a row of its own at the end. What counts is the number at the front of
    /// each text with a point as its decimal sign, whatever the locale; subtotals and totals count too.
    void CalcTotalsOnThisColumn(int clmn);
    /// Looks for a tag that no row has, and so finds 0; wanted.
    int FindTotalsRow() const;

private:
    QString totalText(int c, bool rowsAreAsCounted) const;
    Decimal sumOfRecords(int c) const;
    void seekContent();

    const DataSettings& data_;
    LoadState& load_;
    SelectionNotices& notices_;
    const SectionSettings& sections_;
    const ColumnList& columns_;
    GridSurface& surface_;
    const GroupSums& sums_;
    const LoadHooks& hooks_;
};

} // namespace zkp
