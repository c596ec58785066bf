#include "ado/connection.h"
#include "base/texts/tools.h"
#include "print_qt.h"
#include "widgets/grid/grid_view.h"
#include "widgets/tools/copy_tool.h"
#include "widgets/tools/find_line.h"
#include "widgets/tools/find_marks.h"
#include "widgets/tools/find_tool.h"
#include "widgets/tools/progress_tool.h"
#include "widgets/tools/sums_tool.h"
#include "widgets/tools/undo_tool.h"
#include "widgets/zkp_grid_widget.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QStatusBar>
#include <QVBoxLayout>
#include <QtTest/QTest>

#include <gtest/gtest.h>

namespace {

using namespace zkp;

void settle() {
    for (int i = 0; i < 3; ++i)
        QApplication::processEvents();
}

/// A host's form: a report of three towns with an amount each, a menu, a status line, and the tools.
class ReportTools : public testing::Test {
protected:
    ReportTools() {
        connection->Open(QStringLiteral("sqlite:"));
        connection->Execute(QStringLiteral("CREATE TABLE SALES (TOWN TEXT, AMOUNT MONEY)"));
        connection->Execute(
            QStringLiteral("INSERT INTO SALES VALUES ('Αθήνα', 10), ('Βόλος', 20.5), ('Πάτρα', 30)"));
        column = new QVBoxLayout(&place);
        form.setCentralWidget(&place);
        showReport(makeReport());
        QMenu* menu = form.menuBar()->addMenu(QStringLiteral("Edit"));
        for (ReportTool* tool : tools)
            menu->addActions(tool->actions());
        column->addWidget(find.widget());
        form.statusBar()->addWidget(progress.widget());
        form.statusBar()->addPermanentWidget(sums.widget());
        progress.watch(*connection);
        form.resize(500, 400);
        form.show();
        QApplication::setActiveWindow(&form);
        settle();
    }
    ~ReportTools() override { place.setParent(nullptr); }

    ZkpGridWidget* makeReport() {
        auto* made = new ZkpGridWidget;
        ZkpGrid& grid = made->grid();
        grid.setLocale(QLocale(QStringLiteral("el_GR")));
        grid.setCols(2);
        grid.setColDataField(0, QStringLiteral("TOWN"));
        grid.setColCaption(0, QStringLiteral("Πόλη"));
        grid.setColDataField(1, QStringLiteral("AMOUNT"));
        grid.setColCaption(1, QStringLiteral("Ποσό"));
        grid.Fill(connection, QStringLiteral("SELECT TOWN, AMOUNT FROM SALES ORDER BY TOWN"),
                  ZKP_SQLStatement);
        grid.refresh();
        column->addWidget(made);
        return made;
    }
    void showReport(ZkpGridWidget* shown) {
        report = shown;
        for (ReportTool* tool : tools)
            tool->setReport(shown);
    }
    ZkpGrid& grid() { return report->grid(); }
    GridSurface& surface() { return grid().MSFlexGrid1(); }
    QAction& command(const ReportTool& tool, const char* name) {
        for (QAction* action : tool.actions())
            if (action->objectName() == QLatin1String(name))
                return *action;
        ADD_FAILURE() << "no command " << name;
        return *tool.actions().front();
    }
    QString labelOf(const ReportTool& tool) { return static_cast<QLabel*>(tool.widget())->text(); }
    void type(const QString& text) {
        find.widget()->findChild<QLineEdit*>(QStringLiteral("findText"))->setText(text);
        settle();
    }

    ado::ConnectionPtr connection = std::make_shared<ado::Connection>();
    QMainWindow form;
    QWidget place;
    QVBoxLayout* column = nullptr;
    ZkpGridWidget* report = nullptr;
    UndoTool undo;
    CopyTool copy;
    FindTool find;
    SumsTool sums;
    ProgressTool progress;
    std::vector<ReportTool*> tools{&undo, &copy, &find, &sums, &progress};
};

TEST_F(ReportTools, TheCommandsAreThoseOfTheirTools) {
    QStringList names;
    for (const ReportTool* tool : tools)
        for (const QAction* action : tool->actions())
            names += action->objectName();
    EXPECT_EQ(names.join(u' '), QStringLiteral("undo redo copy find findNext findPrevious"));
    EXPECT_EQ(copy.widget(), nullptr);
    EXPECT_EQ(undo.widget(), nullptr);
}

TEST_F(ReportTools, FindGoesToTheCellWhateverCaseAndAccents) {
    command(find, "find").trigger();
    ASSERT_TRUE(find.isOpen());
    type(QStringLiteral("βολοσ"));
    EXPECT_EQ(surface().Row(), 2);
    EXPECT_EQ(surface().Col(), 0);
    ASSERT_TRUE(report->findChild<FindMarks*>());
    EXPECT_EQ(report->findChild<FindMarks*>()->marked(), (std::vector<FoundCell>{{2, 0}}));
    find.close();
    EXPECT_FALSE(find.isOpen());
    EXPECT_FALSE(report->findChild<FindMarks*>());
}

TEST_F(ReportTools, EscapeAnywhereInTheFormClosesTheFindLine) {
    command(find, "find").trigger();
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_FALSE(find.isOpen());
}

TEST_F(ReportTools, CopyTakesTheSelectedBlockUnderItsHeadings) {
    surface().Select(1, 0, 2, 1);
    command(copy, "copy").trigger();
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("Πόλη\tΠοσό\nΑθήνα\t10,00\nΒόλος\t20,50\n"));
}

TEST_F(ReportTools, SumsFollowTheSelectionAndALoad) {
    surface().Select(1, 1, 2, 1);
    settle();
    EXPECT_EQ(labelOf(sums),
              texts::sums(QStringLiteral("30,50"), QStringLiteral("2"), QStringLiteral("15,25")));
    surface().Select(1, 1, 1, 1);
    settle();
    EXPECT_EQ(labelOf(sums), QString()) << "one cell alone has none";
}

TEST_F(ReportTools, UndoTakesAStepBackAndRedoMakesItAgain) {
    EXPECT_FALSE(command(undo, "undo").isEnabled());
    EXPECT_FALSE(undo.hasChanges());
    grid().setColCaption(0, QStringLiteral("Τόπος"));
    settle();
    ASSERT_TRUE(command(undo, "undo").isEnabled());
    EXPECT_TRUE(undo.hasChanges());
    command(undo, "undo").trigger();
    EXPECT_EQ(grid().ColCaption(0), QStringLiteral("Πόλη"));
    EXPECT_FALSE(undo.hasChanges());
    command(undo, "redo").trigger();
    EXPECT_EQ(grid().ColCaption(0), QStringLiteral("Τόπος"));
    undo.setSaved();
    EXPECT_FALSE(undo.hasChanges());
}

TEST_F(ReportTools, AStepBackThatNeedsOtherRowsLoadsTheReport) {
    grid().setDesignMode(true);
    surface().userSelect(1, 1);
    int column = 1;
    grid().deletecolumn(column);
    settle();
    ASSERT_EQ(grid().Cols(), 1);
    command(undo, "undo").trigger();
    settle();
    ASSERT_EQ(grid().Cols(), 2);
    EXPECT_EQ(grid().TextMatrix(2, 1), QStringLiteral("20,50"));
}

TEST_F(ReportTools, AHostThatLoadsByItselfIsAskedTo) {
    int reloads = 0;
    undo.setReload([&] {
        ++reloads;
        grid().refresh();
    });
    surface().userSelect(1, 1);
    int column = 1;
    grid().deletecolumn(column);
    settle();
    command(undo, "undo").trigger();
    EXPECT_EQ(reloads, 1);
}

TEST_F(ReportTools, AnotherReportStartsAnew) {
    grid().setColCaption(0, QStringLiteral("Τόπος"));
    settle();
    command(find, "find").trigger();
    type(QStringLiteral("πάτρα"));
    ZkpGridWidget* before = report;
    showReport(makeReport());
    EXPECT_FALSE(command(undo, "undo").isEnabled());
    EXPECT_TRUE(find.isOpen()) << "the line stays, for the other report";
    EXPECT_FALSE(before->findChild<FindMarks*>());
    EXPECT_TRUE(report->findChild<FindMarks*>());
    before->grid().setColCaption(0, QStringLiteral("Τόπος 2"));
    settle();
    EXPECT_FALSE(command(undo, "undo").isEnabled()) << "what happens to the report before is not heard";
}

TEST_F(ReportTools, ALoadTellsHowItGoesAndNothingWhenItHasEnded) {
    QStringList shown;
    class Log : public QObject {
    public:
        explicit Log(QStringList& to)
            : to_(to) {}
        bool eventFilter(QObject* watched, QEvent* event) override {
            const QString text = static_cast<QLabel*>(watched)->text();
            if (event->type() == QEvent::Paint && !text.isEmpty())
                to_ += text;
            return false;
        }

    private:
        QStringList& to_;
    } log(shown);
    progress.widget()->installEventFilter(&log);
    grid().refresh();
    EXPECT_EQ(shown, QStringList{texts::loadBegins()});
    EXPECT_EQ(labelOf(progress), QString());
}

TEST_F(ReportTools, ToolsOutliveTheReportAndDoNothingWithoutOne) {
    command(find, "find").trigger();
    type(QStringLiteral("α"));
    delete report;
    settle();
    for (ReportTool* tool : tools) {
        EXPECT_EQ(tool->report(), nullptr);
        for (QAction* action : tool->actions())
            action->trigger();
    }
    settle();
    showReport(nullptr);
    EXPECT_FALSE(undo.hasChanges());
    showReport(makeReport());
    command(copy, "copy").trigger();
}

TEST(ReportTool, AWidgetThatNobodyPlacesGoesWithItsTool) {
    QPointer<QWidget> widget;
    {
        const SumsTool sums;
        widget = sums.widget();
        ASSERT_TRUE(widget);
    }
    EXPECT_FALSE(widget);
}

TEST(ReportTool, AWidgetThatWasPlacedBelongsToItsPlace) {
    QWidget place;
    QPointer<QWidget> widget;
    {
        const SumsTool sums;
        widget = sums.widget();
        widget->setParent(&place);
    }
    EXPECT_TRUE(widget);
}

} // namespace
