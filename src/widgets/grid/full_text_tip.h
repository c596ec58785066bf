#pragma once

#include <QRect>
#include <QString>

class QHelpEvent;
class QWidget;

namespace zkp {

/// Shows a text that a place of the widget has no room for, while the pointer rests on that place.
void showFullText(const QHelpEvent& event, QWidget& widget, const QRect& place, QString text);

} // namespace zkp
