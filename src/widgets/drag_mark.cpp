#include "widgets/drag_mark.h"

#include <QPainter>
#include <QPalette>

namespace zkp {

namespace {

constexpr double kCarried = 0.85;
constexpr double kFaded = 0.6;
constexpr int kLine = 3;

} // namespace

void DragMark::paint(QPainter& painter, const QPalette& palette) const {
    QColor fade = palette.color(QPalette::Window);
    fade.setAlphaF(kFaded);
    painter.fillRect(from, fade);
    const QColor mark = palette.color(QPalette::Highlight);
    if (!heading.isNull()) {
        const QSize size = heading.deviceIndependentSize().toSize();
        painter.setOpacity(line ? kCarried : kFaded);
        painter.drawPixmap(left, 0, heading);
        painter.setPen(mark);
        painter.drawRect(left, 0, size.width() - 1, size.height() - 1);
        painter.setOpacity(1);
    }
    if (!line)
        return;
    painter.fillRect(*line - kLine / 2, 0, kLine, headingsHeight, mark);
    painter.fillRect(*line, headingsHeight, 1, height - headingsHeight, mark);
}

} // namespace zkp
