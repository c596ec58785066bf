#pragma once

#include "core/events.h"
#include "core/key_column.h"
#include "core/selection_notices.h"
#include "core/state/grouping_state.h"
#include "core/state/lifetime.h"
#include "core/state/marking_state.h"
#include "surface/grid_surface.h"

#include <optional>

namespace zkp {

/// The coloured band on the current row (with `RowSelect`), and rows that the host marks. What a band
/// covers is remembered and comes back when it leaves.
///
/// Apart from `RedrawRow` the routines leave the selection on the current cell and `FillStyle` at 1.
class RowMarking {
public:
    RowMarking(const GroupingState& grouping, MarkingState& marking, SelectionNotices& notices,
               const Lifetime& lifetime, KeyColumn& key, GridSurface& surface, Events& events)
        : grouping_(grouping)
        , marking_(marking)
        , notices_(notices)
        , lifetime_(lifetime)
        , key_(key)
        , surface_(surface)
        , events_(events) {}

    /// Moves the band to the current row and raises `Selecting`. Nothing without `RowSelect`, nor on
    /// the heading row.
    void Selectrow();
    /// Paints a row, group factor cells included, with the colours that the band covers.
    void Releasemark(int row);
    /// Marks a row. Under the band it takes the new colours for those to come back.
    void reversecolor(int row, Color back, Color fore, StyleOrigin origin = StyleOrigin::Mark);
    void ReverseCell(int row, int from, int to, Color back, Color fore);
    /// Takes the band off a row. The surface's selection is heard afterwards, whether it was or not.
    void RedrawRow(double row);
    /// Takes it off the row that has it.
    void redrawMarkedRow() { RedrawRow(marking_.PreRow); }
    /// The row that has the band; 0 for none.
    double markedRow() const { return marking_.PreRow; }
    /// No row has the band any more.
    void forgetRow() { marking_.PreRow = 0; }
    /// What the next band gives back are the surface's own colours.
    void coverSurface();
    /// Alternating row colours, with `RowByRow`.
    void makeRowByrow();

    /// What the band covers on a cell.
    struct Covered {
        StylePatch colours;  ///< those that come back when it leaves
        bool isMark = false; ///< they are the row's own, not its section's
    };
    /// Nothing where the band doesn't lie. `shown`: the cell's style as it stands.
    std::optional<Covered> coveredByBand(int row, int col, const CellStyle& shown) const;

private:
    struct Colours {
        Color back = 0;
        Color fore = 0;
        bool operator==(const Colours&) const = default;
    };

    void RememberRowColours();
    void remember(const Colours& colours, bool isMark);
    Colours covered() const { return {marking_.PreBackColor, marking_.PreForeColor}; }
    bool coversMark() const;
    void paintCovered(const CellRange& cells);
    void paint(const CellRange& cells, const Colours& colours, StyleOrigin origin);
    static StylePatch patchOf(const Colours& colours);
    bool hasCurrentCell() const { return surface_.Row() < surface_.Rows() && surface_.Cols() > 0; }
    /// Group factor cells stay in their own colours.
    CellRange bandOf(int row) const { return {row, grouping_.GroupFactorCount, row, lastCol()}; }
    bool isHeading(int row) const { return row == surface_.FixedRows() - 1; }
    int lastCol() const { return surface_.Cols() - 1; }

    const GroupingState& grouping_;
    MarkingState& marking_;
    SelectionNotices& notices_;
    const Lifetime& lifetime_;
    KeyColumn& key_;
    GridSurface& surface_;
    Events& events_;
    Colours band_;       // of the band laid last
    Colours remembered_; // those that the band covers; a host may have put others in their place
    bool markRemembered_ = false;
};

} // namespace zkp
