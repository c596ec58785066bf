#include "base/texts/tools.h"
#include "widgets/tools/find_line.h"
#include "widgets/tools/find_marks.h"
#include "window_fixture.h"

#include <QAction>
#include <QInputMethodEvent>

namespace {

using namespace zkp;

class WindowFind : public WindowTest {
protected:
    QLineEdit& edit() { return part<QLineEdit>("findText"); }
    QString note() { return part<QLabel>("findNote").text(); }
    FindLine& line() { return *window->findChild<FindLine*>(); }
    FindMarks* marks() { return window->findChild<FindMarks*>(); }

    void openFind() {
        QTest::keyClick(&view(), Qt::Key_F, Qt::ControlModifier);
        settle();
    }
    /// As a keyboard with Greek letters does it.
    void type(const QString& text) {
        QInputMethodEvent event;
        event.setCommitString(text);
        QApplication::sendEvent(&edit(), &event);
        finish();
    }
    /// Lets a search come to its end.
    void finish() {
        for (int i = 0; i < 1000 && (i < 3 || note().startsWith(texts::findRunning(0).left(9))); ++i)
            QApplication::processEvents();
    }
    void key(Qt::Key code, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), code, modifiers);
        finish();
    }
    FoundCell current() { return {grid().MSFlexGrid1().Row(), grid().MSFlexGrid1().Col()}; }
    QString currentText() { return grid().TextMatrix(current().row, current().col); }
    bool isInSight() { return spanOf(view().page().rows, current().row) != nullptr; }
    /// The rows of a report in which a column shows a text.
    std::vector<int> rowsWith(const QString& text) {
        std::vector<int> found;
        for (int row = 1; row < grid().Rows(); ++row)
            for (int col = 0; col < grid().Cols(); ++col)
                if (grid().TextMatrix(row, col).contains(text)) {
                    found.push_back(row);
                    break;
                }
        return found;
    }
};

TEST_F(WindowFind, CtrlFOpensTheLineAtTheBottom) {
    ASSERT_TRUE(open());
    EXPECT_FALSE(line().isVisible());
    openFind();
    EXPECT_TRUE(line().isVisible());
    EXPECT_EQ(QApplication::focusWidget(), &edit());
    EXPECT_GT(line().mapTo(window.get(), QPoint()).y(), view().mapTo(window.get(), QPoint()).y());
}

TEST_F(WindowFind, GreekWithoutAccentsFindsTheFirstHitWhileItIsTyped) {
    ASSERT_TRUE(open());
    openFind();
    type(QStringLiteral("βο"));
    type(QStringLiteral("λοσ"));
    ASSERT_TRUE(currentText().contains(QStringLiteral("Βόλος"))) << qPrintable(currentText());
    EXPECT_EQ(current().row, rowsWith(QStringLiteral("Βόλος")).front())
        << "typing on begins where it was opened";
    EXPECT_TRUE(isInSight());
    EXPECT_EQ(note(), QString());
}

TEST_F(WindowFind, F3GoesOnRoundTheEndAndBack) {
    ASSERT_TRUE(open());
    openFind();
    type(QStringLiteral("βόλος"));
    const std::vector<int> hits = rowsWith(QStringLiteral("Βόλος"));
    ASSERT_GT(hits.size(), 2u);
    EXPECT_EQ(current().row, hits[0]);
    key(Qt::Key_F3);
    EXPECT_EQ(current().row, hits[1]);
    key(Qt::Key_Return);
    EXPECT_EQ(current().row, hits[2]);
    key(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(current().row, hits[1]);
    key(Qt::Key_Up);
    EXPECT_EQ(current().row, hits[0]);
    EXPECT_EQ(note(), QString());
    key(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_EQ(current().row, hits.back());
    EXPECT_EQ(note(), texts::findFromEnd());
    EXPECT_TRUE(isInSight());
    key(Qt::Key_F3);
    EXPECT_EQ(current().row, hits[0]);
    EXPECT_EQ(note(), texts::findFromTop());
}

TEST_F(WindowFind, WhatIsNowhereIsSaidAndNothingMoves) {
    ASSERT_TRUE(open());
    openFind();
    const FoundCell before = current();
    type(QStringLiteral("ουδαμού"));
    EXPECT_EQ(note(), texts::findNothing());
    EXPECT_EQ(current(), before);
    EXPECT_TRUE(marks()->marked().empty());
    edit().clear();
    finish();
    EXPECT_EQ(note(), QString());
}

TEST_F(WindowFind, AllHitsThatShowAreMarkedAndNoStyleIsWritten) {
    ASSERT_TRUE(open());
    GridSurface& surface = grid().MSFlexGrid1();
    openFind();
    const CellStyle before = surface.styleAt(5, columnOf(QStringLiteral("PREMIUM")));
    surface.takeCosts();
    type(QStringLiteral("Βόλος"));
    const std::vector<int> hits = rowsWith(QStringLiteral("Βόλος"));
    std::vector<int> expected;
    for (const int row : hits)
        if (spanOf(view().page().rows, row))
            expected.push_back(row);
    std::vector<int> marked;
    for (const FoundCell& cell : marks()->marked())
        marked.push_back(cell.row);
    EXPECT_EQ(marked, expected);
    EXPECT_GT(marked.size(), 1u);
    EXPECT_EQ(surface.styleAt(5, columnOf(QStringLiteral("PREMIUM"))), before);
    const QImage with = view().viewport()->grab().toImage();
    key(Qt::Key_Escape);
    settle();
    EXPECT_NE(view().viewport()->grab().toImage(), with);
    EXPECT_EQ(marks(), nullptr);
}

TEST_F(WindowFind, EscapeClosesFromTheLineAndFromTheReport) {
    ASSERT_TRUE(open());
    openFind();
    type(QStringLiteral("Βόλος"));
    const FoundCell found = current();
    key(Qt::Key_Escape);
    EXPECT_FALSE(line().isVisible());
    EXPECT_EQ(QApplication::focusWidget(), &view());
    EXPECT_EQ(current(), found);
    openFind();
    EXPECT_EQ(edit().selectedText(), QStringLiteral("Βόλος")) << "the last text, ready to be replaced";
    view().setFocus();
    QTest::keyClick(&view(), Qt::Key_Escape);
    settle();
    EXPECT_FALSE(line().isVisible());
}

TEST_F(WindowFind, F3OpensTheLineAndGoesOnWithTheLastText) {
    ASSERT_TRUE(open());
    view().setFocus();
    QTest::keyClick(&view(), Qt::Key_F3);
    settle();
    EXPECT_TRUE(line().isVisible()) << "there is nothing to look for yet";
    type(QStringLiteral("Βόλος"));
    const std::vector<int> hits = rowsWith(QStringLiteral("Βόλος"));
    key(Qt::Key_Escape);
    QTest::keyClick(&view(), Qt::Key_F3);
    finish();
    EXPECT_EQ(current().row, hits[1]);
    EXPECT_TRUE(marks() && !marks()->marked().empty());
}

TEST_F(WindowFind, AHitNearTheEndStandsOnAFullPage) {
    ASSERT_TRUE(open());
    const int last = grid().Rows() - 1;
    grid().MSFlexGrid1().setTextMatrix(last - 2, 1, QStringLiteral("κοντά στο τέλος"));
    openFind();
    type(QStringLiteral("κοντα στο τελος"));
    ASSERT_EQ(current().row, last - 2);
    EXPECT_TRUE(isInSight());
    const PageLayout& page = view().page();
    EXPECT_EQ(page.rows.back().index, last);
    EXPECT_LE(page.bottom(), page.size.height()) << "and the last row is whole";
    EXPECT_GT(page.bottom() + 2 * page.rows.back().size, page.size.height()) << "with no blank below it";
}

TEST_F(WindowFind, AHitFarToTheRightComesIntoSight) {
    ASSERT_TRUE(open());
    const int last = grid().Cols() - 1;
    for (int col = 0; col < last; ++col)
        grid().setColWidth(col, 6000);
    grid().MSFlexGrid1().setTextMatrix(400, last, QStringLiteral("στην άκρη"));
    openFind();
    type(QStringLiteral("στην ακρη"));
    EXPECT_EQ(current(), (FoundCell{400, last}));
    EXPECT_TRUE(isInSight());
    EXPECT_NE(spanOf(view().page().cols, last), nullptr);
    const QRect cell = view().page().cellRect(400, last);
    EXPECT_TRUE(view().viewport()->rect().contains(cell.center()));
}

TEST_F(WindowFind, AnotherReportIsSearchedWithTheSameLine) {
    ASSERT_TRUE(open());
    openFind();
    type(QStringLiteral("Βόλος"));
    chooseReport(1);
    settle();
    EXPECT_TRUE(line().isVisible());
    edit().setFocus();
    key(Qt::Key_F3);
    EXPECT_TRUE(currentText().contains(QStringLiteral("Βόλος")) || note() == texts::findNothing());
}

TEST_F(WindowFind, TheBandMovesWithTheFoundRowAndComesBackCleanly) {
    ASSERT_TRUE(open());
    grid().setRowSelect(true);
    grid().DrawInterface();
    const CellStyle plain = grid().MSFlexGrid1().styleAt(3, grid().Cols() - 1);
    openFind();
    type(QStringLiteral("Βόλος"));
    const int found = current().row;
    EXPECT_EQ(grid().MSFlexGrid1().styleAt(found, grid().Cols() - 1).backColor,
              grid().MSFlexGrid1().look().BackColorSel);
    key(Qt::Key_F3);
    ASSERT_NE(current().row, found);
    EXPECT_EQ(grid().MSFlexGrid1().styleAt(found, grid().Cols() - 1).backColor, plain.backColor);
}

} // namespace
