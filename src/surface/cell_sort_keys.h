#pragma once

#include "surface/row_sort.h"
#include "surface/sort_codes.h"
#include "surface/surface_cells.h"

#include <span>

namespace zkp {

/// The keys by which rows sort in one column, from what its cells show. `dataType` is the column's.
SortKeys cellSortKeys(const SurfaceCells& cells, std::span<const RowId> ids, ColumnId column, int code,
                      int dataType);

} // namespace zkp
