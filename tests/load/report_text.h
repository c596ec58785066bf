#pragma once

#include "report_case.h"
#include "surface/grid_surface.h"

namespace zkp::reportcases {

/// The rows of a surface from one on, each with its kind ahead: "heading", "record", "subtotal",
/// "totals", "blank" for an untagged row, and the number of any other tag.
TextRows rowsWithKinds(const GridSurface& surface, int firstRow);

/// The cells of all rows.
TextRows cellsOfAllRows(const GridSurface& surface);

/// Rows under each other with aligned columns; `marked` gets an arrow.
QString aligned(const TextRows& rows, int marked = -1);

/// Nothing when both are the same; otherwise the first difference, in words, with all rows around it.
QString firstDifference(const TextRows& wanted, const TextRows& actual);

} // namespace zkp::reportcases
