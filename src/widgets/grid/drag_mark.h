#pragma once

#include <QPixmap>
#include <QRect>

#include <optional>

class QPainter;
class QPalette;

namespace zkp {

/// What shows while a heading is dragged: the heading itself under the pointer, its own place faded, and
/// a line where the column would go.
struct DragMark {
    QPixmap heading;
    int left = 0;            ///< of the heading that is carried
    QRect from;              ///< the place that it was taken from; empty when that does not show
    std::optional<int> line; ///< nothing where there is no place for it
    bool isRefused = false;  ///< a drop here would change nothing
    int headingsHeight = 0;
    int height = 0; ///< of all that shows

    void paint(QPainter& painter, const QPalette& palette) const;
};

} // namespace zkp
