#pragma once

#include "menu/menu_bar.h"

namespace zkp {

/// Puts the bands of the control with their tools (ui/menu_table.h) onto an empty bar.
void buildMenuBands(MenuBar& bar);

} // namespace zkp
