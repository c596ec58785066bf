#pragma once

#include "surface/cell_range.h"

#include <vector>

namespace zkp {

/// The size of a surface, as far as the layers of its styles go by it.
struct SurfaceShape {
    int rows = 0;
    int cols = 0;
    int fixedRows = 0;
    int fixedCols = 0;
};

enum class StyleTarget { Body, Columns, Rows, Cells };

/// A part of a block and the layer that takes it with the fewest writes.
struct StylePiece {
    StyleTarget target = StyleTarget::Cells;
    CellRange range;
    bool operator==(const StylePiece&) const = default;
};

/// Cuts a block (inside the surface) into the pieces that take the fewest writes: all body cells are
/// one write on the body; all body rows of a column one on the column; a whole row one on the row;
/// anything else goes cell by cell. A single body row counts as a row, so that its look doesn't go
/// over to rows added later; with more, all body rows means those to come as well.
std::vector<StylePiece> stylePieces(const CellRange& block, const SurfaceShape& shape);

} // namespace zkp
