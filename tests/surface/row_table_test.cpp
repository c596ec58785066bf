#include "surface/row_table.h"

#include <gtest/gtest.h>

using namespace zkp;

TEST(RowTable, ARowIsBlankUntilItIsWritten) {
    RowTable rows;
    const RowRun run = rows.allocate(10'000'000);
    EXPECT_EQ(run, (RowRun{0, 10'000'000}));
    EXPECT_EQ(rows.at(9'999'999), RowRecord{});
    rows.write(5).tag = 7;
    EXPECT_EQ(rows.at(5).tag, 7);
    EXPECT_EQ(rows.at(6), RowRecord{});
}

TEST(RowTable, AnIdGivenOutAgainIsBlank) {
    RowTable rows;
    rows.allocate(3);
    rows.write(1).tag = 7;
    rows.release({1, 1});
    EXPECT_EQ(rows.used(), 2);
    EXPECT_EQ(rows.allocate(1), (RowRun{1, 1}));
    EXPECT_EQ(rows.at(1), RowRecord{});
    EXPECT_EQ(rows.allocate(1), (RowRun{3, 1}));
}

TEST(RowTable, ARunIsTakenFromTheFreeIdsOnlyWhenItFits) {
    RowTable rows;
    rows.allocate(10);
    rows.release({2, 3});
    EXPECT_EQ(rows.allocate(4), (RowRun{10, 4}));
    EXPECT_EQ(rows.allocate(2), (RowRun{2, 2}));
    EXPECT_EQ(rows.allocate(1), (RowRun{4, 1}));
}

TEST(RowTable, IdsReleasedAtTheEndAreNotKept) {
    RowTable rows;
    rows.allocate(10'000);
    rows.write(9'000).tag = 3;
    rows.release({5'000, 5'000});
    EXPECT_EQ(rows.limit(), 5'000u);
    EXPECT_TRUE(rows.freeRuns().empty());
    EXPECT_EQ(rows.allocate(5'000), (RowRun{5'000, 5'000}));
    EXPECT_EQ(rows.at(9'000), RowRecord{});
}

TEST(RowTable, TheLastRowGoneLeavesNothing) {
    RowTable rows;
    rows.allocate(5);
    rows.release({0, 2});
    rows.release({2, 3});
    EXPECT_EQ(rows.limit(), 0u);
    EXPECT_EQ(rows.used(), 0);
}

TEST(RowTable, TruncatingLeavesTheRowsBelow) {
    RowTable rows;
    rows.allocate(6'000);
    rows.write(0).tag = 1;
    rows.write(1).tag = 2;
    rows.write(5'000).tag = 3;
    rows.release({100, 10});
    rows.truncate(1);
    EXPECT_EQ(rows.at(0).tag, 1);
    EXPECT_EQ(rows.used(), 1);
    EXPECT_EQ(rows.allocate(6'000), (RowRun{1, 6'000}));
    EXPECT_EQ(rows.at(1), RowRecord{});
    EXPECT_EQ(rows.at(5'000), RowRecord{});
}

TEST(RowTable, UnbindingLeavesHeights) {
    RowTable rows;
    rows.allocate(2);
    rows.write(1) = {8, 9, 1, 400};
    rows.unbindAll();
    EXPECT_EQ(rows.at(1), (RowRecord{0, 0, 0, 400}));
    rows.resetHeights();
    EXPECT_EQ(rows.at(1), RowRecord{});
}
