#pragma once

#include "platform/style.h"

#include <QColor>
#include <QPalette>

namespace zkp {

/// A stored colour as it is painted: a system colour takes what the palette has for it at that
/// moment, so that a dark desktop works.
QColor paintedColor(Color color, const QPalette& palette);

/// An opaque colour as the control stores it.
Color storedColor(const QColor& color);

} // namespace zkp
