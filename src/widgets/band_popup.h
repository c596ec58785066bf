#pragma once

#include "platform/menu_bar.h"

#include <functional>

class QMenu;
class QWidget;

namespace zkp {

/// What the user does in a popup.
struct BandPopupActions {
    std::function<void(const QString& tool)> click;
    std::function<void(const QString& tool, int index)> changeList;
    std::function<void(const QString& tool, const QString& text)> changeText;
};

/// A band as a menu: buttons and checks as entries, lists and subbands as submenus, texts as a box to
/// type in. Shows the state at the moment of the call.
QMenu* makeBandPopup(const MenuBar& bar, const Band& band, const BandPopupActions& actions, QWidget* parent);

} // namespace zkp
