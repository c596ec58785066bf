// Linked to the host example: ends it once its window stands, and tells what the window shows.
#include <widgets/zkp_grid_widget.h>

#include <QApplication>
#include <QTimer>

#include <cstdio>

namespace {

void endWhenShown() {
    auto* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, qApp, [] {
        for (QWidget* form : QApplication::topLevelWidgets()) {
            auto* widget = qobject_cast<zkp::ZkpGridWidget*>(form);
            if (!widget || !widget->isVisible())
                continue;
            zkp::ZkpGrid& grid = widget->grid();
            std::printf("%g records, the first one %s\n", grid.RecCount(), qPrintable(grid.TextMatrix(1, 0)));
            QApplication::quit();
        }
    });
    timer->start(20);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(endWhenShown)
