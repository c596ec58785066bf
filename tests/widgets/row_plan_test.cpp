#include "widgets/band/row_plan.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zkp {
namespace {

using testing::ElementsAre;

constexpr int kGap = 2;
constexpr int kMore = 10;
const RowItem kTool{20, 20};
const RowItem kList{30, 50};
const RowItem kLine{5, 5, true, true};

RowItem hidden(RowItem item) {
    item.isShown = false;
    return item;
}

TEST(RowPlan, WhatFitsHasItsWidthAndListsTakeWhatIsLeft) {
    // 20 + 2 + 30 + 2 + 30 = 84; the six that are left go to the two lists.
    const RowPlan plan = planRow({kTool, kList, kList}, 90, kGap, kMore);
    EXPECT_THAT(plan.widths, ElementsAre(20, 33, 33));
    EXPECT_FALSE(plan.overflows);
}

TEST(RowPlan, NothingGetsMoreThanItWishesFor) {
    EXPECT_THAT(planRow({kTool, kList}, 500, kGap, kMore).widths, ElementsAre(20, 50));
}

TEST(RowPlan, WhatDoesNotFitMakesRoomForTheButtonThatHasIt) {
    // Three tools need 64. Of 63, twelve go to the button: two tools need 42.
    const RowPlan plan = planRow({kTool, kTool, kTool}, 63, kGap, kMore);
    EXPECT_THAT(plan.widths, ElementsAre(20, 20, 0));
    EXPECT_TRUE(plan.overflows);
    EXPECT_FALSE(planRow({kTool, kTool, kTool}, 64, kGap, kMore).overflows);
}

TEST(RowPlan, NothingStandsBehindAToolThatFoundNoRoom) {
    const RowItem wide{200, 200};
    EXPECT_THAT(planRow({kTool, wide, kTool}, 100, kGap, kMore).widths, ElementsAre(20, 0, 0));
}

TEST(RowPlan, SeparatorsStandBetweenTwoShownToolsOnly) {
    const RowPlan plan =
        planRow({kLine, kTool, kLine, hidden(kTool), kLine, kTool, kLine, hidden(kTool)}, 500, kGap, kMore);
    EXPECT_THAT(plan.widths, ElementsAre(0, 20, 0, 0, 5, 20, 0, 0));
}

TEST(RowPlan, ASeparatorGoesWithTheToolBehindIt) {
    EXPECT_THAT(planRow({kTool, kLine, kTool}, 48, kGap, kMore).widths, ElementsAre(20, 0, 0));
}

TEST(RowPlan, ARowWithoutRoomShowsNothing) {
    const RowPlan plan = planRow({kTool, kList}, -5, kGap, kMore);
    EXPECT_THAT(plan.widths, ElementsAre(0, 0));
    EXPECT_TRUE(plan.overflows);
    EXPECT_FALSE(planRow({}, -5, kGap, kMore).overflows);
}

} // namespace
} // namespace zkp
