#include "painted_grid.h"

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

/// A loaded report of details alone.
class SelectionEventsTest : public PaintedGridTest {
protected:
    SelectionEventsTest() {
        giveRecordSource();
        kinds({1, 1, 1, 1, 1, 1, 1});
    }
};

// --- Current cell and selection

TEST_F(SelectionEventsTest, AMoveOfTheUserRaisesSelectingOnce) {
    surface().userSelect(3, 1);
    EXPECT_EQ(told(), u"Selecting"_s);
    EXPECT_EQ(cells(3), u"dddd"_s);
}

TEST_F(SelectionEventsTest, WithRowSelectTheBandRaisesItToo) {
    grid->setRowSelect(true);
    surface().userSelect(3, 1);
    EXPECT_EQ(told(), u"Selecting Selecting"_s);
    EXPECT_EQ(cells(3), u"bbbb"_s);
    EXPECT_EQ(selection(), u"3,1 to 3,1"_s);
    surface().userSelect(3, 2);
    EXPECT_EQ(told(), u"Selecting"_s) << "within the row the band stays";
}

TEST_F(SelectionEventsTest, AMoveOfTheHostIsHeardAsWell) {
    grid->setRowSelect(true);
    grid->setRow(5);
    EXPECT_EQ(told(), u"Selecting Selecting"_s);
    EXPECT_EQ(cells(5), u"bbbb"_s);
    grid->setRowSel(6);
    EXPECT_EQ(told(), u"Selecting"_s);
}

TEST_F(SelectionEventsTest, OnTheHeadingTheBandStays) {
    grid->setRowSelect(true);
    grid->setRow(5);
    told();
    surface().userSelect(0, 1);
    EXPECT_EQ(told(), u"Selecting"_s) << "of the selection alone";
    EXPECT_EQ(cells(5), u"bbbb"_s);
}

TEST_F(SelectionEventsTest, TheCellChosenAgainMovesTheBandAndRaisesBoth) {
    grid->setRow(5);
    grid->setRowSelect(true);
    told();
    surface().userSelect(5, 0);
    EXPECT_EQ(cells(5), u"bbbb"_s);
    EXPECT_EQ(told(), u"Selecting Selecting"_s);
    grid->setRowSelect(false);
    surface().userSelect(5, 0);
    EXPECT_EQ(told(), u"Selecting"_s);
}

TEST_F(SelectionEventsTest, TheKeyOfTheRowIsTaken) {
    grid->setColIndexKey(2, true);
    grid->setTextMatrix(3, 2, u"1.234,5"_s);
    grid->setTextMatrix(4, 2, u"abc"_s);
    surface().userSelect(3, 0);
    EXPECT_EQ(grid->indkey(), 1234.5);
    surface().userSelect(4, 0);
    EXPECT_EQ(grid->indkey(), 0) << "no number";
}

TEST_F(SelectionEventsTest, TheKeyStandsWhenSelectingIsRaised) {
    grid->setColIndexKey(2, true);
    grid->setTextMatrix(3, 2, u"7"_s);
    double seen = 0;
    QObject::connect(&grid->events(), &Events::Selecting, [&] { seen = grid->indkey(); });
    surface().userSelect(3, 0);
    EXPECT_EQ(seen, 7);
}

TEST_F(SelectionEventsTest, WithoutAKeyColumnTheKeyKeepsItsValue) {
    grid->setindkey(42);
    grid->setTextMatrix(3, 2, u"7"_s);
    grid->setRowSelect(true);
    surface().userSelect(3, 0);
    EXPECT_EQ(grid->indkey(), 42);
}

TEST_F(SelectionEventsTest, AnotherCellSetsTheScreensPointerBack) {
    host->setPointer(kPointerHourglass);
    surface().userSelect(3, 0);
    EXPECT_EQ(host->pointer(), kPointerDefault);
}

TEST_F(SelectionEventsTest, AHandlerMayMoveTheRowOn) {
    grid->setRowSelect(true);
    QObject::connect(&grid->events(), &Events::Selecting, [this] { grid->setRow(6); });
    surface().userSelect(3, 0);
    EXPECT_EQ(cells(3), u"dddd"_s);
    EXPECT_EQ(cells(6), u"bbbb"_s);
    EXPECT_EQ(grid->PreRow(), 6);
}

TEST_F(SelectionEventsTest, AHandlerMayTakeAllRowsAway) {
    grid->setRowSelect(true);
    grid->setColIndexKey(2, true);
    QObject::connect(&grid->events(), &Events::Selecting, [this] {
        grid->setFixedRows(0);
        grid->setRows(0);
    });
    surface().userSelect(3, 0);
    EXPECT_EQ(surface().inconsistency(), QString());
    EXPECT_TRUE(grid->Redraw());
}

TEST_F(SelectionEventsTest, AHandlerMayDestroyTheControl) {
    grid->setRowSelect(true);
    QObject::connect(&grid->events(), &Events::Selecting, [this] { grid.reset(); });
    GridSurface& moved = surface();
    moved.userSelect(3, 0);
    EXPECT_EQ(grid, nullptr);
    EXPECT_EQ(told(), u"Selecting"_s);
}

TEST_F(SelectionEventsTest, AFrozenRowIsPaintedWithoutAWord) {
    grid->setFrozenRow(true);
    surface().Select(3, 1);
    told();
    grid->setFreezeBackColor(kMark);
    EXPECT_EQ(cells(1), u"MMMM"_s);
    EXPECT_EQ(told(), QString());
}

// --- Scrolling

TEST_F(SelectionEventsTest, AMoveDownwardsPaintsWhatComesIntoSight) {
    surface().setVisibleRows(2);
    for (int row = 1; row < 8; ++row)
        grid->ReverseCell(row, 0, 3, kMark, kMark + 1);
    surface().userScroll(4, 0);
    EXPECT_EQ(told(), u"Start Stop"_s);
    EXPECT_EQ(cells(3), u"mmmm"_s);
    EXPECT_EQ(cells(4), u"dddd"_s);
    EXPECT_EQ(cells(5), u"dddd"_s);
    EXPECT_EQ(cells(6), u"mmmm"_s);
    EXPECT_EQ(surface().TopRow(), 4);
}

TEST_F(SelectionEventsTest, AMoveToTheSidePaintsNothing) {
    surface().userScroll(1, 2);
    EXPECT_EQ(told(), QString());
    surface().userScroll(4, 1);
    EXPECT_EQ(told(), QString()) << "in both directions at once it counts as one to the side";
    surface().userScroll(5, 1);
    EXPECT_EQ(told(), u"Start Stop"_s);
}

TEST_F(SelectionEventsTest, WithoutARecordSourceAScrollIsNothing) {
    grid->setRecordSource(QVariant());
    surface().userScroll(4, 0);
    surface().setVisibleRows(1);
    surface().setVisibleRows(2);
    EXPECT_EQ(told(), QString());
}

TEST_F(SelectionEventsTest, ARepaintAtANewPlaceIsTheLastPlaceSeen) {
    surface().userScroll(4, 0);
    grid->setRows(2);
    grid->setRows(8);
    ASSERT_EQ(surface().TopRow(), 1);
    grid->DrawInterface();
    told();
    surface().userScroll(4, 0);
    EXPECT_EQ(told(), u"Start Stop"_s) << "it was there before, but not since it was painted elsewhere";
}

TEST_F(SelectionEventsTest, RowsThatComeIntoSightAtTheBottomArePainted) {
    surface().setVisibleRows(2);
    for (int row = 1; row < 8; ++row)
        grid->ReverseCell(row, 0, 3, kMark, kMark + 1);
    told();
    surface().setVisibleRows(4);
    EXPECT_EQ(told(), u"Start Stop"_s);
    EXPECT_EQ(cells(4), u"dddd"_s);
    EXPECT_EQ(cells(5), u"mmmm"_s);
    surface().setVisibleRows(3);
    surface().setVisibleRows(3);
    EXPECT_EQ(told(), QString()) << "fewer, or as many";
    surface().setVisibleRows(20);
    told();
    surface().setVisibleRows(30);
    EXPECT_EQ(told(), QString()) << "all of them showed before";
}

TEST_F(SelectionEventsTest, AHandlerThatScrollsOnIsPutBack) {
    grid->setRowSelect(true);
    QObject::connect(&grid->events(), &Events::Selecting, [this] { surface().userScroll(6, 0); });
    surface().userScroll(3, 0);
    EXPECT_EQ(surface().TopRow(), 3);
    EXPECT_EQ(told(), u"Start Selecting Stop"_s);
}

} // namespace
