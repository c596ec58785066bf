#pragma once

#include "menu/menu_bar.h"

#include <functional>
#include <memory>
#include <vector>

class QMenu;

namespace zkp {

/// What the user does with the tools of a bar.
struct BandActions {
    std::function<void(const QString& tool)> click;
    std::function<void(const QString& tool, int index)> changeList;
    std::function<void(const QString& tool, const QString& text)> changeText;
};

using ToolList = std::vector<std::shared_ptr<Tool>>;

/// Fills a menu with tools: buttons and checks as entries, lists and subbands as submenus, texts as a box
/// to type in; a button with a subband as a submenu that begins with the button's own command. Shows the
/// state at the moment of the call. Separators stand between two entries only.
void fillBandMenu(QMenu& menu, const MenuBar& bar, const ToolList& tools, const BandActions& actions);

/// The tools of a band that exists; none for another name.
ToolList toolsOfBand(const MenuBar& bar, const QString& band);

} // namespace zkp
