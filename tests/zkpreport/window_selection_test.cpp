#include "base/texts/tools.h"
#include "window_fixture.h"

#include <QAction>
#include <QClipboard>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>

namespace {

using namespace zkp;

const QString kPremium = QStringLiteral("PREMIUM");

/// What a user does with a block of cells.
class WindowSelection : public WindowTest {
protected:
    QString sums() {
        for (int i = 0; i < 1000 && part<QLabel>("sums").text().startsWith(texts::summing(0).left(10));
             ++i)
            QApplication::processEvents();
        return part<QLabel>("sums").text();
    }
    QPoint middle(int row, int col) { return view().page().cellRect(row, col).center(); }
    void drag(int row, int col, int toRow, int toCol) {
        grid().MSFlexGrid1().userSelect(toRow, toCol);
        view().setFocus();
        QTest::keyClick(&view(), Qt::Key_Home, Qt::NoModifier); // and all of it comes into sight
        for (int c = 0; c < toCol; ++c)
            QTest::keyClick(&view(), Qt::Key_Right);
        const QPoint from = middle(row, col);
        const QPoint to = middle(toRow, toCol);
        QTest::mousePress(view().viewport(), Qt::LeftButton, Qt::NoModifier, from);
        for (const QPoint at : {(from + to) / 2, to}) {
            QMouseEvent move(QEvent::MouseMove, at, view().viewport()->mapToGlobal(at), Qt::NoButton,
                             Qt::LeftButton, Qt::NoModifier);
            QApplication::sendEvent(view().viewport(), &move);
        }
        QTest::mouseRelease(view().viewport(), Qt::LeftButton, Qt::NoModifier, to);
        settle();
    }
    QClipboard& clipboard() { return *QApplication::clipboard(); }
    void copy() {
        clipboard().clear();
        QTest::keyClick(&view(), Qt::Key_C, Qt::ControlModifier);
        settle();
    }
    QString cellText(int row, int col) { return grid().TextMatrix(row, col); }
};

TEST_F(WindowSelection, ADraggedBlockIsCopiedUnderItsHeadings) {
    ASSERT_TRUE(open());
    const int col = columnOf(kPremium);
    drag(2, col - 1, 4, col);
    copy();
    QString expected = grid().ColCaption(col - 1) + u'\t' + grid().ColCaption(col) + u'\n';
    for (int row = 2; row <= 4; ++row)
        expected += cellText(row, col - 1) + u'\t' + cellText(row, col) + u'\n';
    EXPECT_EQ(clipboard().text(), expected);
    ASSERT_TRUE(clipboard().mimeData()->hasHtml());
    const QString html = clipboard().mimeData()->html();
    EXPECT_TRUE(html.contains(QStringLiteral("<th>%1</th>").arg(grid().ColCaption(col))));
    EXPECT_TRUE(html.contains(QStringLiteral("<td align=\"right\">%1</td>").arg(cellText(3, col))));
}

TEST_F(WindowSelection, TheHeadingOfASortedColumnIsCopiedWithoutItsMark) {
    ASSERT_TRUE(open());
    clickHeading(columnOf(kPremium));
    drag(1, columnOf(kPremium), 2, columnOf(kPremium));
    copy();
    EXPECT_EQ(clipboard().text().section(u'\n', 0, 0), grid().ColCaption(columnOf(kPremium)));
}

TEST_F(WindowSelection, GroupCellsAreCopiedAsTheyShow) {
    ASSERT_TRUE(open({{}, {}, {}, {QStringLiteral("CATEGORY")}}));
    ASSERT_EQ(cellText(1, 0), cellText(2, 0));
    drag(1, 0, 3, 1);
    copy();
    const QStringList lines = clipboard().text().split(u'\n');
    EXPECT_EQ(lines.value(1), cellText(1, 0) + u'\t' + cellText(1, 1));
    EXPECT_EQ(lines.value(2), u'\t' + cellText(2, 1));
    EXPECT_TRUE(clipboard().mimeData()->html().contains(QStringLiteral("rowspan=\"3\"")));
}

TEST_F(WindowSelection, TheMenuCopiesToo) {
    ASSERT_TRUE(open());
    clipboard().clear();
    drag(1, 1, 2, 2);
    part<QAction>("copy").trigger();
    EXPECT_TRUE(clipboard().text().startsWith(grid().ColCaption(1) + u'\t'));
}

TEST_F(WindowSelection, ATextFieldCopiesItsOwnText) {
    ASSERT_TRUE(open());
    filter().setText(QStringLiteral("PREMIUM"));
    filter().setFocus();
    filter().selectAll();
    QTest::keyClick(&filter(), Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard().text(), QStringLiteral("PREMIUM"));
}

TEST_F(WindowSelection, TheStatusLineAddsUpWhatIsSelected) {
    ASSERT_TRUE(open());
    EXPECT_EQ(sums(), QString()) << "one cell has no sum";
    const int col = columnOf(kPremium);
    drag(1, col, 3, col);
    Decimal sum;
    for (int row = 1; row <= 3; ++row)
        sum += *grid().MSFlexGrid1().shownNumber(row, col);
    EXPECT_EQ(sums().section(QStringLiteral("   "), 0, 0),
              texts::sums(greek(sum.toDouble()), {}, {}).section(QStringLiteral("   "), 0, 0));
    EXPECT_TRUE(sums().contains(QStringLiteral("   Πλήθος 3   "))) << qPrintable(sums());
    QTest::keyClick(&view(), Qt::Key_Down, Qt::ShiftModifier);
    settle();
    EXPECT_TRUE(sums().contains(QStringLiteral("Πλήθος 4"))) << "and follows the keys";
    QTest::keyClick(&view(), Qt::Key_Down);
    settle();
    EXPECT_EQ(sums(), QString());
}

TEST_F(WindowSelection, AWholeColumnHasTheSumOfTheDatabase) {
    ASSERT_TRUE(open());
    const int col = columnOf(kPremium);
    grid().MSFlexGrid1().Select(1, col, recordCount(), col);
    settle();
    EXPECT_TRUE(sums().startsWith(texts::sums(
        greek(amount(QStringLiteral("SELECT SUM(PREMIUM) FROM POLICIES"))), QStringLiteral("600"), {})))
        << qPrintable(sums());
}

TEST_F(WindowSelection, OtherRowsUnderTheSameSelectionHaveOtherSums) {
    ASSERT_TRUE(open());
    const int col = columnOf(kPremium);
    drag(1, col, 5, col);
    const QString before = sums();
    QTest::keyClick(&view(), Qt::Key_T, Qt::ControlModifier | Qt::ShiftModifier);
    grid().MSFlexGrid1().Select(1, col, 5, col);
    settle();
    EXPECT_NE(sums(), before);
    chooseReport(1);
    settle();
    EXPECT_EQ(sums(), QString());
}

} // namespace
