#pragma once

#include <QColor>
#include <QIcon>

class QPalette;

namespace zkp {

/// Where an icon stands, which says what colour it takes under the pointer.
enum class IconPlace { Row, Menu };

/// The line drawing of a tool, in the palette's text colour and sharp at every scale; a null icon for a
/// tool that has none.
QIcon toolIcon(const QString& tool, const QPalette& palette, IconPlace place);

} // namespace zkp
