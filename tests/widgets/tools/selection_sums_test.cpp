#include "widgets/tools/selection_sums.h"

#include "base/texts/tools.h"
#include "core/enums.h"
#include "print_qt.h"
#include "widgets/grid/surface_selection.h"

#include <gtest/gtest.h>

namespace {

using namespace zkp;

class SelectionSumsTest : public testing::Test {
protected:
    SelectionSumsTest() {
        surface.setLocale(ReportLocale(QLocale(QStringLiteral("el_GR"))));
        surface.setRows(5);
        surface.setCols(3);
    }
    void fill(int col, const QStringList& texts) {
        for (int row = 1; row <= texts.size(); ++row)
            surface.setTextMatrix(row, col, texts[row - 1]);
    }
    QString textOf(const CellRange& block) {
        sums.start(block);
        EXPECT_TRUE(sums.walk(1000));
        return sums.text();
    }
    QString exact(const char* number) {
        return exactText(*Decimal::fromText(QString::fromLatin1(number), surface.locale()), surface.locale());
    }
    QString average(const char* sum, int count) {
        return averageText(*Decimal::fromText(QString::fromLatin1(sum), surface.locale()), count,
                           surface.locale());
    }

    GridSurface surface;
    SelectionSums sums{surface};
};

TEST_F(SelectionSumsTest, NumbersShowWithAllTheirDecimals) {
    EXPECT_EQ(exact("1234567,5"), QStringLiteral("1.234.567,50"));
    EXPECT_EQ(exact("1234567"), QStringLiteral("1.234.567"));
    EXPECT_EQ(exact("0,125"), QStringLiteral("0,125"));
    EXPECT_EQ(exact("-999,9"), QStringLiteral("-999,90"));
    EXPECT_EQ(exact("-0,05"), QStringLiteral("-0,05"));
    EXPECT_EQ(exact("0"), QStringLiteral("0"));
    EXPECT_EQ(exact("123456789012345678"), QStringLiteral("123.456.789.012.345.678"));
}

TEST_F(SelectionSumsTest, AnAverageIsRoundedAwayFromZero) {
    EXPECT_EQ(average("10", 4), QStringLiteral("2,50"));
    EXPECT_EQ(average("2", 3), QStringLiteral("0,67"));
    EXPECT_EQ(average("0,01", 2), QStringLiteral("0,01")) << "half a cent";
    EXPECT_EQ(average("-0,01", 2), QStringLiteral("-0,01"));
    EXPECT_EQ(average("0,125", 2), QStringLiteral("0,063")) << "as many decimals as the sum";
    EXPECT_EQ(average("3000000", 3), QStringLiteral("1.000.000,00"));
}

TEST_F(SelectionSumsTest, AddsWhatIsANumberAndCountsIt) {
    fill(1, {QStringLiteral("1.234,50"), QStringLiteral("Βόλος"), QStringLiteral("-0,10"), QString()});
    fill(2, {QStringLiteral("10"), QStringLiteral("20"), QStringLiteral("30"), QStringLiteral("20/11/2026")});
    EXPECT_EQ(textOf({1, 1, 4, 1}), texts::sums(QStringLiteral("1.234,40"),
                                                texts::countOfCells(QStringLiteral("2"), QStringLiteral("4")),
                                                QStringLiteral("617,20")));
    EXPECT_EQ(textOf({1, 2, 3, 2}),
              texts::sums(QStringLiteral("60"), QStringLiteral("3"), QStringLiteral("20,00")));
    EXPECT_EQ(sums.numbers(), 3);
    EXPECT_EQ(textOf({1, 0, 4, 0}), QString()) << "no number, no sum";
}

TEST_F(SelectionSumsTest, RowsOfSumsCountInABlockOfNothingElse) {
    fill(1, {QStringLiteral("10"), QStringLiteral("20"), QStringLiteral("30"), QStringLiteral("60")});
    surface.setRowData(1, ZKPSingleRow);
    surface.setRowData(2, ZKPSingleRow);
    surface.setRowData(3, ZKPSubTotals);
    surface.setRowData(4, ZKPTotals);
    const auto text = [](const char* sum, const char* count, const char* average) {
        return texts::sums(QLatin1String(sum), QLatin1String(count), QLatin1String(average));
    };
    EXPECT_EQ(textOf({1, 1, 4, 1}), texts::withoutSummaries(text("30", "2", "15,00")));
    EXPECT_EQ(textOf({1, 1, 2, 1}), text("30", "2", "15,00"));
    EXPECT_EQ(textOf({3, 1, 4, 1}), text("90", "2", "45,00")) << "rows of sums alone are summed";
    surface.setTextMatrix(1, 1, QStringLiteral("x"));
    surface.setTextMatrix(2, 1, QStringLiteral("y"));
    EXPECT_EQ(textOf({1, 1, 4, 1}), QString()) << "no number among the rows that count";
}

TEST_F(SelectionSumsTest, HiddenColumnsDoNotCount) {
    fill(0, {QStringLiteral("1")});
    fill(1, {QStringLiteral("2")});
    fill(2, {QStringLiteral("4")});
    surface.setColHidden(1, true);
    EXPECT_EQ(textOf({1, 0, 1, 2}),
              texts::sums(QStringLiteral("5"), QStringLiteral("2"), QStringLiteral("2,50")));
}

TEST_F(SelectionSumsTest, TenthsAddUpExactly) {
    surface.setRows(100'001);
    for (int row = 1; row <= 100'000; ++row)
        surface.setTextMatrix(row, 0, row % 2 == 0 ? QStringLiteral("0,1") : QStringLiteral("-0,1"));
    surface.setTextMatrix(100'000, 0, QStringLiteral("0,30"));
    sums.start({1, 0, 100'000, 0});
    while (!sums.walk(777)) {
    }
    EXPECT_EQ(sums.numbers(), 100'000);
    EXPECT_EQ(exactText(sums.sum(), surface.locale()), QStringLiteral("0,20"));
}

TEST_F(SelectionSumsTest, ACallLooksAtNoMoreCellsThanItMay) {
    surface.setRows(1001);
    sums.start({1, 0, 1000, 2});
    EXPECT_FALSE(sums.walk(750));
    EXPECT_EQ(sums.percent(), 25);
    EXPECT_TRUE(sums.walk(2250));
}

TEST_F(SelectionSumsTest, RowsThatWentEndIt) {
    fill(0, {QStringLiteral("1"), QStringLiteral("2")});
    sums.start({1, 0, 4, 0});
    sums.walk(1);
    surface.setRows(2);
    EXPECT_TRUE(sums.walk(1000));
    EXPECT_EQ(sums.numbers(), 1);
}

TEST_F(SelectionSumsTest, WhatIsSelectedGoesByTheSelectionMode) {
    surface.Select(2, 1, 3, 1);
    EXPECT_EQ(selectedBlock(surface), (CellRange{2, 1, 3, 1}));
    GridSurface::Look look = surface.look();
    look.SelectionMode = 1;
    surface.setLook(look);
    EXPECT_EQ(selectedBlock(surface), (CellRange{2, 0, 3, 2}));
    look.SelectionMode = 2;
    surface.setLook(look);
    EXPECT_EQ(selectedBlock(surface), (CellRange{1, 1, 4, 1}));
}

} // namespace
