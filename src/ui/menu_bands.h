#pragma once

#include "platform/menu_bar.h"

namespace zkp {

/// Puts the bands of the control with their tools (ui/menu_table.h) onto an empty bar.
///
/// Until a tool's command is built nobody listens to the bar: its tools have names, captions and states,
/// which hosts and saved properties use, and the row on screen leaves them out (MenuBar::isHeard).
void buildMenuBands(MenuBar& bar);

} // namespace zkp
