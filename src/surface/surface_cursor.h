#pragma once

#include "surface/cell_range.h"
#include "surface/style_pieces.h"

namespace zkp {

/// The current cell, the selection and the scroll position of a surface.
struct SurfaceCursor {
    int row = 1;
    int col = 0;
    int rowSel = 1;
    int colSel = 0;
    int topRow = 1;
    int leftCol = 0;

    bool operator==(const SurfaceCursor&) const = default;

    /// The selected block, corners in order.
    CellRange selection() const;
    /// Moves the current cell; the selection becomes that one cell.
    void moveTo(int toRow, int toCol);
    /// Where a first scrollable row (or column) `wanted` leads: not into the fixed ones, nor past the last.
    static int scrollable(int wanted, int fixed, int count);
    /// What lies outside moves to the last row or column left (0 when there is none).
    void keepInside(const SurfaceShape& shape);
    bool isInside(const SurfaceShape& shape) const;
};

} // namespace zkp
