#include "window/report_tools.h"

#include "widgets/zkp_grid_widget.h"
#include "window/texts.h"

#include <QMainWindow>
#include <QMenuBar>
#include <QStatusBar>

namespace zkp::app {

ReportTools::ReportTools(QMainWindow& window)
    : undo(&window)
    , copy(&window)
    , find(&window)
    , sums(&window)
    , progress(&window) {
    QMenu* menu = window.menuBar()->addMenu(texts::editMenu());
    menu->addActions(undo.actions());
    menu->addSeparator();
    menu->addActions(copy.actions());
    menu->addSeparator();
    menu->addActions(find.actions());
    window.statusBar()->addWidget(progress.widget(), 1); // it has its room before a load begins
    window.statusBar()->addPermanentWidget(sums.widget());
}

void ReportTools::showReport(ZkpGridWidget* report) {
    for (ReportTool* tool : std::initializer_list<ReportTool*>{&undo, &copy, &find, &sums})
        tool->setReport(report);
}

} // namespace zkp::app
