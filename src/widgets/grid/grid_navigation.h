#pragma once

#include "surface/grid_surface.h"

#include <optional>

namespace zkp {

struct CellPlace {
    int row = 0;
    int col = 0;
    bool operator==(const CellPlace&) const = default;
};

/// Where a key leads from a cell, over hidden rows and columns, within the body; nothing for a key
/// that does not move. `page` is the number of rows that a page key goes.
std::optional<CellPlace> cellByKey(const GridSurface& surface, CellPlace from, int code, int shift, int page);

} // namespace zkp
