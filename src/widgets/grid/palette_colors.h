#pragma once

#include "surface/style.h"

#include <QColor>
#include <QPalette>

namespace zkp {

/// A stored colour as it is painted: a system colour takes what the palette has for it at that
/// moment, so that a dark desktop works.
QColor paintedColor(Color color, const QPalette& palette);

/// The text colour, or black or white where it could not be read: a colour that a report was given on a
/// light desktop may meet the palette's text colour of a dark one.
QColor readableOn(const QColor& back, const QColor& fore);

/// Red, as dark or light as the palette's texts need to be read.
QColor refusalColor(const QPalette& palette);

/// An opaque colour as the control stores it.
Color storedColor(const QColor& color);

} // namespace zkp
