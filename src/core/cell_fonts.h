#pragma once

#include "core/events.h"
#include "core/report_state.h"
#include "surface/grid_surface.h"

#include <optional>

namespace zkp {

/// A font as `SetCellFonts` gives it to cells.
struct CellFont {
    QString name;
    double size = 8; ///< points
    bool bold = false;
    bool italic = false;
    bool underline = false;
};

/// Size and style as `FontsRow` and `CellFonts` give them; what is left out is the surface's own. There
/// is no name: these two can't change the typeface, as wanted.
struct FontMarks {
    std::optional<double> size; ///< points
    std::optional<bool> bold;
    std::optional<bool> underline;
    std::optional<bool> italic;
    std::optional<bool> strikethru;
};

/// Gives fonts to blocks, rows and cells of the surface. The selection is the current cell afterwards.
///
/// Every font here has its Greek letters; there is no character set to choose.
class FontWriter {
public:
    FontWriter(ReportState& state, GridSurface& surface, Events& events)
        : state_(state)
        , surface_(surface)
        , events_(events) {}

    /// The places that a block of cells leaves open.
    struct Block {
        std::optional<int> col;    ///< the first column behind the group factors, in row 0 the first
        std::optional<int> rowEnd; ///< the row itself
        std::optional<int> colEnd; ///< the last column
    };
    /// Nothing for a row that the surface lacks. A block of the whole body is one write.
    void SetCellFonts(int row, const CellFont& font, const Block& block = {});
    /// The heading takes the fixed font.
    void paintHeading();

    /// From `FixedCols` on. Reports the keys "Row" and "Col", as `CellFonts` does.
    void FontsRow(int row, const FontMarks& marks);
    void CellFonts(int row, int col, const FontMarks& marks);

private:
    void mark(const CellRange& cells, const FontMarks& marks);
    void report(const QString& key);

    ReportState& state_;
    GridSurface& surface_;
    Events& events_;
};

} // namespace zkp
