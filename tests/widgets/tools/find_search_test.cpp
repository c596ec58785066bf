#include "widgets/tools/find_search.h"

#include "painted_grid.h"

#include <gtest/gtest.h>

namespace {

using namespace zkp;
using State = FindSearch::State;

bool isFound(const char* needle, const char* text) {
    return FoldedNeedle(QString::fromUtf8(needle)).isIn(QString::fromUtf8(text));
}

TEST(FoldedNeedle, CaseAccentsAndFinalSigmaDoNotCount) {
    EXPECT_TRUE(isFound("βολος", "ΒΌΛΟΣ"));
    EXPECT_TRUE(isFound("ΒΟΛΟΣ", "Βόλος"));
    EXPECT_TRUE(isFound("βόλοσ", "Βολος Μαγνησίας"));
    EXPECT_TRUE(isFound("προιον", "Προϊόν"));
    EXPECT_TRUE(isFound("ΠΡΑΫΛΙΟ", "πραΰλιο"));
    EXPECT_TRUE(isFound("ἀθῆναι", "Αθηναι"));
    EXPECT_TRUE(isFound("cafe", "CAFÉ"));
    EXPECT_TRUE(isFound("cafe\u0301", "café"));
    EXPECT_FALSE(isFound("βολοςς", "Βόλος"));
    EXPECT_FALSE(isFound("", "Βόλος"));
}

TEST(FoldedNeedle, ABlankIsABlank) {
    EXPECT_TRUE(isFound("1 234", "1\u00a0234"));
    EXPECT_FALSE(isFound("12 34", "1234"));
}

/// A heading row and three columns, the second hidden, with a hit at (1,0), (3,1, hidden), (3,2) and (5,0).
class FindSearchTest : public testing::Test {
protected:
    FindSearchTest() {
        surface.setRows(7);
        surface.setCols(3);
        surface.setColHidden(1, true);
        surface.setTextMatrix(0, 0, QStringLiteral("Άλφα"));
        surface.setTextMatrix(1, 0, QStringLiteral("αλφα"));
        surface.setTextMatrix(3, 1, QStringLiteral("αλφα"));
        surface.setTextMatrix(3, 2, QStringLiteral("ΆΛΦΑ 2"));
        surface.setTextMatrix(5, 0, QStringLiteral("το άλφα"));
    }
    FoundCell find(FoundCell from, bool forward, bool withFirst) {
        search.start(FoldedNeedle(u"άλφα"), from, forward, withFirst);
        return search.walk(1000) == State::Found ? search.found() : FoundCell{};
    }

    GridSurface surface;
    FindSearch search{surface};
};

TEST_F(FindSearchTest, GoesRowByRowOverWhatShows) {
    EXPECT_EQ(find({1, 0}, true, true), (FoundCell{1, 0}));
    EXPECT_EQ(find({1, 0}, true, false), (FoundCell{3, 2}));
    EXPECT_EQ(find({3, 2}, true, false), (FoundCell{5, 0}));
    EXPECT_FALSE(search.hasWrapped());
}

TEST_F(FindSearchTest, GoesRoundTheEndAndSaysSo) {
    EXPECT_EQ(find({5, 0}, true, false), (FoundCell{1, 0}));
    EXPECT_TRUE(search.hasWrapped());
    EXPECT_EQ(find({6, 2}, true, false), (FoundCell{1, 0}));
    EXPECT_TRUE(search.hasWrapped()) << "the first step is over the end";
}

TEST_F(FindSearchTest, GoesBack) {
    EXPECT_EQ(find({5, 0}, false, false), (FoundCell{3, 2}));
    EXPECT_EQ(find({3, 2}, false, false), (FoundCell{1, 0}));
    EXPECT_FALSE(search.hasWrapped());
    EXPECT_EQ(find({1, 0}, false, false), (FoundCell{5, 0}));
    EXPECT_TRUE(search.hasWrapped());
}

TEST_F(FindSearchTest, TheOnlyHitIsFoundAgainFromItself) {
    surface.setTextMatrix(3, 2, {});
    surface.setTextMatrix(5, 0, {});
    EXPECT_EQ(find({1, 0}, true, false), (FoundCell{1, 0}));
    EXPECT_TRUE(search.hasWrapped());
    EXPECT_EQ(find({1, 0}, false, false), (FoundCell{1, 0}));
}

TEST_F(FindSearchTest, EndsWhereThereIsNothing) {
    search.start(FoldedNeedle(u"ωμέγα"), {1, 0}, true, true);
    EXPECT_EQ(search.walk(11), State::Running) << "six rows of two columns";
    EXPECT_EQ(search.percent(), 91);
    EXPECT_EQ(search.walk(1), State::Nothing);
    search.start(FoldedNeedle(), {1, 0}, true, true);
    EXPECT_EQ(search.state(), State::Nothing);
    surface.setRows(1);
    EXPECT_EQ(find({1, 0}, true, true), FoundCell{}) << "no body at all";
}

TEST_F(FindSearchTest, ACallLooksAtNoMoreCellsThanItMay) {
    surface.takeCosts();
    search.start(FoldedNeedle(u"ωμέγα"), {1, 0}, true, true);
    search.walk(5);
    EXPECT_EQ(surface.takeCosts().textsMade, 5);
}

TEST_F(FindSearchTest, CellsThatShowAsOneCountOnce) {
    surface.setMergeCells(1);
    surface.setMergeCol(0, true);
    for (int row = 2; row <= 4; ++row)
        surface.setTextMatrix(row, 0, QStringLiteral("το άλφα"));
    EXPECT_EQ(find({1, 0}, true, false), (FoundCell{2, 0}));
    EXPECT_EQ(find({2, 0}, true, false), (FoundCell{3, 2}));
    EXPECT_EQ(find({3, 2}, true, false), (FoundCell{1, 0})) << "row 5 belongs to rows 2 to 4";
    EXPECT_EQ(find({1, 0}, false, false), (FoundCell{3, 2}));
}

TEST_F(FindSearchTest, RowsThatCameOrWentBeginItAnew) {
    search.start(FoldedNeedle(u"ωμέγα"), {1, 0}, true, true);
    search.walk(7);
    surface.setRows(4);
    surface.setTextMatrix(2, 0, QStringLiteral("Ωμέγα"));
    EXPECT_EQ(search.walk(1000), State::Found);
    EXPECT_EQ(search.found(), (FoundCell{2, 0}));
}

/// A report of one group factor of which the first two rows show.
class FindInAReport : public PaintedGridTest {};

TEST_F(FindInAReport, RowsOutOfSightAreFoundByWhatTheyWouldShow) {
    giveRecordSource();
    factors(1);
    kinds({1, 1, 1, 1, 1, 9, 10});
    for (const int row : {1, 2, 3})
        grid->setTextMatrix(row, 0, QString::number(row));
    surface().setMergeCells(1);
    surface().setMergeCol(0, true);
    surface().setVisibleRows(2);
    grid->DrawInterface();
    FindSearch search(grid->shownRows());
    search.start(FoldedNeedle(u"----"), {1, 0}, true, true);
    EXPECT_EQ(search.walk(1000), State::Found);
    EXPECT_EQ(search.found(), (FoundCell{4, 0})) << "which shows as one with the next";
    search.start(FoldedNeedle(u"----"), {4, 0}, true, false);
    EXPECT_EQ(search.walk(1000), State::Found);
    EXPECT_TRUE(search.hasWrapped()) << "sums don't show the mark";
}

} // namespace
