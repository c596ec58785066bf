#include "widgets/grid/grid_navigation.h"

#include "widgets/grid/key_codes.h"

#include <gtest/gtest.h>

namespace zkp {

void PrintTo(const CellPlace& place, std::ostream* out) {
    *out << place.row << "," << place.col;
}

namespace {

class GridNavigation : public testing::Test {
protected:
    GridNavigation() {
        surface.setRows(101); // 1 heading, rows 1 to 100
        surface.setCols(5);
    }
    CellPlace to(CellPlace from, int code, int shift = 0) {
        return cellByKey(surface, from, code, shift, 10).value_or(CellPlace{-1, -1});
    }
    GridSurface surface;
};

TEST_F(GridNavigation, ArrowsGoOneCellAndStopAtTheBorders) {
    EXPECT_EQ(to({5, 2}, kKeyDown), (CellPlace{6, 2}));
    EXPECT_EQ(to({5, 2}, kKeyUp), (CellPlace{4, 2}));
    EXPECT_EQ(to({5, 2}, kKeyLeft), (CellPlace{5, 1}));
    EXPECT_EQ(to({5, 2}, kKeyRight), (CellPlace{5, 3}));
    EXPECT_EQ(to({1, 0}, kKeyUp), (CellPlace{1, 0})) << "the heading row is no place for the cell";
    EXPECT_EQ(to({100, 4}, kKeyDown), (CellPlace{100, 4}));
    EXPECT_EQ(to({100, 4}, kKeyRight), (CellPlace{100, 4}));
}

TEST_F(GridNavigation, PageKeysGoAPage) {
    EXPECT_EQ(to({5, 2}, kKeyPageDown), (CellPlace{15, 2}));
    EXPECT_EQ(to({95, 2}, kKeyPageDown), (CellPlace{100, 2}));
    EXPECT_EQ(to({5, 2}, kKeyPageUp), (CellPlace{1, 2}));
}

TEST_F(GridNavigation, HomeAndEndGoAlongTheRowAndWithCtrlToTheReportsEnds) {
    EXPECT_EQ(to({5, 2}, kKeyHome), (CellPlace{5, 0}));
    EXPECT_EQ(to({5, 2}, kKeyEnd), (CellPlace{5, 4}));
    EXPECT_EQ(to({5, 2}, kKeyHome, kCtrl), (CellPlace{1, 0}));
    EXPECT_EQ(to({5, 2}, kKeyEnd, kCtrl), (CellPlace{100, 4}));
}

TEST_F(GridNavigation, HiddenRowsAndColumnsAreSteppedOver) {
    surface.setColHidden(3, true);
    surface.setColHidden(0, true);
    surface.setRowHeight(6, 0);
    EXPECT_EQ(to({5, 2}, kKeyRight), (CellPlace{5, 4}));
    EXPECT_EQ(to({5, 2}, kKeyHome), (CellPlace{5, 1}));
    EXPECT_EQ(to({5, 2}, kKeyDown), (CellPlace{7, 2}));
}

TEST_F(GridNavigation, OtherKeysAndASurfaceWithoutBodyMoveNothing) {
    EXPECT_EQ(cellByKey(surface, {5, 2}, kKeyReturn, 0, 10), std::nullopt);
    surface.setRows(1);
    EXPECT_EQ(cellByKey(surface, {0, 0}, kKeyDown, 0, 10), std::nullopt);
}

} // namespace
} // namespace zkp
