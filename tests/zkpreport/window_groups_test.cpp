#include "base/texts/rows.h"
#include "core/enums.h"
#include "widgets/grid/palette_colors.h"
#include "window/texts.h"
#include "window_fixture.h"

// Group factors in a detail report. All categories and products of the demonstration are named.

namespace {

using namespace zkp;
namespace texts = zkp::app::texts;

const QString kCategory = QStringLiteral("CATEGORY");
const QString kProduct = QStringLiteral("PRODUCTNAME");

class WindowGroups : public WindowTest {
protected:
    void groupByProduct() {
        chooseGroup(1, kCategory);
        chooseGroup(2, kProduct);
    }
};

TEST_F(WindowGroups, FactorsStandMergedAtTheLeftInTheirOrder) {
    ASSERT_TRUE(open());
    groupByProduct();
    EXPECT_EQ(grid().ColDataField(0), kCategory);
    EXPECT_EQ(grid().ColDataField(1), kProduct);
    EXPECT_EQ(grid().ColCaption(0), QStringLiteral("Κλάδος"));
    EXPECT_TRUE(grid().ColForTot(0) && grid().ColForTot(1));
    EXPECT_FALSE(grid().ColForTot(2));
    const GridSurface& surface = grid().MSFlexGrid1();
    EXPECT_EQ(surface.MergeCells(), 1);
    EXPECT_TRUE(surface.MergeCol(0) && surface.MergeCol(1));
    EXPECT_FALSE(surface.MergeCol(2));
    EXPECT_EQ(captions().count(QStringLiteral("Προϊόν")), 1) << "the factor's own column has moved";
    EXPECT_EQ(grid().Cols(), 9) << "two factors, two fields that tell rows apart, two names, three amounts";
    EXPECT_EQ(captions().last(), QStringLiteral("Φόρος"));
    EXPECT_EQ(recordCount(), 600);
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(WindowGroups, EveryGroupEndsInItsSubtotalAndTheReportInItsTotals) {
    ASSERT_TRUE(open());
    groupByProduct();
    const auto groups = number(QStringLiteral("SELECT COUNT(DISTINCT CATEGORY) FROM POLICIESDATA"));
    const auto inner = number(
        QStringLiteral("SELECT COUNT(*) FROM (SELECT DISTINCT CATEGORY, PRODUCTNAME FROM POLICIESDATA)"));
    const std::vector<int> subtotals = rowsOfKind(ZKPSubTotals);
    EXPECT_EQ(subtotals.size(), static_cast<std::size_t>(groups + inner));
    EXPECT_EQ(rowsOfKind(ZKPSingleRow).size(), 600u);
    const int last = grid().Rows() - 1;
    EXPECT_EQ(rowsOfKind(ZKPTotals), std::vector<int>{last});

    for (const int row : subtotals) {
        QString where = QStringLiteral("CATEGORY='%1'").arg(cell(row, kCategory));
        if (const QString product = cell(row, kProduct); !product.isEmpty())
            where += QStringLiteral(" AND PRODUCTNAME='%1'").arg(product);
        for (const char* field : {"PREMIUM", "NET"})
            EXPECT_EQ(
                cell(row, QLatin1String(field)),
                greek(amount(
                    QStringLiteral("SELECT SUM(%1) FROM POLICIESDATA WHERE ").arg(QLatin1String(field)) +
                    where)))
                << qPrintable(where);
    }
    EXPECT_EQ(cell(last, QStringLiteral("PREMIUM")),
              greek(amount(QStringLiteral("SELECT SUM(PREMIUM) FROM POLICIESDATA"))));
}

TEST_F(WindowGroups, APlainReportEndsInItsTotals) {
    ASSERT_TRUE(open());
    const int last = grid().Rows() - 1;
    EXPECT_EQ(rowsOfKind(ZKPTotals), std::vector<int>{last});
    EXPECT_TRUE(rowsOfKind(ZKPSubTotals).empty());
    EXPECT_EQ(cell(last, QStringLiteral("RENEWALS")), QStringLiteral(" ")) << "a count is no amount";
    EXPECT_EQ(cell(last, QStringLiteral("PREMIUM")),
              greek(amount(QStringLiteral("SELECT SUM(PREMIUM) FROM POLICIESDATA"))));
}

TEST_F(WindowGroups, AReportWithoutAMasterTableIsGroupedToo) {
    ASSERT_TRUE(open({QStringLiteral("QRYPRODUCT"), {}, {}, {QStringLiteral("BRANCH"), kCategory}}));
    EXPECT_EQ(grid().ColDataField(0), QStringLiteral("BRANCH"));
    EXPECT_EQ(recordCount(), number(QStringLiteral("SELECT COUNT(*) FROM QRYPRODUCT")));
    EXPECT_EQ(cell(grid().Rows() - 1, QStringLiteral("PREMIUM")),
              greek(amount(QStringLiteral("SELECT SUM(PREMIUM) FROM QRYPRODUCT"))));
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(WindowGroups, TheListsOfferTheDictionarysFactorsOnceEach) {
    ASSERT_TRUE(open());
    EXPECT_TRUE(groupList(1).isVisible());
    EXPECT_FALSE(groupList(2).isVisible()) << "before the first has its factor";
    EXPECT_EQ(groupList(1).itemText(0), texts::noGroup());
    EXPECT_LT(groupList(1).findData(QStringLiteral("PREMIUM")), 0) << "an amount groups nothing";
    groupByProduct();
    EXPECT_TRUE(groupList(3).isVisible());
    EXPECT_FALSE(groupList(4).isVisible());
    EXPECT_LT(groupList(3).findData(kCategory), 0) << "chosen already";
    chooseGroup(3, QStringLiteral("REGION"));
    chooseGroup(4, QStringLiteral("STATUS"));
    EXPECT_EQ(grid().ColDataField(3), QStringLiteral("STATUS"));
    chooseGroup(1, QString());
    EXPECT_EQ(groupList(1).currentData(), kProduct) << "those behind it move up";
    EXPECT_EQ(grid().ColDataField(0), kProduct);
    EXPECT_EQ(grid().ColDataField(2), QStringLiteral("STATUS"));
    EXPECT_FALSE(grid().ColForTot(3));
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(WindowGroups, KeysChooseFactors) {
    ASSERT_TRUE(open());
    groupList(1).setFocus();
    QTest::keyClick(&groupList(1), Qt::Key_Down);
    settle();
    EXPECT_EQ(grid().ColDataField(0), groupList(1).itemData(1).toString());
    EXPECT_TRUE(grid().ColForTot(0));
    EXPECT_TRUE(groupList(1).hasFocus());
    QTest::keyClick(&groupList(1), Qt::Key_Tab);
    EXPECT_TRUE(groupList(2).hasFocus());
    groupList(1).setFocus();
    QTest::keyClick(&groupList(1), Qt::Key_Up);
    settle();
    EXPECT_FALSE(grid().ColForTot(0));
}

TEST_F(WindowGroups, AFilterAndAUserKeepTheGroupsAnotherReportStartsWithoutThem) {
    ASSERT_TRUE(open());
    groupByProduct();
    applyFilter(QStringLiteral("BRANCH='Βόλος'"));
    EXPECT_EQ(grid().ColDataField(1), kProduct);
    chooseUser(QStringLiteral("P0019"));
    EXPECT_EQ(grid().ColDataField(1), kProduct);
    EXPECT_EQ(cell(grid().Rows() - 1, QStringLiteral("PREMIUM")),
              greek(amount(QStringLiteral("SELECT SUM(PREMIUM) FROM POLICIESDATA WHERE BRANCH='Βόλος' AND "
                                          "(ProductIdentity='P0019' OR UnitIdentity='U02')"))))
        << "the sums are over the user's rows";
    chooseReport(1);
    EXPECT_FALSE(grid().ColForTot(0));
    EXPECT_EQ(groupList(1).currentIndex(), 0);
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(WindowGroups, AFactorThatTheReportLacksIsTold) {
    EXPECT_FALSE(open({{}, {}, {}, {kCategory, QStringLiteral("NOSUCH")}}));
    EXPECT_EQ(window->message(), texts::noSuchGroup(QStringLiteral("CATEGORY,NOSUCH")));
    EXPECT_EQ(grid().ColDataField(0), kCategory) << "the others group it";
    EXPECT_EQ(recordCount(), 600);
}

TEST_F(WindowGroups, BlankFactorsOfRecordsShowTheirMark) {
    ASSERT_TRUE(open({{}, {}, {}, {QStringLiteral("BRANCH")}}));
    EXPECT_EQ(cell(1, QStringLiteral("BRANCH")), zkp::texts::repeatedValue()) << "nulls come first";
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(WindowGroups, SectionsHaveColoursOfTheirOwnOnALightAndADarkPalette) {
    ASSERT_TRUE(open());
    groupByProduct();
    QPalette dark = window->palette();
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::Text, QColor(220, 220, 220));
    for (const bool isDark : {false, true}) {
        if (isDark)
            window->setPalette(dark);
        const int base = qGray(window->palette().color(QPalette::Base).rgb());
        const int subtotal = rowsOfKind(ZKPSubTotals).front();
        const auto contrast = [&](int row, int col) { // once it has come into sight
            GridSurface& surface = grid().MSFlexGrid1();
            surface.setTopRow(row);
            settle();
            const Color back = surface.styleAt(row, col).backColor;
            return std::abs(qGray(paintedColor(back, window->palette()).rgb()) - base);
        };
        EXPECT_EQ(contrast(subtotal - 1, 4), 0) << isDark;
        EXPECT_LT(3, contrast(subtotal - 1, 0)) << isDark;
        EXPECT_LT(contrast(subtotal - 1, 0), contrast(subtotal, 4)) << isDark;
        EXPECT_LT(contrast(subtotal, 4), contrast(grid().Rows() - 1, 4)) << isDark;
        EXPECT_LT(contrast(grid().Rows() - 1, 4), 60) << "quiet";
    }
}

TEST_F(OtherDatabase, AFactorThatTheStatementLacksShowsABoxAndTheWindowGoesOn) {
    const QStringList tables{
        QStringLiteral("CREATE TABLE Reports (RecSource TEXT, Dictionary TEXT)"),
        QStringLiteral("INSERT INTO Reports VALUES ('OTHER', 'FIELDS')"),
        QStringLiteral("CREATE TABLE FIELDS (dtfld TEXT, Cptn TEXT, wdth INTEGER, Algn INTEGER, visbl "
                       "INTEGER, IsPublic INTEGER, isgroup INTEGER, isTot INTEGER, [Sum] INTEGER, [Avg] "
                       "INTEGER, [Min] INTEGER, [Max] INTEGER, crosstabdate INTEGER, SOURCEFIELDNAME "
                       "TEXT, SourceTableName TEXT, Expr TEXT, KeyMaster TEXT, foreignkey TEXT)"),
        QStringLiteral("CREATE TABLE QRN_Main (GenKey SMALLINT, GenSubKey SMALLINT, GenValue TEXT)"),
        QStringLiteral("INSERT INTO QRN_Main VALUES (2, 6, '30'), (2, 7, '300')"),
        QStringLiteral("INSERT INTO FIELDS (dtfld, Cptn, wdth, visbl, isgroup, SourceTableName) VALUES "
                       "('A', 'a', 900, 1, 1, 'OTHER'), ('B', 'b', 900, 1, 0, 'X'), ('C', 'c', 900, 1, 0, "
                       "'Y'), ('D', 'd', 900, 1, 0, 'Z'), ('GONE', 'gone', 900, 1, 1, 'OTHER')"),
        QStringLiteral("INSERT INTO OTHER VALUES ('1', '2', '3', '4')")};
    openWith(tables);
    host->messages.clear();
    chooseGroup(1, QStringLiteral("GONE"));
    EXPECT_EQ(host->messages.size(), 1u);
    EXPECT_EQ(window->message(), texts::loadFailed());
    chooseGroup(1, QStringLiteral("A"));
    EXPECT_EQ(grid().ColDataField(0), QStringLiteral("A"));
}

} // namespace
