#pragma once

#include "core/events.h"
#include "core/selection_notices.h"
#include "core/state/grouping_state.h"
#include "core/state/lifetime.h"
#include "core/state/section_settings.h"
#include "surface/grid_surface.h"

#include <optional>

namespace zkp {

/// Gives fonts to blocks, rows and cells of the surface. The selection is the current cell afterwards.
/// Fonts are patches; colours in them are passed over.
///
/// Every font here has its Greek letters; there is no character set to choose.
class FontWriter {
public:
    FontWriter(const GroupingState& grouping, const SectionSettings& sections, SelectionNotices& notices,
               const Lifetime& lifetime, GridSurface& surface, Events& events)
        : grouping_(grouping)
        , sections_(sections)
        , notices_(notices)
        , lifetime_(lifetime)
        , surface_(surface)
        , events_(events) {}

    /// The places that a block of cells leaves open.
    struct Block {
        std::optional<int> col;    ///< the first column behind the group factors, in row 0 the first
        std::optional<int> rowEnd; ///< the row itself
        std::optional<int> colEnd; ///< the last column
    };
    /// Nothing for a row that the surface lacks. A block of the whole body is one write. The strikeout stays.
    void SetCellFonts(int row, const StylePatch& font, const Block& block = {},
                      StyleOrigin origin = StyleOrigin::Mark);
    /// The heading takes the fixed font.
    void paintHeading();

    /// From `FixedCols` on. What is left out is the surface's own, and the typeface can't be changed here, as
    /// wanted. Reports the keys "Row" and "Col". So does `CellFonts`.
    void FontsRow(int row, const StylePatch& marks, StyleOrigin origin = StyleOrigin::Mark);
    void CellFonts(int row, int col, const StylePatch& marks, StyleOrigin origin = StyleOrigin::Mark);

private:
    void mark(const CellRange& cells, const StylePatch& marks, StyleOrigin origin);
    void report(const QString& key);

    const GroupingState& grouping_;
    const SectionSettings& sections_;
    SelectionNotices& notices_;
    const Lifetime& lifetime_;
    GridSurface& surface_;
    Events& events_;
};

} // namespace zkp
