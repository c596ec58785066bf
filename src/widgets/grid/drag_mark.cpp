#include "widgets/grid/drag_mark.h"

#include "widgets/grid/palette_colors.h"

#include <QPainter>
#include <QPalette>

namespace zkp {

namespace {

constexpr double kFaded = 0.6;
constexpr int kLine = 3;
constexpr int kFrame = 2;

} // namespace

void DragMark::paint(QPainter& painter, const QPalette& palette) const {
    QColor fade = palette.color(QPalette::Window);
    fade.setAlphaF(kFaded);
    painter.fillRect(from, fade);
    const QColor mark = palette.color(QPalette::Highlight);
    if (!heading.isNull()) {
        const QRect carried(QPoint(left, 0), heading.deviceIndependentSize().toSize());
        painter.drawPixmap(carried.topLeft(), heading);
        painter.setPen(isRefused ? refusalColor(palette) : mark);
        for (int inset = 0; inset < kFrame; ++inset)
            painter.drawRect(carried.adjusted(inset, inset, -inset - 1, -inset - 1));
    }
    if (!line || isRefused)
        return;
    painter.fillRect(*line - kLine / 2, 0, kLine, headingsHeight, mark);
    painter.fillRect(*line, headingsHeight, 1, height - headingsHeight, mark);
}

} // namespace zkp
