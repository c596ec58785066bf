#include "surface/surface_cursor.h"

#include <gtest/gtest.h>

using namespace zkp;

TEST(SurfaceCursor, TheSelectionHasItsCornersInOrder) {
    SurfaceCursor cursor;
    cursor.moveTo(5, 4);
    cursor.rowSel = 2;
    cursor.colSel = 7;
    EXPECT_EQ(cursor.selection(), (CellRange{2, 4, 5, 7}));
}

TEST(SurfaceCursor, WhatLiesOutsideMovesToTheLastRowAndColumn) {
    SurfaceCursor cursor;
    cursor.moveTo(50, 9);
    cursor.topRow = 40;
    cursor.keepInside({10, 3, 1, 0});
    EXPECT_EQ(cursor.selection(), (CellRange{9, 2, 9, 2}));
    EXPECT_EQ(cursor.topRow, 9);
}

TEST(SurfaceCursor, WithNoBodyRowTheTopRowIsTheFirstThatWouldCome) {
    SurfaceCursor cursor;
    cursor.topRow = 40;
    cursor.keepInside({1, 3, 1, 0});
    EXPECT_EQ(cursor.row, 0);
    EXPECT_EQ(cursor.topRow, 1);
    EXPECT_TRUE(cursor.isInside({1, 3, 1, 0}));
}

TEST(SurfaceCursor, NothingLeftIsRowAndColumnZero) {
    SurfaceCursor cursor;
    cursor.moveTo(5, 5);
    cursor.keepInside({0, 0, 0, 0});
    EXPECT_EQ(cursor.selection(), (CellRange{0, 0, 0, 0}));
}
