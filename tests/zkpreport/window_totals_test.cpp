#include "core/enums.h"
#include "window/texts.h"
#include "window_fixture.h"

#include <QPlainTextEdit>

// The totals form: a row for each group, worked out by the database.

namespace {

using namespace zkp;
namespace texts = zkp::app::texts;

const QString kCategory = QStringLiteral("CATEGORY");
const QString kProduct = QStringLiteral("PRODUCTNAME");

class WindowTotals : public WindowTest {
protected:
    void openByProduct(const QString& report = {}) {
        ASSERT_TRUE(open({report, {}, {}, {kCategory, kProduct}, true})) << qPrintable(window->message());
    }
    QStringList fields() {
        QStringList all;
        for (int c = 0; c < grid().Cols(); ++c)
            all += grid().ColDataField(c);
        return all;
    }
    /// Checks a row against the database: count, sum, and the share of both in the parent group.
    void expectRow(int row, const QString& source, const QString& parent, const QString& group) {
        const auto sum = [&](const QString& what, const QString& where) {
            return amount(QStringLiteral("SELECT %1 FROM %2 WHERE %3").arg(what, source, where));
        };
        const QString premium = QStringLiteral("SUM(PREMIUM)");
        const QString count = QStringLiteral("COUNT(*)");
        EXPECT_EQ(cell(row, QStringLiteral("Cnt")), greek(sum(count, group), 0)) << qPrintable(group);
        EXPECT_EQ(cell(row, QStringLiteral("SUM_PREMIUM")), greek(sum(premium, group))) << qPrintable(group);
        EXPECT_EQ(cell(row, QStringLiteral("POS_CNT")), greek(sum(count, group) * 100 / sum(count, parent)))
            << qPrintable(group);
        EXPECT_EQ(cell(row, QStringLiteral("POS_PREMIUM")),
                  greek(sum(premium, group) * 100 / sum(premium, parent)))
            << qPrintable(group);
    }
    /// Every row of a report by category and product.
    void expectRows(const QString& source) {
        const QString all = QStringLiteral("1=1");
        for (const int row : rowsOfKind(ZKPSingleRow)) {
            const QString category = QStringLiteral("CATEGORY='%1'").arg(cell(row, kCategory));
            expectRow(row, source, category,
                      category + QStringLiteral(" AND PRODUCTNAME='%1'").arg(cell(row, kProduct)));
        }
        for (const int row : rowsOfKind(ZKPSubTotals))
            expectRow(row, source, all, QStringLiteral("CATEGORY='%1'").arg(cell(row, kCategory)));
        const int last = grid().Rows() - 1;
        EXPECT_EQ(rowsOfKind(ZKPTotals), std::vector<int>{last});
        EXPECT_EQ(cell(last, QStringLiteral("Cnt")),
                  greek(amount(QStringLiteral("SELECT COUNT(*) FROM ") + source), 0));
        EXPECT_EQ(cell(last, QStringLiteral("SUM_PREMIUM")),
                  greek(amount(QStringLiteral("SELECT SUM(PREMIUM) FROM ") + source)));
    }
};

TEST_F(WindowTotals, FactorsThenTheCountThenSumsWithTheirShares) {
    openByProduct();
    EXPECT_TRUE(grid().TotalForm());
    EXPECT_EQ(fields(),
              (QStringList{kCategory, kProduct, QStringLiteral("Cnt"), QStringLiteral("POS_CNT"),
                           QStringLiteral("SUM_PREMIUM"), QStringLiteral("POS_PREMIUM"),
                           QStringLiteral("Avg_PREMIUM"), QStringLiteral("Min_PREMIUM"),
                           QStringLiteral("Max_PREMIUM"), QStringLiteral("SUM_NET"),
                           QStringLiteral("POS_NET"), QStringLiteral("SUM_TAX"), QStringLiteral("POS_TAX")}));
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(WindowTotals, TheFieldListShowsTheFieldOfEveryColumn) {
    openByProduct();
    for (int col = 2; col < grid().Cols(); ++col) {
        grid().MSFlexGrid1().userSelect(1, col);
        settle();
        EXPECT_NE(grid().Picture1().Tools(u"mnuField").Text, QString())
            << qPrintable(grid().ColDataField(col));
    }
}

/// The statement finds its columns in capitals, whatever a column's letters.
TEST_F(WindowTotals, TheStatementAsksForEveryAggregate) {
    openByProduct(QStringLiteral("QRYPRODUCT"));
    const QString sql = part<QPlainTextEdit>("built").toPlainText();
    for (const char* wanted : {"Count(*) As Cnt", "AS POS_CNT", " As AVG_"})
        EXPECT_TRUE(sql.contains(QLatin1String(wanted))) << wanted << '\n' << qPrintable(sql);
}

TEST_F(WindowTotals, EveryRowIsWhatTheDatabaseSays) {
    openByProduct();
    EXPECT_EQ(rowsOfKind(ZKPSingleRow).size(), 18u);
    EXPECT_EQ(rowsOfKind(ZKPSubTotals).size(), 5u) << "the innermost factor has none";
    expectRows(QStringLiteral("POLICIESDATA"));
}

TEST_F(WindowTotals, AReportWithoutAMasterTableHasThemToo) {
    openByProduct(QStringLiteral("QRYPRODUCT"));
    expectRows(QStringLiteral("QRYPRODUCT"));
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(WindowTotals, TheOtherAggregatesAreOfTheGroupsRecords) {
    openByProduct();
    const int row = rowsOfKind(ZKPSingleRow).front();
    const QString where =
        QStringLiteral(" FROM POLICIESDATA WHERE PRODUCTNAME='%1'").arg(cell(row, kProduct));
    EXPECT_EQ(cell(row, QStringLiteral("Avg_PREMIUM")),
              greek(amount(QStringLiteral("SELECT ROUND(AVG(PREMIUM), 2)") + where)));
    EXPECT_EQ(cell(row, QStringLiteral("Min_PREMIUM")),
              greek(amount(QStringLiteral("SELECT MIN(PREMIUM)") + where)));
    EXPECT_EQ(cell(row, QStringLiteral("Max_PREMIUM")),
              greek(amount(QStringLiteral("SELECT MAX(PREMIUM)") + where)));
}

TEST_F(WindowTotals, TheRatiosOfALossRatioReport) {
    openByProduct(QStringLiteral("LOSSRATIODATA"));
    EXPECT_TRUE(grid().LossRatio());
    const int row = rowsOfKind(ZKPSingleRow).front();
    const QString where =
        QStringLiteral(" FROM LOSSRATIODATA WHERE PRODUCTNAME='%1'").arg(cell(row, kProduct));
    EXPECT_EQ(cell(row, QStringLiteral("SUM_POSON")),
              greek(amount(QStringLiteral("SELECT SUM(POSON)") + where)));
    EXPECT_EQ(cell(row, QStringLiteral("LR2")),
              greek(amount(QStringLiteral("SELECT SUM(POSON) - SUM(POSONLR)") + where)));
    EXPECT_EQ(cell(row, QStringLiteral("LR1")),
              greek(amount(QStringLiteral("SELECT SUM(POSONLR) * 1.0 / SUM(POSON)") + where)));
    EXPECT_EQ(cell(grid().Rows() - 1, QStringLiteral("LR2")),
              greek(amount(QStringLiteral("SELECT SUM(POSON) - SUM(POSONLR) FROM LOSSRATIODATA"))));
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(WindowTotals, EveryReportHasItsTotals) {
    for (const char* report : {"POLICIESDATA", "CLAIMSDATA", "LOSSRATIODATA", "QRYPRODUCT"}) {
        const QStringList factors{QStringLiteral("BRANCH"), kCategory};
        ASSERT_TRUE(open({QLatin1String(report), {}, {}, factors, true})) << report;
        EXPECT_FALSE(rowsOfKind(ZKPSingleRow).empty()) << report;
        EXPECT_FALSE(rowsOfKind(ZKPSubTotals).empty()) << report;
        EXPECT_TRUE(host->messages.empty()) << report;
        for (int c = 0; c < grid().Cols(); ++c)
            EXPECT_FALSE(grid().ColCaption(c).contains(u'#')) << report << ' ' << c;
    }
}

TEST_F(WindowTotals, OneFactorHasNoSubtotals) {
    ASSERT_TRUE(open({{}, {}, {}, {kCategory}, true}));
    EXPECT_EQ(rowsOfKind(ZKPSingleRow).size(), 5u);
    EXPECT_TRUE(rowsOfKind(ZKPSubTotals).empty());
    double shares = 0;
    for (const int row : rowsOfKind(ZKPSingleRow))
        shares += QLocale(QLocale::Greek).toDouble(cell(row, QStringLiteral("POS_PREMIUM")));
    EXPECT_NEAR(shares, 100, 0.05);
}

TEST_F(WindowTotals, TheSwitchNeedsAFactorAndWorksByKey) {
    ASSERT_TRUE(open());
    EXPECT_FALSE(totals().isEnabled());
    chooseGroup(1, kCategory);
    EXPECT_TRUE(totals().isEnabled());
    toggleTotals();
    EXPECT_TRUE(grid().TotalForm());
    EXPECT_EQ(recordCount(), 5);
    toggleTotals();
    EXPECT_FALSE(grid().TotalForm());
    EXPECT_EQ(recordCount(), 600);
    toggleTotals();
    chooseGroup(1, QString());
    EXPECT_FALSE(grid().TotalForm()) << "without a factor it is a plain report again";
    EXPECT_FALSE(totals().isChecked());
    EXPECT_EQ(recordCount(), 600);
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(WindowTotals, ARestrictedUserSeesTotalsOfTheirOwnRows) {
    ASSERT_TRUE(open({{}, QStringLiteral("P0019"), {}, {kCategory}, true}));
    EXPECT_EQ(cell(grid().Rows() - 1, QStringLiteral("SUM_PREMIUM")),
              greek(amount(QStringLiteral("SELECT SUM(PREMIUM) FROM POLICIESDATA WHERE "
                                          "ProductIdentity='P0019' OR UnitIdentity='U02'"))));
}

TEST_F(WindowTotals, AHeadingLeavesTheGroupsInTheirOrder) {
    openByProduct();
    const QString first = cell(1, kProduct);
    clickHeading(columnOf(QStringLiteral("SUM_PREMIUM")));
    EXPECT_EQ(window->message(), texts::totalsKeepOrder());
    EXPECT_EQ(cell(1, kProduct), first);
    EXPECT_TRUE(host->messages.empty());
}

} // namespace
