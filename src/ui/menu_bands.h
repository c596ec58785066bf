#pragma once

#include "platform/menu_bar.h"

namespace zkp {

/// Puts the bands of the control onto an empty bar: "BndTemplate", which stays on screen, with the
/// record count `txtRecs` at its end.
void buildMenuBands(MenuBar& bar);

} // namespace zkp
