#include "surface/grid_surface.h"

#include "error_of.h"
#include "surface/sample_column.h"

#include <gtest/gtest.h>

using namespace zkp;
using namespace zkp::test;

namespace {

/// Column 0 of all rows, joined by "|".
QString firstColumn(const GridSurface& surface) {
    QStringList texts;
    for (int row = 0; row < surface.Rows(); ++row)
        texts += surface.TextMatrix(row, 0);
    return texts.join(u'|');
}

/// A heading row "h" and body rows "1" to "n".
void fill(GridSurface& surface, int rows) {
    surface.setRows(1);
    surface.setTextMatrix(0, 0, u("h"));
    for (int i = 1; i <= rows; ++i)
        surface.AddItem(QString::number(i));
}

} // namespace

TEST(SurfaceRows, ANewSurfaceHasTwoRowsTwoColumnsAndOneFixedRow) {
    GridSurface surface;
    EXPECT_EQ(surface.Rows(), 2);
    EXPECT_EQ(surface.Cols(), 2);
    EXPECT_EQ(surface.FixedRows(), 1);
    EXPECT_EQ(surface.FixedCols(), 0);
    EXPECT_EQ(surface.TextMatrix(1, 1), QString());
    EXPECT_EQ(surface.inconsistency(), QString());
}

TEST(SurfaceRows, RowsGrowAndShrinkAtTheEnd) {
    GridSurface surface;
    fill(surface, 3);
    surface.setRows(6);
    EXPECT_EQ(firstColumn(surface), u("h|1|2|3||"));
    surface.setRows(3);
    EXPECT_EQ(firstColumn(surface), u("h|1|2"));
    surface.setRows(4);
    EXPECT_EQ(firstColumn(surface), u("h|1|2|"));
}

TEST(SurfaceRows, RowsAtFixedRowsDropsTheBodyAndKeepsTheHeading) {
    GridSurface surface;
    fill(surface, 3);
    surface.setRowData(2, 9);
    surface.setRows(1);
    surface.setRows(4);
    EXPECT_EQ(firstColumn(surface), u("h|||"));
    EXPECT_EQ(surface.RowData(2), 0);
    EXPECT_EQ(surface.inconsistency(), QString());
}

TEST(SurfaceRows, DroppingTheBodyKeepsAHeadingThatCameLate) {
    GridSurface surface;
    surface.setFixedRows(0);
    surface.setRows(0);
    surface.AddItem(u("1"));
    surface.AddItem(u("h"), 0);
    surface.setFixedRows(1);
    surface.setRows(1);
    EXPECT_EQ(firstColumn(surface), u("h"));
    surface.AddItem(u("2"));
    EXPECT_EQ(firstColumn(surface), u("h|2"));
    EXPECT_EQ(surface.inconsistency(), QString());
}

TEST(SurfaceRows, RowsBelowFixedRowsAreRefused) {
    GridSurface surface;
    fill(surface, 3);
    surface.setFixedRows(2);
    EXPECT_EQ(errorNumber([&] { surface.setRows(1); }), kErrInvalidRow);
    EXPECT_EQ(errorNumber([&] { surface.setRows(-1); }), kErrInvalidRow);
    EXPECT_EQ(surface.Rows(), 4);
    EXPECT_EQ(errorNumber([&] { surface.setFixedRows(5); }), kErrInvalidRow);
    EXPECT_EQ(errorNumber([&] { surface.setFixedRows(-1); }), kErrInvalidRow);
    EXPECT_EQ(surface.FixedRows(), 2);
}

TEST(SurfaceRows, ColsBelowFixedColsAreRefused) {
    GridSurface surface;
    surface.setFixedCols(1);
    EXPECT_EQ(errorNumber([&] { surface.setCols(0); }), kErrInvalidColumn);
    EXPECT_EQ(errorNumber([&] { surface.setCols(2'000'000'000); }), kErrInvalidColumn);
    EXPECT_EQ(errorNumber([&] { surface.setFixedCols(3); }), kErrInvalidColumn);
    EXPECT_EQ(surface.Cols(), 2);
}

TEST(SurfaceRows, AnItemGoesBeforeItsIndexOrToTheEnd) {
    GridSurface surface;
    fill(surface, 2);
    surface.AddItem(u("a"), 1);
    surface.AddItem(u("b"), 3);
    surface.AddItem(u("c"), 5);
    EXPECT_EQ(firstColumn(surface), u("h|a|1|b|2|c"));
    EXPECT_EQ(errorNumber([&] { surface.AddItem(u("x"), 0); }), kErrInvalidRow) << "not among the fixed rows";
    EXPECT_EQ(errorNumber([&] { surface.AddItem(u("x"), 7); }), kErrInvalidRow);
    EXPECT_EQ(errorNumber([&] { surface.AddItem(u("x"), -2); }), kErrInvalidRow);
}

TEST(SurfaceRows, TheTextOfAnItemIsPartedByTabs) {
    GridSurface surface;
    surface.AddItem(u("a\tb\tlost"), 1);
    EXPECT_EQ(surface.TextMatrix(1, 0), u("a"));
    EXPECT_EQ(surface.TextMatrix(1, 1), u("b"));
    EXPECT_EQ(surface.Cols(), 2);
}

TEST(SurfaceRows, AnItemAmongTrailingBlanksIsOneBlankMore) {
    GridSurface surface;
    surface.setRows(1'000'000);
    surface.AddItem(QString(), 10);
    EXPECT_EQ(surface.Rows(), 1'000'001);
    surface.RemoveItem(500);
    EXPECT_EQ(surface.Rows(), 1'000'000);
    surface.AddItem(u("x"), 3);
    EXPECT_EQ(surface.TextMatrix(3, 0), u("x"));
    EXPECT_EQ(surface.Rows(), 1'000'001);
    EXPECT_EQ(surface.inconsistency(), QString());
}

TEST(SurfaceRows, ARemovedItemTakesItsTagAndTextAlong) {
    GridSurface surface;
    fill(surface, 3);
    surface.setRowData(2, 9);
    surface.setRowData(3, 10);
    surface.RemoveItem(2);
    EXPECT_EQ(firstColumn(surface), u("h|1|3"));
    EXPECT_EQ(surface.RowData(2), 10);
    EXPECT_EQ(errorNumber([&] { surface.RemoveItem(0); }), kErrInvalidRow) << "a fixed row";
    EXPECT_EQ(errorNumber([&] { surface.RemoveItem(3); }), kErrInvalidRow);
}

TEST(SurfaceRows, ClearEmptiesTextsAndTagsOfAllRowsAndKeepsTheRest) {
    GridSurface surface;
    fill(surface, 2);
    surface.setRowData(0, 5);
    surface.setRowData(1, 9);
    surface.setRowHeight(1, 600);
    surface.setColWidth(1, 300);
    surface.setCellBackColor(77);
    surface.Clear();
    EXPECT_EQ(firstColumn(surface), u("||"));
    EXPECT_EQ(surface.RowData(0), 0);
    EXPECT_EQ(surface.RowData(1), 0);
    EXPECT_EQ(surface.Rows(), 3);
    EXPECT_EQ(surface.RowHeight(1), 600);
    EXPECT_EQ(surface.ColWidth(1), 300);
    EXPECT_EQ(surface.CellBackColor(), 77u);
}

TEST(SurfaceRows, HeightsStandByRowAndMoveWithIt) {
    GridSurface surface;
    fill(surface, 3);
    surface.setRowHeight(-1, 300);
    surface.setRowHeight(2, 0);
    surface.AddItem(u("a"), 1);
    EXPECT_EQ(surface.RowHeight(1), 300);
    EXPECT_EQ(surface.RowHeight(3), 0);
    EXPECT_TRUE(surface.RowHidden(3));
    surface.setRowHeight(-1, 255);
    EXPECT_FALSE(surface.RowHidden(3));
    EXPECT_EQ(surface.RowHeight(3), 255);
    surface.setRowHeight(3, 100'000);
    EXPECT_EQ(surface.RowHeight(3), 65'534) << "the highest there is";
    surface.setRowHeight(3, -1);
    EXPECT_EQ(surface.RowHeight(3), 255);
}

TEST(SurfaceRows, RemovingRowsMovesCursorAndScrollPositionToTheLastRowLeft) {
    GridSurface surface;
    fill(surface, 10);
    surface.Select(9, 1, 10, 1);
    surface.setTopRow(8);
    surface.setRows(5);
    EXPECT_EQ(surface.Row(), 4);
    EXPECT_EQ(surface.RowSel(), 4);
    EXPECT_EQ(surface.TopRow(), 4);
    surface.setCols(1);
    EXPECT_EQ(surface.Col(), 0);
    EXPECT_EQ(surface.ColSel(), 0);
    surface.setRows(1);
    EXPECT_EQ(surface.Row(), 0);
    EXPECT_EQ(surface.TopRow(), 1);
    EXPECT_EQ(surface.BottomRow(), 0);
    surface.setTopRow(surface.TopRow());
}

TEST(SurfaceRows, AnEmptySurfaceStandsAllCalls) {
    GridSurface surface;
    surface.setFixedRows(0);
    surface.setRows(0);
    surface.setCols(0);
    EXPECT_EQ(errorNumber([&] { surface.Text(); }), kErrInvalidRow);
    EXPECT_EQ(errorNumber([&] { surface.CellBackColor(); }), kErrInvalidRow);
    EXPECT_EQ(errorNumber([&] { surface.setText(u("x")); }), kErrInvalidRow);
    EXPECT_EQ(errorNumber([&] { surface.setCellBackColor(1); }), kErrInvalidRow);
    EXPECT_EQ(errorNumber([&] { surface.TextArray(0); }), kErrInvalidArrayIndex);
    surface.setSort(kSortTextUp);
    surface.userSelect(3, 3);
    surface.userScroll(3, 3);
    surface.Clear();
    EXPECT_EQ(surface.BottomRow(), -1);
    EXPECT_EQ(surface.inconsistency(), QString());
}

TEST(SurfaceRows, VisibleRowsBoundTheBottomRow) {
    GridSurface surface;
    surface.setRows(101);
    EXPECT_EQ(surface.BottomRow(), 100) << "with no view all rows count as visible";
    EXPECT_TRUE(surface.RowIsVisible(100));
    surface.setVisibleRows(41);
    EXPECT_EQ(surface.BottomRow(), 41);
    surface.setTopRow(90);
    EXPECT_EQ(surface.BottomRow(), 100);
    EXPECT_TRUE(surface.RowIsVisible(0)) << "fixed rows always are";
    EXPECT_FALSE(surface.RowIsVisible(89));
    EXPECT_TRUE(surface.RowIsVisible(90));
    surface.setTopRow(0);
    EXPECT_EQ(surface.TopRow(), 1) << "never among the fixed rows";
    EXPECT_EQ(errorNumber([&] { surface.setTopRow(101); }), kErrInvalidRow);
    EXPECT_EQ(errorNumber([&] { surface.setLeftCol(2); }), kErrInvalidColumn);
}
