#include "widgets/grid/column_gesture.h"

#include <gtest/gtest.h>

namespace zkp {
namespace {

const std::vector<Span> kCols{{0, 0, 100}, {1, 100, 100}, {2, 200, 100}};
constexpr int kHeight = 20;
constexpr int kDistance = 10;

TEST(ColumnGesture, AHeadingIsDraggedOnlyAfterSomeDistance) {
    ColumnGesture gesture;
    gesture.pressHeading(kCols[0], {50, 5});
    EXPECT_FALSE(gesture.moveTo({55, 5}, kCols, kHeight, kDistance));
    EXPECT_FALSE(gesture.isDragging());
    EXPECT_TRUE(gesture.moveTo({150, 5}, kCols, kHeight, kDistance));
    EXPECT_TRUE(gesture.isDragging());
    EXPECT_EQ(gesture.target(), 1);
}

TEST(ColumnGesture, TheMarkStandsBehindATargetOnTheRightAndBeforeOneOnTheLeft) {
    ColumnGesture gesture;
    gesture.pressHeading(kCols[1], {150, 5});
    gesture.moveTo({250, 5}, kCols, kHeight, kDistance);
    EXPECT_EQ(gesture.markX(), 299);
    gesture.moveTo({50, 5}, kCols, kHeight, kDistance);
    EXPECT_EQ(gesture.markX(), 0);
    gesture.moveTo({150, 5}, kCols, kHeight, kDistance);
    EXPECT_EQ(gesture.markX(), std::nullopt) << "on its own heading";
}

TEST(ColumnGesture, BesideTheColumnsThereIsNoTarget) {
    ColumnGesture gesture;
    gesture.pressHeading(kCols[1], {150, 5});
    gesture.moveTo({400, 5}, kCols, kHeight, kDistance);
    EXPECT_TRUE(gesture.isDragging());
    EXPECT_EQ(gesture.target(), -1);
}

TEST(ColumnGesture, OffTheHeadingsThereIsNoTargetAndNoMark) {
    ColumnGesture gesture;
    gesture.pressHeading(kCols[1], {150, 5});
    gesture.moveTo({250, 5}, kCols, kHeight, kDistance);
    EXPECT_TRUE(gesture.moveTo({250, 20}, kCols, kHeight, kDistance));
    EXPECT_EQ(gesture.target(), -1);
    EXPECT_EQ(gesture.markX(), std::nullopt);
}

TEST(ColumnGesture, TheHeadingIsCarriedWhereItWasGripped) {
    ColumnGesture gesture;
    gesture.pressHeading(kCols[1], {130, 5});
    gesture.moveTo({250, 5}, kCols, kHeight, kDistance);
    EXPECT_EQ(gesture.ghostX(), 220);
}

TEST(ColumnGesture, ABorderFollowsThePointerButLeavesAWidthToGrip) {
    ColumnGesture gesture;
    gesture.pressBorder(kCols[1], 198);
    gesture.moveTo({248, 5}, kCols, kHeight, kDistance);
    EXPECT_TRUE(gesture.isResizing());
    EXPECT_EQ(gesture.width(), 150);
    gesture.moveTo({-500, 5}, kCols, kHeight, kDistance);
    EXPECT_EQ(gesture.width(), 4);
}

} // namespace
} // namespace zkp
