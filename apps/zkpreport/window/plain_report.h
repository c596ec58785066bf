#pragma once

#include "ado/connection.h"
#include "zkp_grid.h"

namespace zkp::app {

/// Lays the plain list of policies on a control: the columns with the captions, widths and
/// alignments of the source's dictionary, in Greek, ordered by policy number. Loads it.
/// Failures of the database are Error; those of the load show the control's box.
void showPlainReport(ZkpGrid& grid, const ado::ConnectionPtr& connection);

} // namespace zkp::app
