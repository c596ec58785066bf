#include "core/account_columns.h"
#include "core/report_state.h"

#include "print_qt.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

class AccountColumnsTest : public testing::Test {
protected:
    AccountColumnsTest() {
        surface.setLocale(ReportLocale(QLocale(u"el_GR"_s)));
        surface.setCols(4);
        surface.setRows(5); // heading, three rows, the last one
        for (int c = 0; c < 4; ++c)
            columns.Add();
    }

    void fill(const std::vector<QStringList>& rows) {
        for (std::size_t r = 0; r < rows.size(); ++r)
            for (qsizetype c = 0; c < rows[r].size(); ++c)
                surface.setTextMatrix(static_cast<int>(r) + 1, static_cast<int>(c), rows[r][c]);
    }

    QStringList row(int r) const {
        QStringList cells;
        for (int c = 0; c < surface.Cols(); ++c)
            cells << surface.TextMatrix(r, c);
        return cells;
    }

    ReportState state;
    ColumnList columns;
    GridSurface surface;
    AccountColumns account{state.sections, state.account, columns, surface,
                           [](const QString& text) { return 10.0 * text.size(); }};
};

} // namespace

TEST_F(AccountColumnsTest, EntriesPastTheSurfaceAreNoAccountColumns) {
    columns.Add().Debit = true;
    EXPECT_FALSE(account.FindAccountColumns());
    account.RecalcBalanceColumn();
}

TEST_F(AccountColumnsTest, FindsTheLastColumnOfEachKind) {
    columns.Item(1).Debit = true;
    columns.Item(2).Debit = true;
    columns.Item(3).Credit = true;
    EXPECT_TRUE(account.FindAccountColumns());
    EXPECT_EQ(state.account.DebitColumn, 1);
    EXPECT_EQ(state.account.CreditColumn, 2);
    EXPECT_EQ(state.account.BalanceColumn, -1);
}

TEST_F(AccountColumnsTest, WithoutSuchColumnsAllAreAbsent) {
    state.account.DebitColumn = 3;
    EXPECT_FALSE(account.FindAccountColumns());
    EXPECT_EQ(state.account.DebitColumn, -1);
}

TEST_F(AccountColumnsTest, RunsTheBalanceAndSumsIntoTheLastRow) {
    columns.Item(2).Debit = columns.Item(2).Totals = true;
    columns.Item(3).Credit = columns.Item(3).Totals = true;
    columns.Item(4).Balance = true;
    state.sections.TotalsBackcolor = 0x00112233;
    state.sections.TotalsForeColor = 0x00445566;
    fill({{u"α"_s, u"100"_s, u"30"_s, u""_s},
          {u"β"_s, u""_s, u"20"_s, u""_s},
          {u"γ"_s, u"10"_s, u""_s, u""_s}});
    account.RecalcBalanceColumn();
    EXPECT_EQ(row(1), (QStringList{u"α"_s, u"100"_s, u"30"_s, u"70"_s}));
    EXPECT_EQ(row(2), (QStringList{u"β"_s, u""_s, u"20"_s, u"50"_s}));
    EXPECT_EQ(row(3), (QStringList{u"γ"_s, u"10"_s, u""_s, u"60"_s}));
    EXPECT_EQ(row(4), (QStringList{u"###"_s, u"110"_s, u"50"_s, u"60"_s}));
    EXPECT_EQ(surface.styleAt(4, 2).backColor, 0x00112233u);
    EXPECT_EQ(surface.styleAt(4, 2).foreColor, 0x00445566u);
}

// Val reads a point only: in a Greek report "1.234,50" counts as 1,234.
TEST_F(AccountColumnsTest, ReadsAmountsWithAPointWhateverTheLocale) {
    columns.Item(2).Debit = true;
    columns.Item(4).Balance = true;
    fill({{u""_s, u"1.234,50"_s, u""_s, u""_s}});
    account.RecalcBalanceColumn();
    EXPECT_EQ(surface.TextMatrix(1, 3), u"1,234"_s);
}

TEST_F(AccountColumnsTest, BestWidthGrowsToTheWidestText) {
    columns.Item(1).BestWidth = Currency::fromWhole(25);
    fill({{u"αβ"_s}, {u"αβγδ"_s}, {u"α"_s}});
    account.RecalcBalanceColumn();
    EXPECT_EQ(columns.Item(1).BestWidth, Currency::fromWhole(40));
    account.RecalcBalanceColumn();
    EXPECT_EQ(columns.Item(1).BestWidth, Currency::fromWhole(40));
    EXPECT_EQ(columns.Item(2).BestWidth, Currency::fromWhole(0));
}
