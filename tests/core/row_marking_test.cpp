#include "painted_grid.h"

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

/// A control with `RowSelect`, whose band stands on row 2.
class RowMarkingTest : public PaintedGridTest {
protected:
    RowMarkingTest() {
        grid->setRowSelect(true);
        grid->setRow(2);
        told();
    }
};

// --- Selectrow

TEST_F(RowMarkingTest, TheBandCoversTheCurrentRow) {
    EXPECT_EQ(cells(1), u"dddd"_s);
    EXPECT_EQ(cells(2), u"bbbb"_s);
    EXPECT_EQ(cells(3), u"dddd"_s);
    EXPECT_EQ(grid->PreRow(), 2);
    EXPECT_EQ(grid->PreBackColor(), kDetail);
    EXPECT_EQ(grid->PreForeColor(), kDetail + 1);
}

TEST_F(RowMarkingTest, TheBandMovesAndWhatItCoveredComesBack) {
    grid->reversecolor(4, kMark, kMark + 1);
    grid->setRow(4);
    EXPECT_EQ(cells(2), u"dddd"_s);
    EXPECT_EQ(cells(4), u"bbbb"_s);
    EXPECT_EQ(grid->PreBackColor(), kMark);
    grid->setRow(5);
    EXPECT_EQ(cells(4), u"mmmm"_s);
    EXPECT_EQ(cells(5), u"bbbb"_s);
}

TEST_F(RowMarkingTest, GroupFactorCellsStayInTheirOwnColours) {
    factors(2);
    grid->ReverseCell(4, 0, 1, kGroup, kGroup + 1);
    grid->setRow(4);
    EXPECT_EQ(cells(4), u"ggbb"_s);
    grid->setRow(5);
    EXPECT_EQ(cells(4), u"ggdd"_s);
}

TEST_F(RowMarkingTest, WithoutRowSelectNothingIsPaintedAndNothingRaised) {
    grid->setRowSelect(false);
    grid->setRow(4);
    told();
    grid->Selectrow();
    EXPECT_EQ(cells(4), u"dddd"_s);
    EXPECT_EQ(cells(2), u"bbbb"_s) << "the band stays where it was";
    EXPECT_EQ(grid->PreRow(), 2);
    EXPECT_EQ(told(), QString());
}

TEST_F(RowMarkingTest, OnTheHeadingRowTheBandStaysWhereItWas) {
    grid->setRow(0);
    told();
    grid->Selectrow();
    EXPECT_EQ(cells(2), u"bbbb"_s);
    EXPECT_EQ(grid->PreRow(), 2);
    EXPECT_EQ(told(), QString());
}

TEST_F(RowMarkingTest, SelectingIsRaisedWhenTheBandHasMoved) {
    QString seen;
    QObject::connect(&grid->events(), &Events::Selecting,
                     [&] { seen += cells(4) + u' ' + QString::number(grid->PreRow()) + u' '; });
    surface().Select(4, 1);
    EXPECT_EQ(seen, u"bbbb 4 bbbb 4 "_s) << "by the band, then by the selection";
}

TEST_F(RowMarkingTest, SelectrowAgainKeepsTheBandAndWhatItCovers) {
    grid->Selectrow();
    EXPECT_EQ(cells(2), u"bbbb"_s);
    EXPECT_EQ(grid->PreBackColor(), kDetail);
    EXPECT_EQ(told(), u"Selecting"_s) << "its own moves of the selection raise nothing";
    grid->setRow(3);
    EXPECT_EQ(cells(2), u"dddd"_s);
}

TEST_F(RowMarkingTest, TheSelectionIsTheCurrentCellAndFillStyleStaysAtTheBlock) {
    surface().setFillStyle(0);
    grid->setRedraw(false);
    surface().Select(2, 1, 4, 3); // on the band's row
    grid->Selectrow();
    EXPECT_EQ(selection(), u"2,1 to 2,1"_s);
    EXPECT_EQ(surface().FillStyle(), 1);
    EXPECT_FALSE(grid->Redraw());
}

TEST_F(RowMarkingTest, AReportOfFactorsAloneShowsNoBandAndRaisesSelecting) {
    factors(4);
    grid->setRow(4);
    EXPECT_EQ(cells(4), u"dddd"_s);
    EXPECT_EQ(grid->PreRow(), 4);
    EXPECT_EQ(told(), u"Selecting Selecting"_s);
}

TEST_F(RowMarkingTest, TheKeyOfTheRowIsTaken) {
    grid->setColIndexKey(3, true);
    grid->setColIndexKey(2, true);
    grid->setTextMatrix(2, 2, u"1.234,5"_s);
    grid->setTextMatrix(2, 3, u"77"_s);
    grid->Selectrow();
    EXPECT_EQ(grid->indkey(), 1234.5) << "of the first such column";
}

TEST_F(RowMarkingTest, AHandlerOfSelectingThatThrowsLeavesNothingLocked) {
    const auto broken =
        QObject::connect(&grid->events(), &Events::Selecting, [] { throw Error(kErrInvalidCall, u"no"_s); });
    EXPECT_EQ(errorNumber([&] { grid->Selectrow(); }), kErrInvalidCall);
    EXPECT_EQ(errorNumber([&] { grid->reversecolor(2, kMark, kMark); }), kErrInvalidCall);
    QObject::disconnect(broken);
    EXPECT_TRUE(grid->Redraw());
    told();
    surface().userSelect(4, 0);
    EXPECT_EQ(told(), u"Selecting Selecting"_s);
}

TEST_F(RowMarkingTest, AHandlerOfSelectingMayDestroyTheControl) {
    QObject::connect(&grid->events(), &Events::Selecting, [this] { grid.reset(); });
    grid->reversecolor(2, kMark, kMark);
    EXPECT_EQ(grid, nullptr);
}

TEST_F(RowMarkingTest, AControlWithoutRowsHasNoBand) {
    grid->setFixedRows(0);
    grid->setRows(0);
    grid->Selectrow();
    EXPECT_EQ(told(), QString());
}

// --- RedrawRow

TEST_F(RowMarkingTest, RedrawRowTakesTheBandOff) {
    surface().Select(3, 1);
    surface().Select(3, 1, 5, 2);
    grid->setPreBackColor(kMark);
    grid->setPreForeColor(kMark + 1);
    factors(1);
    grid->RedrawRow(2);
    EXPECT_EQ(cells(2), u"dmmm"_s) << "the band left it before, the factor cell stays as it is";
    EXPECT_EQ(selection(), u"3,1 to 5,2"_s);
}

TEST_F(RowMarkingTest, ACornerInTheFirstColumnDoesNotComeBack) {
    surface().Select(3, 2);
    surface().Select(3, 2, 5, 0);
    grid->RedrawRow(2);
    EXPECT_EQ(selection(), u"3,2 to 5,2"_s);
}

TEST_F(RowMarkingTest, RedrawRowOfTheHeadingDoesNothing) {
    grid->RedrawRow(0);
    EXPECT_EQ(cells(0), u"FFFF"_s);
    EXPECT_EQ(cells(2), u"bbbb"_s);
}

TEST_F(RowMarkingTest, TheLastRowIsWithinTheBoundOfOneFixedRow) {
    grid->setPreBackColor(kMark);
    grid->setPreForeColor(kMark + 1);
    grid->RedrawRow(7);
    EXPECT_EQ(cells(7), u"mmmm"_s);
}

/// With two fixed rows the bound is one short of the last row.
TEST_F(RowMarkingTest, BeyondTheBoundTheSelectionThatStandsIsPainted) {
    grid->setFixedRows(2);
    surface().Select(4, 1);
    surface().Select(4, 1, 5, 2);
    grid->setPreBackColor(kMark);
    grid->setPreForeColor(kMark + 1);
    grid->RedrawRow(7);
    EXPECT_EQ(cells(7), u"dddd"_s);
    EXPECT_EQ(cells(4), u"bmmb"_s);
    EXPECT_EQ(cells(5), u"dmmd"_s);
    EXPECT_EQ(selection(), u"4,1 to 5,2"_s);
    grid->RedrawRow(6);
    EXPECT_EQ(cells(6), u"mmmm"_s);
}

TEST_F(RowMarkingTest, WithTwoHeadingRowsNoHeadingTakesColoursOfABand) {
    grid->setFixedRows(2);
    grid->setPreRow(0);
    grid->setRow(4);
    EXPECT_EQ(cells(0), u"FFFF"_s);
    EXPECT_EQ(cells(4), u"bbbb"_s);
}

/// The selection is heard after it, whether it was or not: within a handler of a marking, moves are heard
/// again.
TEST_F(RowMarkingTest, RedrawRowLetsMovesBeHeardAgain) {
    bool once = false;
    QObject::connect(&grid->events(), &Events::PropertyChanged, [&](PropertyArgs& e) {
        if (e.name != u"Row" || std::exchange(once, true))
            return;
        surface().setCol(1);
        log << u"quiet"_s;
        grid->RedrawRow(5);
        surface().setCol(2);
    });
    grid->FontsRow(5);
    EXPECT_EQ(told(), u"quiet Selecting"_s);
}

TEST_F(RowMarkingTest, AnAddedRowTakesNoBandWithIt) {
    grid->AddItem(u"x"_s, 1);
    EXPECT_EQ(cells(2), u"dddd"_s);
    EXPECT_EQ(cells(3), u"dddd"_s);
}

TEST_F(RowMarkingTest, ARowThatIsRemovedTakesItsBandAlong) {
    grid->RemoveItem(1);
    EXPECT_EQ(cells(1), u"bbbb"_s) << "the mark is left as it is";
}

// --- Releasemark, reversecolor, ReverseCell

TEST_F(RowMarkingTest, ReleasemarkStartsAtTheFixedColumns) {
    factors(2);
    grid->setFixedCols(1);
    grid->ReverseCell(5, 1, 1, kGroup, kGroup + 1);
    grid->Releasemark(5);
    EXPECT_EQ(cells(5).mid(1), u"ddd"_s) << "the factor cell behind the fixed column too";
    EXPECT_EQ(cells(5).at(0), u'F');
}

TEST_F(RowMarkingTest, ABlockThatStartsOnAnotherRowBecomesTheCellThatTheBandMovesTo) {
    surface().Select(3, 1, 4, 2);
    EXPECT_EQ(selection(), u"3,1 to 3,1"_s);
    surface().Select(3, 1, 4, 2);
    EXPECT_EQ(selection(), u"3,1 to 4,2"_s) << "on the band's row it stays";
}

TEST_F(RowMarkingTest, ReleasemarkPaintsWithWhatTheBandCovers) {
    surface().Select(3, 1);
    surface().Select(3, 1, 4, 2);
    grid->setPreBackColor(kMark);
    grid->setPreForeColor(kMark + 1);
    told();
    grid->Releasemark(6);
    EXPECT_EQ(cells(6), u"mmmm"_s);
    EXPECT_EQ(selection(), u"3,1 to 3,1"_s);
    EXPECT_EQ(surface().FillStyle(), 1);
    EXPECT_EQ(told(), QString());
}

TEST_F(RowMarkingTest, AMarkedRowIsPaintedFromTheFirstColumn) {
    factors(2);
    grid->reversecolor(5, kMark, kMark + 1);
    EXPECT_EQ(cells(5), u"mmmm"_s);
    EXPECT_EQ(cells(2), u"bbbb"_s);
    EXPECT_EQ(grid->PreRow(), 2);
    EXPECT_EQ(selection(), u"2,0 to 2,0"_s);
    EXPECT_EQ(told(), QString());
}

TEST_F(RowMarkingTest, MarkingTheCurrentRowKeepsTheBandAndLeavingItGivesTheMark) {
    grid->reversecolor(2, kMark, kMark + 1);
    EXPECT_EQ(cells(2), u"bbbb"_s);
    EXPECT_EQ(grid->PreBackColor(), kMark);
    EXPECT_EQ(told(), u"Selecting"_s);
    grid->setRow(3);
    EXPECT_EQ(cells(2), u"mmmm"_s);
}

TEST_F(RowMarkingTest, MarkingTheCurrentRowWithoutRowSelectShowsTheMark) {
    grid->setRowSelect(false);
    grid->setRow(4);
    told();
    grid->reversecolor(4, kMark, kMark + 1);
    EXPECT_EQ(cells(4), u"mmmm"_s);
    EXPECT_EQ(grid->PreRow(), 4);
    EXPECT_EQ(grid->PreBackColor(), kMark);
    EXPECT_EQ(told(), QString());
}

TEST_F(RowMarkingTest, MarkingTheHeadingRemembersTheSurfacesColours) {
    grid->setRow(0);
    grid->setPreBackColor(kMark);
    told();
    grid->reversecolor(0, kGroup, kGroup + 1);
    EXPECT_EQ(cells(0), u"gggg"_s);
    EXPECT_EQ(grid->PreBackColor(), kDetail);
    EXPECT_EQ(grid->PreForeColor(), kDetail + 1);
    EXPECT_EQ(grid->PreRow(), 0);
    EXPECT_EQ(told(), QString());
}

TEST_F(RowMarkingTest, CellsAreColouredAloneAndTheSelectionBecomesTheCurrentCell) {
    surface().Select(3, 1);
    surface().Select(3, 1, 4, 2);
    told();
    grid->ReverseCell(5, 1, 2, kMark, kMark + 1);
    EXPECT_EQ(cells(5), u"dmmd"_s);
    EXPECT_EQ(selection(), u"3,1 to 3,1"_s);
    EXPECT_EQ(surface().FillStyle(), 1);
    EXPECT_EQ(grid->PreRow(), 3);
    EXPECT_EQ(told(), QString());
}

TEST_F(RowMarkingTest, ARowOrColumnThatIsNotThereIsAnErrorAndLocksNothing) {
    EXPECT_EQ(errorNumber([&] { grid->reversecolor(99, kMark, kMark); }), kErrInvalidRow);
    EXPECT_EQ(errorNumber([&] { grid->Releasemark(-1); }), kErrInvalidRow);
    EXPECT_EQ(errorNumber([&] { grid->ReverseCell(1, 0, 9, kMark, kMark); }), kErrInvalidColumn);
    EXPECT_TRUE(grid->Redraw());
    surface().userSelect(4, 0);
    EXPECT_EQ(told(), u"Selecting Selecting"_s);
}

TEST_F(RowMarkingTest, AMarkTouchesOneRowWhateverTheReportsLength) {
    grid->setRows(100'000);
    grid->reversecolor(90'000, kMark, kMark);
    surface().takeCosts();
    grid->reversecolor(90'001, kMark, kMark);
    grid->FontsRow(90'001);
    EXPECT_LE(surface().takeCosts().styleWrites, 3);
}

// --- makeRowByrow

TEST_F(RowMarkingTest, OddRowsTakeTheAlternatingColours) {
    grid->setRowSelect(false);
    grid->setRow1BackColor(kMark);
    grid->setRow1ForeColor(kMark + 1);
    grid->makeRowByrow();
    EXPECT_EQ(cells(1), u"dddd"_s) << "only with RowByRow";
    grid->setRowByRow(true);
    surface().Select(4, 2);
    told();
    grid->makeRowByrow();
    for (int row = 1; row < 8; ++row)
        EXPECT_EQ(cells(row), row % 2 == 1 ? u"mmmm"_s : u"dddd"_s) << row;
    EXPECT_EQ(cells(0), u"FFFF"_s);
    EXPECT_EQ(selection(), u"4,2 to 4,2"_s);
    EXPECT_TRUE(grid->Redraw());
    EXPECT_EQ(told(), QString());
}

TEST_F(RowMarkingTest, MinRowsPaintsThemAnew) {
    grid->setRowSelect(false);
    grid->setRowByRow(true);
    grid->setRow1BackColor(kMark);
    grid->setRow1ForeColor(kMark + 1);
    grid->setMinRows(12);
    EXPECT_EQ(grid->Rows(), 12);
    EXPECT_EQ(cells(11), u"mmmm"_s);
    EXPECT_EQ(cells(10), u"dddd"_s);
}

TEST_F(RowMarkingTest, AlternatingColoursOnAnEmptyReportAreNone) {
    grid->setRowByRow(true);
    grid->setMinRows(0);
    grid->setRows(1);
    grid->makeRowByrow();
    EXPECT_EQ(cells(0), u"FFFF"_s);
}

} // namespace
