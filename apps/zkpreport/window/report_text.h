#pragma once

#include "surface/grid_surface.h"

#include <QString>

namespace zkp::app {

/// The headings and the first `count` rows of a report as aligned text, one line a row.
QString reportText(const GridSurface& surface, int count);

} // namespace zkp::app
