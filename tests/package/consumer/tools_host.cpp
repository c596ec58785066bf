// A host that sets the tools beside its report, by the example of the host guide.
#include <ado/connection.h>
#include <widgets/tools/copy_tool.h>
#include <widgets/tools/find_tool.h>
#include <widgets/tools/progress_tool.h>
#include <widgets/tools/sums_tool.h>
#include <widgets/tools/undo_tool.h>
#include <widgets/zkp_grid_widget.h>

#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QVBoxLayout>

#include <cstdio>

#include "tools_example.h"

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    auto connection = std::make_shared<zkp::ado::Connection>();
    connection->Open("sqlite:demo.db");
    QMainWindow form;
    auto* place = new QWidget;
    form.setCentralWidget(place);
    auto* column = new QVBoxLayout(place);
    auto* report = new zkp::ZkpGridWidget;
    column->addWidget(report);
    report->grid().setColDataField(0, "POLICYNO");
    report->grid().Fill(connection, "SELECT POLICYNO FROM POLICIES", zkp::ZKP_SQLStatement);
    report->grid().refresh();

    QMenu* menu = form.menuBar()->addMenu("Edit");
    addTools(form, *menu, *column, *report);
    form.show();
    QApplication::processEvents();
    QStringList names;
    for (const QAction* action : menu->actions())
        names += action->objectName();
    std::puts(qPrintable(names.join(u' ')));
}
