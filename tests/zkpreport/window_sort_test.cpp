#include "core/enums.h"
#include "window/texts.h"
#include "window_fixture.h"

#include <algorithm>

namespace {

using namespace zkp;
namespace texts = zkp::app::texts;

const QString kPremium = QStringLiteral("PREMIUM");

class WindowSort : public WindowTest {
protected:
    std::vector<double> premiums() {
        std::vector<double> all;
        for (const int row : rowsOfKind(ZKPSingleRow))
            all.push_back(QLocale(QLocale::Greek).toDouble(cell(row, kPremium)));
        return all;
    }
    bool isAscending() {
        const auto all = premiums();
        return !all.empty() && std::is_sorted(all.begin(), all.end());
    }
    bool isDescending() {
        const auto all = premiums();
        return !all.empty() && std::is_sorted(all.rbegin(), all.rend());
    }
    QString headingText(const QString& field) { return grid().TextMatrix(0, columnOf(field)); }
    void press(QPoint at) { QTest::mousePress(view().viewport(), Qt::LeftButton, Qt::NoModifier, at); }
    void move(QPoint at) {
        QMouseEvent event(QEvent::MouseMove, at, view().viewport()->mapToGlobal(at), Qt::NoButton,
                          Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view().viewport(), &event);
    }
    void release(QPoint at) {
        QTest::mouseRelease(view().viewport(), Qt::LeftButton, Qt::NoModifier, at);
        settle();
    }
};

TEST_F(WindowSort, AHeadingSortsUpAndWhenClickedAgainDown) {
    ASSERT_TRUE(open());
    const int column = columnOf(kPremium);
    EXPECT_FALSE(isAscending());
    clickHeading(column);
    EXPECT_EQ(grid().OrderBy(), QStringLiteral("[POLICIES].[PREMIUM] ASC"));
    EXPECT_TRUE(isAscending());
    EXPECT_EQ(premiums().size(), 600u);
    EXPECT_EQ(headingText(kPremium), texts::sortedHeading(QStringLiteral("Μικτά Ασφάλιστρα"), false));
    QTest::qWait(QApplication::doubleClickInterval() + 50);
    clickHeading(column);
    EXPECT_EQ(grid().OrderBy(), QStringLiteral("[POLICIES].[PREMIUM] DESC"));
    EXPECT_TRUE(isDescending());
    EXPECT_EQ(headingText(kPremium), texts::sortedHeading(QStringLiteral("Μικτά Ασφάλιστρα"), true));
    QTest::qWait(QApplication::doubleClickInterval() + 50);
    clickHeading(columnOf(QStringLiteral("POLICYNO")));
    EXPECT_EQ(grid().OrderBy(), QStringLiteral("[POLICIES].[PolicyNo] ASC"));
    EXPECT_EQ(headingText(kPremium), QStringLiteral("Μικτά Ασφάλιστρα"));
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(WindowSort, ADoubleClickIsTwoClicks) {
    ASSERT_TRUE(open());
    const QPoint at = heading(columnOf(kPremium));
    QTest::mouseClick(view().viewport(), Qt::LeftButton, Qt::NoModifier, at);
    QTest::mouseDClick(view().viewport(), Qt::LeftButton, Qt::NoModifier, at);
    settle();
    EXPECT_TRUE(isDescending());
}

TEST_F(WindowSort, ADragAndABorderDoNotSort) {
    ASSERT_TRUE(open());
    const QString before = grid().OrderBy();
    const int column = columnOf(kPremium);
    const QPoint from = heading(column);
    const QPoint far = heading(column - 1);
    press(from);
    move((from + far) / 2);
    move(far);
    release(far);
    press(from); // and back to where it began
    move(far);
    move(from);
    release(from);
    EXPECT_EQ(grid().OrderBy(), before);
    const Span border = *spanOf(view().page().cols, column);
    const QPoint edge(border.end() - 1, from.y());
    press(edge);
    release(edge);
    press(edge);
    move(edge + QPoint(30, 0));
    release(edge + QPoint(30, 0));
    EXPECT_EQ(grid().OrderBy(), before);
    EXPECT_FALSE(isAscending());
    for (int c = 0; c < grid().Cols(); ++c)
        EXPECT_EQ(grid().TextMatrix(0, c), grid().ColCaption(c)) << "headings stay with their columns";
}

TEST_F(WindowSort, ACellAndTheRightButtonDoNotSort) {
    ASSERT_TRUE(open());
    const QString before = grid().OrderBy();
    const QPoint at = heading(columnOf(kPremium));
    QTest::mouseClick(view().viewport(), Qt::RightButton, Qt::NoModifier, at);
    QTest::mouseClick(view().viewport(), Qt::LeftButton, Qt::NoModifier, at + QPoint(0, 60));
    QTest::mouseDClick(view().viewport(), Qt::LeftButton, Qt::NoModifier, at + QPoint(0, 60));
    settle();
    EXPECT_EQ(grid().OrderBy(), before);
}

TEST_F(WindowSort, KeysSortByTheCurrentColumn) {
    ASSERT_TRUE(open());
    view().setFocus();
    grid().MSFlexGrid1().setCol(columnOf(kPremium));
    QTest::keyClick(&view(), Qt::Key_T, Qt::ControlModifier | Qt::ShiftModifier);
    settle();
    EXPECT_TRUE(isAscending());
    QTest::keyClick(&view(), Qt::Key_T, Qt::ControlModifier | Qt::ShiftModifier);
    settle();
    EXPECT_TRUE(isDescending());
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(WindowSort, GroupsStayWholeAndTheirRowsAreSorted) {
    ASSERT_TRUE(open({{}, {}, {}, {QStringLiteral("CATEGORY")}}));
    const int columns = grid().Cols();
    clickHeading(columnOf(kPremium));
    EXPECT_EQ(rowsOfKind(ZKPSubTotals).size(), 5u);
    EXPECT_EQ(grid().Cols(), columns) << "a second load changes nothing";
    double last = -1e9;
    for (const int row : rowsOfKind(ZKPSingleRow)) {
        if (grid().MSFlexGrid1().RowData(row - 1) == ZKPSubTotals)
            last = -1e9;
        const double premium = QLocale(QLocale::Greek).toDouble(cell(row, kPremium));
        EXPECT_LE(last, premium) << row;
        last = premium;
    }
}

TEST_F(WindowSort, TheOrderHoldsWithAnotherFilterAndUserNotInAnotherReport) {
    ASSERT_TRUE(open());
    clickHeading(columnOf(kPremium));
    applyFilter(QStringLiteral("BRANCH='Βόλος'"));
    EXPECT_TRUE(isAscending());
    EXPECT_EQ(headingText(kPremium), texts::sortedHeading(QStringLiteral("Μικτά Ασφάλιστρα"), false));
    chooseUser(QStringLiteral("P0019"));
    EXPECT_TRUE(isAscending());
    chooseGroup(1, QStringLiteral("CATEGORY"));
    EXPECT_EQ(grid().OrderBy(), QStringLiteral("[POLICIES].[PREMIUM] ASC"));
    chooseReport(3);
    EXPECT_EQ(grid().OrderBy(), QString());
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(WindowSort, FilterAndRightsHoldInTheSortedReport) {
    ASSERT_TRUE(open({{}, QStringLiteral("P0019"), QStringLiteral("PREMIUM>100")}));
    QStringList before = rows();
    clickHeading(columnOf(kPremium));
    QTest::qWait(QApplication::doubleClickInterval() + 50);
    clickHeading(columnOf(kPremium));
    EXPECT_TRUE(isDescending());
    EXPECT_EQ(rows(), before);
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(WindowSort, AReportWithoutAMasterTableIsSortedToo) {
    ASSERT_TRUE(open({QStringLiteral("QRYPRODUCT"), {}, {}}));
    clickHeading(columnOf(kPremium));
    EXPECT_TRUE(isAscending());
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(WindowSort, AReportThatFailedIsNotSorted) {
    ASSERT_TRUE(open());
    applyFilter(QStringLiteral("NOSUCHFIELD=1"));
    host->messages.clear();
    clickHeading(columnOf(kPremium));
    EXPECT_TRUE(host->messages.empty());
}

} // namespace
