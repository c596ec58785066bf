#include "window/window_pictures.h"

#include <QApplication>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>

namespace zkp::app {

namespace {

constexpr int kPause = 100; // milliseconds: longer than a menu waits with its submenu
constexpr int kMenuRow = 6;
constexpr int kMenuCol = 1;
constexpr int kDraggedCol = 3;
constexpr int kDropCol = 5;

void send(GridView& view, QEvent::Type type, QPoint at, Qt::MouseButton button, Qt::MouseButtons buttons) {
    QMouseEvent event(type, at, view.viewport()->mapToGlobal(at), button, buttons, Qt::NoModifier);
    QApplication::sendEvent(view.viewport(), &event);
    letEventsRun();
}

void press(QWidget& widget, Qt::Key key) {
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
    letEventsRun();
}

} // namespace

QImage pictureOf(ReportWindow& window, double scale) {
    QImage image((QSizeF(window.size()) * scale).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(window.palette().color(QPalette::Window));
    window.render(&image);
    QPainter painter(&image);
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (qobject_cast<QMenu*>(widget) && widget->isVisible())
            widget->render(&painter, window.mapFromGlobal(widget->pos()));
    return image;
}

QPalette darkPalette() {
    const QColor text(222, 222, 222);
    const QColor faint(125, 125, 130);
    QPalette dark(QColor(58, 58, 62), QColor(43, 43, 46));
    dark.setColor(QPalette::Base, QColor(30, 30, 32));
    dark.setColor(QPalette::AlternateBase, QColor(36, 36, 39));
    dark.setColor(QPalette::ToolTipBase, QColor(60, 60, 64));
    dark.setColor(QPalette::Highlight, QColor(45, 105, 170));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    dark.setColor(QPalette::PlaceholderText, faint);
    dark.setColor(QPalette::Light, QColor(80, 80, 86));
    dark.setColor(QPalette::Midlight, QColor(68, 68, 73));
    dark.setColor(QPalette::Mid, QColor(76, 76, 82));
    dark.setColor(QPalette::Dark, QColor(24, 24, 26));
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        dark.setColor(role, text);
        dark.setColor(QPalette::Disabled, role, faint);
    }
    return dark;
}

void letEventsRun() {
    QCoreApplication::processEvents(QEventLoop::AllEvents, kPause);
    QCoreApplication::processEvents(QEventLoop::AllEvents, kPause);
}

void openContextMenu(ReportWindow& window) {
    GridView& view = *window.findChild<GridView*>();
    const QPoint at = view.page().cellRect(kMenuRow, kMenuCol).center();
    send(view, QEvent::MouseButtonPress, at, Qt::RightButton, Qt::RightButton);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!menu || menu->isEmpty())
        return;
    menu->move(view.viewport()->mapToGlobal(at)); // it has opened at the pointer, which is elsewhere
    menu->setActiveAction(menu->actions().front());
    press(*menu, Qt::Key_Right);
}

void dragHeading(ReportWindow& window) {
    GridView& view = *window.findChild<GridView*>();
    const QPoint from = view.page().cellRect(0, kDraggedCol).center();
    const QPoint to = view.page().cellRect(0, kDropCol).center();
    send(view, QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
    for (const QPoint at : {(from + to) / 2, to})
        send(view, QEvent::MouseMove, at, Qt::NoButton, Qt::LeftButton);
}

} // namespace zkp::app
