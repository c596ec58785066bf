#include "load_fixture.h"

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

/// Rows written by hand: a key, a summed and a free column.
class TotalsRowsTest : public LoadTest {
protected:
    TotalsRowsTest() {
        columns({u"BRANCH"_s, u"SUM_PREMIUM"_s, u"X"_s});
        grid->setRows(1);
    }

    void row(int kind, const QString& a, const QString& b, const QString& c = {}) {
        grid->setRows(grid->Rows() + 1);
        const int r = grid->Rows() - 1;
        grid->setTextMatrix(r, 0, a);
        grid->setTextMatrix(r, 1, b);
        grid->setTextMatrix(r, 2, c);
        grid->setRowData(r, kind);
    }

    CellStyle style(int r, int c) const { return grid->MSFlexGrid1().styleAt(r, c); }
    void call(const char* name) { EXPECT_TRUE(QMetaObject::invokeMethod(grid.get(), name)); }
};

} // namespace

TEST_F(TotalsRowsTest, AnAppendedRowTakesTheColoursOfTotalsAndATagOfItsOwn) {
    grid->setTotalsBackcolor(0x00FF00);
    grid->setTotalsForeColor(0x0000FF);
    row(ZKPSingleRow, u"a"_s, u"1"_s);
    grid->setRow(1);
    grid->setCol(2);
    grid->AppendTotalsRow();
    EXPECT_EQ(grid->Rows(), 3);
    EXPECT_EQ(grid->RowData(2), -1);
    for (int c = 0; c < 3; ++c) {
        EXPECT_EQ(style(2, c).backColor, 0x00FF00u);
        EXPECT_EQ(style(2, c).foreColor, 0x0000FFu);
    }
    EXPECT_EQ(grid->Row(), 1);
    EXPECT_EQ(grid->Col(), 2);
}

// A point is the decimal sign here in every locale, so that "1.234,50" counts as 1,234; wanted. Subtotals
// and totals count too.
TEST_F(TotalsRowsTest, AColumnsTotalCountsTheFrontOfEveryTextOfTheOtherRows) {
    row(ZKPSingleRow, u"a"_s, u"1.234,50"_s);
    row(ZKPSingleRow, u"a"_s, u"πολλά"_s);
    row(ZKPSubTotals, u"a"_s, u" 2.5x"_s);
    row(ZKPTotals, u" "_s, u"10,00"_s);
    grid->CalcTotalsOnThisColumn(1);
    EXPECT_EQ(grid->Rows(), 6);
    EXPECT_EQ(grid->TextMatrix(5, 1), u"13,734"_s); // 1.234 + 0 + 2.5 + 10
    grid->CalcTotalsOnThisColumn(1);
    EXPECT_EQ(grid->Rows(), 6);
    EXPECT_EQ(grid->TextMatrix(5, 1), u"13,734"_s);
}

TEST_F(TotalsRowsTest, TheTotalsRowIsNeverFound) {
    row(ZKPSingleRow, u"a"_s, u"1"_s);
    row(ZKPTotals, u" "_s, u"1"_s);
    EXPECT_EQ(grid->FindTotalsRow(), 0);
}

// Nobody writes this tag; of two rows that had it, the upper one counts.
TEST_F(TotalsRowsTest, TheTagThatIsLookedForIsNinety) {
    row(90, u"a"_s, u"1"_s);
    row(90, u"a"_s, u"1"_s);
    EXPECT_EQ(grid->FindTotalsRow(), 1);
}

TEST_F(TotalsRowsTest, SubtotalsArePaintedFromColumnOneAndTheLastRowWhole) {
    grid->setSubTotalsBackColor(0x111111);
    grid->setSubTotalsForeColor(0x222222);
    grid->setSubTotalsFontName(u"Liberation Sans"_s);
    grid->setSubTotalsFontSize(11);
    grid->setSubTotalsFontItalic(true);
    grid->setSubTotalsFontUnderline(true);
    grid->setTotalsBackcolor(0x333333);
    grid->setTotalsFontSize(12);
    row(ZKPSingleRow, u"a"_s, u"1"_s);
    row(ZKPSubTotals, u"a"_s, u"1"_s);
    row(ZKPTotals, u" "_s, u"1"_s);
    grid->MSFlexGrid1().setVisibleRows(1); // painted though not in sight
    grid->PaintTotalsRows();
    EXPECT_NE(style(2, 0).backColor, 0x111111u);
    for (int c = 1; c < 3; ++c) {
        EXPECT_EQ(style(2, c).backColor, 0x111111u);
        EXPECT_EQ(style(2, c).foreColor, 0x222222u);
        EXPECT_EQ(style(2, c).fontName, u"Liberation Sans"_s);
        EXPECT_EQ(style(2, c).fontSize, 11);
        EXPECT_TRUE(style(2, c).bold && style(2, c).italic && style(2, c).underline);
    }
    EXPECT_EQ(style(3, 0).backColor, 0x333333u);
    EXPECT_EQ(style(3, 2).fontSize, 12);
    EXPECT_NE(style(1, 1).backColor, 0x111111u);
}

TEST_F(TotalsRowsTest, AveragesOfSummaryRowsAreSumsByCounts) {
    columns({u"BRANCH"_s, u"SUM_PREMIUM"_s, u"avg_premium "_s, u"CNT"_s});
    const auto figures = [&](int kind, const QString& sum, const QString& count) {
        row(kind, u"a"_s, sum, u"old"_s);
        grid->setTextMatrix(grid->Rows() - 1, 3, count);
    };
    figures(ZKPSingleRow, u"10,00"_s, u"4"_s);
    figures(ZKPSubTotals, u"10,00"_s, u"4"_s);
    figures(ZKPSubTotals, u"1.000,25"_s, u"2"_s); // 500.125 is rounded half to even
    figures(ZKPSubTotals, u"0,00"_s, u"4"_s);
    figures(ZKPTotals, u"10,00"_s, u"0"_s);
    call("RecalcAverageColumns");
    QStringList averages;
    for (int r = 1; r < grid->Rows(); ++r)
        averages << grid->TextMatrix(r, 2);
    EXPECT_EQ(averages, (QStringList{u"old"_s, u"2,5"_s, u"500,12"_s, u"old"_s, u"old"_s}));
}

TEST_F(TotalsRowsTest, PercentagesOfSummaryRowsAreSharesOfTheNextOuterRow) {
    columns({u"BRANCH"_s, u"CITY"_s, u"SUM_PREMIUM"_s, u"POS_PREMIUM"_s});
    grid->setColForTot(0, true);
    grid->setColForTot(1, true);
    grid->CheckGroupBy();
    const auto figures = [&](int kind, const QString& a, const QString& b, const QString& sum) {
        row(kind, a, b, sum);
        grid->setTextMatrix(grid->Rows() - 1, 3, u"old"_s);
    };
    figures(ZKPSubTotals, u"N"_s, u"x"_s, u"1.000,00"_s);
    figures(ZKPSubTotals, u"N"_s, u"y"_s, u"2.000,00"_s);
    figures(ZKPSubTotals, u"N"_s, u""_s, u"3.000,00"_s);
    figures(ZKPSubTotals, u"S"_s, u"x"_s, u"0,00"_s);
    figures(ZKPSubTotals, u"S"_s, u""_s, u"1.000,00"_s);
    figures(ZKPTotals, u" "_s, u" "_s, u"4.000,00"_s);
    call("RecalcPercentColumns");
    QStringList shares;
    for (int r = 1; r < grid->Rows(); ++r)
        shares << grid->TextMatrix(r, 3);
    EXPECT_EQ(shares, (QStringList{u"33,33"_s, u"66,67"_s, u"75,00"_s, u"old"_s, u"25,00"_s, u"old"_s}));
    int parent = 0;
    EXPECT_TRUE(
        QMetaObject::invokeMethod(grid.get(), "FindParentRow", Q_RETURN_ARG(int, parent), Q_ARG(int, 1)));
    EXPECT_EQ(parent, 3);
    EXPECT_TRUE(
        QMetaObject::invokeMethod(grid.get(), "FindParentRow", Q_RETURN_ARG(int, parent), Q_ARG(int, 6)));
    EXPECT_EQ(parent, -1);
}

TEST_F(TotalsRowsTest, TheParentOfARecordIsTheSubtotalOfItsOwnGroup) {
    columns({u"BRANCH"_s, u"SUM_PREMIUM"_s, u"X"_s});
    grid->setColForTot(0, true);
    grid->CheckGroupBy();
    row(ZKPSingleRow, u"N"_s, u"1"_s);
    row(ZKPSubTotals, u"N"_s, u"1"_s);
    row(ZKPTotals, u" "_s, u"1"_s);
    int parent = 0;
    QMetaObject::invokeMethod(grid.get(), "FindParentRow", Q_RETURN_ARG(int, parent), Q_ARG(int, 1));
    EXPECT_EQ(parent, 2);
}

// Once its columns are made, a text that a host gave has done its work: the flags tell.
TEST_F(TotalsRowsTest, AGivenGroupbyEndsWithTheFlagOfItsColumn) {
    connection->Execute(u"create table SALES (A text, N money)"_s);
    connection->Execute(u"insert into SALES values ('a', 1), ('b', 2)"_s);
    columns({u"A"_s, u"N"_s});
    grid->setColTotals(1, true);
    grid->setGroupby(u"A"_s);
    fill(u"select * from SALES"_s);
    grid->refresh();
    EXPECT_EQ(report(), (QStringList{u"1: a | 1,00"_s, u"9: a | 1,00"_s, u"1: b | 2,00"_s, u"9: b | 2,00"_s,
                                     u"10:   | 3,00"_s}));
    grid->setColForTot(0, false);
    grid->refresh();
    EXPECT_EQ(grid->Groupby(), u""_s);
    EXPECT_EQ(report(), (QStringList{u"1: a | 1,00"_s, u"1: b | 2,00"_s, u"10:   | 3,00"_s}));
}

TEST_F(TotalsRowsTest, AColumnIsFoundByItsTrimmedFieldInCapitals) {
    columns({u"BRANCH"_s, u" sum_premium "_s});
    int found = 0;
    QMetaObject::invokeMethod(grid.get(), "FindColumnByField", Q_RETURN_ARG(int, found),
                              Q_ARG(QString, u"SUM_PREMIUM"_s));
    EXPECT_EQ(found, 1);
    QMetaObject::invokeMethod(grid.get(), "FindColumnByField", Q_RETURN_ARG(int, found),
                              Q_ARG(QString, u"CNT"_s));
    EXPECT_EQ(found, -1);
}
