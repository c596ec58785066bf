#pragma once

#include "surface/grid_surface.h"

namespace zkp {

/// What a cell of the report is, to somebody who can't see its colours.
enum class CellKind { Heading, Group, Detail, Subtotal, Total };

/// By the row's tag; a merged column of a row that is no sum holds a group factor.
CellKind cellKind(const GridSurface& surface, int row, int col);

QString spokenKind(CellKind kind);
/// The heading of a column; empty without a heading row.
QString columnCaption(const GridSurface& surface, int col);
/// What a screen reader says of a cell: its kind unless it is a plain detail, the caption and the text.
QString spokenCell(const GridSurface& surface, int row, int col);
/// The kind of a row.
QString spokenRow(const GridSurface& surface, int row);

} // namespace zkp
