#pragma once

#include "menu/menu_bar.h"
#include "widgets/band/band_popup.h"

class QPalette;
class QWidget;

namespace zkp {

/// The widgets that stand for tools in a row. Each reports what the user does to the actions, and shows
/// nothing of its tool until syncToolWidget.
///
/// `fillMenu` fills the menu of a tool with a subband each time it opens.
QWidget* makeToolWidget(const Tool& tool, const BandActions& actions,
                        const std::function<void(QMenu&)>& fillMenu, QWidget* parent);

/// Brings a widget in line with its tool, and tells nobody.
void syncToolWidget(QWidget& widget, const Tool& tool);

/// The tool's icon in the colours of a palette, for a button.
void setToolIcon(QWidget& widget, const Tool& tool, const QPalette& palette);

} // namespace zkp
