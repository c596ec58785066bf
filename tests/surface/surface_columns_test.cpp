#include "surface/surface_columns.h"

#include <gtest/gtest.h>

using namespace zkp;

namespace {

SurfaceColumns fourColumns() {
    SurfaceColumns columns;
    for (int i = 0; i < 4; ++i)
        columns.append();
    return columns;
}

} // namespace

TEST(SurfaceColumns, ANewColumnHasTheDefaults) {
    const SurfaceColumns columns = fourColumns();
    EXPECT_EQ(columns.at(3).alignment, 0);
    EXPECT_EQ(columns.at(3).fixedAlignment, 4);
    EXPECT_EQ(columns.at(3).width, 960);
    EXPECT_FALSE(columns.at(3).hidden);
}

TEST(SurfaceColumns, AMovedColumnPushesThoseBetween) {
    SurfaceColumns columns = fourColumns();
    columns.move(0, 2);
    EXPECT_EQ(columns.order(), (std::vector<ColumnId>{1, 2, 0, 3}));
    columns.move(3, 0);
    EXPECT_EQ(columns.order(), (std::vector<ColumnId>{3, 1, 2, 0}));
    columns.move(1, 1);
    EXPECT_EQ(columns.order(), (std::vector<ColumnId>{3, 1, 2, 0}));
}

TEST(SurfaceColumns, AColumnThatComesAfterARemovalIsNew) {
    SurfaceColumns columns = fourColumns();
    columns.at(0).width = 50;
    columns.move(0, 3);
    EXPECT_EQ(columns.removeLast(), 0u);
    columns.append();
    EXPECT_EQ(columns.at(3).width, 960);
    EXPECT_TRUE(columns.isConsistent());
}
