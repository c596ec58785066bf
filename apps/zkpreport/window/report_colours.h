#pragma once

#include "zkp_grid.h"

#include <QPalette>

namespace zkp::app {

/// Gives the sections of a report their look: shades between the background and the text of the
/// palette, the block of group factors weakest and the totals strongest, so that a dark palette works.
void setReportColours(ZkpGrid& grid, const QPalette& palette);

/// Gives the shades to those sections alone that have no colour of their own.
void fillReportColours(ZkpGrid& grid, const QPalette& palette);
/// Takes the shades of a palette away: what is left are the colours that somebody has chosen.
void withdrawReportColours(ZkpGrid& grid, const QPalette& palette);

} // namespace zkp::app
