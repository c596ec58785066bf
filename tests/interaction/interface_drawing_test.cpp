#include "painted_grid.h"

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

/// Two group factors, and rows of each kind: details in 1, 2 and 4, subtotals in 3 and 5, the totals in
/// 6, and a row of no kind in 7.
class InterfaceDrawingTest : public PaintedGridTest {
protected:
    InterfaceDrawingTest() {
        giveRecordSource();
        factors(2);
        kinds({1, 1, 9, 1, 9, 10, 0});
        for (int row = 1; row < 8; ++row) {
            for (int col = 0; col < 4; ++col)
                grid->setTextMatrix(row, col, u"x"_s);
            grid->ReverseCell(row, 0, 3, kMark, kMark + 1);
        }
    }
};

TEST_F(InterfaceDrawingTest, EachKindOfRowTakesItsSectionsColours) {
    grid->DrawInterface();
    EXPECT_EQ(cells(1), u"ggdd"_s);
    EXPECT_EQ(cells(2), u"ggdd"_s);
    EXPECT_EQ(cells(3), u"ssss"_s);
    EXPECT_EQ(cells(4), u"ggdd"_s);
    EXPECT_EQ(cells(5), u"ssss"_s);
    EXPECT_EQ(cells(6), u"tttt"_s);
    EXPECT_EQ(cells(7), u"ggmm"_s) << "a row of no kind takes the group colours alone";
    EXPECT_EQ(told(), u"Start Stop"_s);
}

TEST_F(InterfaceDrawingTest, EachSectionTakesItsFont) {
    grid->setFontName(u"Detail"_s);
    grid->setFontSize(7);
    grid->setFixedFontName(u"Fixed"_s);
    grid->setFixedFontUnderline(true);
    grid->setGroupedFontName(u"Group"_s);
    grid->setGroupedFontItalic(true);
    grid->setSubTotalsFontName(u"Sub"_s);
    grid->setSubTotalsFontSize(11);
    grid->setTotalsFontName(u"Total"_s);
    grid->setTotalsFontSize(12);
    grid->SetCellFonts(0, u"Odd"_s, 30, false, true, false, 0, 7, 3);
    grid->DrawInterface();

    EXPECT_EQ(style(0, 0).fontName, u"Fixed"_s);
    EXPECT_TRUE(style(0, 3).bold && style(0, 3).underline);
    EXPECT_EQ(style(1, 3).fontName, u"Detail"_s);
    EXPECT_EQ(style(1, 3).fontSize, 7);
    EXPECT_FALSE(style(1, 3).bold || style(1, 3).italic);
    EXPECT_EQ(style(1, 1).fontName, u"Group"_s);
    EXPECT_TRUE(style(1, 1).bold && style(1, 1).italic);
    EXPECT_EQ(style(3, 0).fontName, u"Sub"_s);
    EXPECT_EQ(style(3, 3).fontSize, 11);
    EXPECT_TRUE(style(3, 3).bold);
    EXPECT_FALSE(style(3, 0).italic);
    EXPECT_EQ(style(6, 1).fontName, u"Total"_s);
    EXPECT_EQ(style(6, 3).fontSize, 12);
    EXPECT_EQ(style(7, 3).fontName, u"Detail"_s);
}

TEST_F(InterfaceDrawingTest, BlankFactorCellsThatAreNoSumsShowTheMark) {
    for (int row = 1; row < 8; ++row)
        grid->setTextMatrix(row, 1, u"  "_s);
    grid->setTextMatrix(2, 0, QString());
    grid->setTextMatrix(2, 2, QString());
    grid->setTextMatrix(4, 1, u"\t"_s);
    grid->DrawInterface();
    EXPECT_EQ(grid->TextMatrix(1, 1), u"----"_s);
    EXPECT_EQ(grid->TextMatrix(2, 0), u"----"_s);
    EXPECT_EQ(grid->TextMatrix(2, 2), QString()) << "no group factor";
    EXPECT_EQ(grid->TextMatrix(3, 1), u"  "_s) << "a subtotal";
    EXPECT_EQ(grid->TextMatrix(4, 1), u"\t"_s) << "trimming takes blanks only";
    EXPECT_EQ(grid->TextMatrix(6, 1), u"  "_s) << "the totals";
    EXPECT_EQ(grid->TextMatrix(7, 1), u"----"_s) << "a row that is neither";
    EXPECT_EQ(grid->TextMatrix(1, 0), u"x"_s) << "repeated values keep their text";
}

TEST_F(InterfaceDrawingTest, OnlyRowsThatShowArePainted) {
    surface().setVisibleRows(2);
    surface().setTopRow(2);
    grid->setTextMatrix(4, 0, QString());
    grid->setTextMatrix(2, 0, QString());
    told();
    grid->DrawInterface();
    EXPECT_EQ(cells(1), u"mmmm"_s);
    EXPECT_EQ(cells(2), u"ggdd"_s);
    EXPECT_EQ(cells(3), u"ssss"_s);
    EXPECT_EQ(cells(4), u"mmmm"_s);
    EXPECT_EQ(grid->TextMatrix(2, 0), u"----"_s);
    EXPECT_EQ(grid->TextMatrix(4, 0), QString()) << "blank until it is scrolled to";
}

TEST_F(InterfaceDrawingTest, WithoutFactorsARowIsPaintedFromTheFirstColumn) {
    for (int c = 0; c < 2; ++c)
        grid->setColForTot(c, false);
    grid->CheckGroupBy();
    grid->setTextMatrix(1, 0, QString());
    grid->DrawInterface();
    EXPECT_EQ(cells(1), u"dddd"_s);
    EXPECT_EQ(cells(3), u"ssss"_s);
    EXPECT_EQ(cells(7), u"mmmm"_s);
    EXPECT_EQ(grid->TextMatrix(1, 0), QString());
}

TEST_F(InterfaceDrawingTest, WithoutARecordSourceOnlyTheEndIsTold) {
    grid->setRecordSource(QVariant());
    grid->DrawInterface();
    EXPECT_EQ(told(), u"Stop"_s);
    EXPECT_EQ(cells(1), u"mmmm"_s);
    EXPECT_TRUE(grid->Redraw());
}

TEST_F(InterfaceDrawingTest, AGridOfOneRowHasFontsAlone) {
    grid->setRows(1);
    grid->setFixedFontSize(10);
    grid->SetCellFonts(0, u"Odd"_s, 30, false, true, false);
    grid->DrawInterface();
    EXPECT_EQ(told(), u"Start Stop"_s);
    EXPECT_EQ(style(0, 0).fontSize, 10);
    EXPECT_EQ(host->messages.size(), 0u);
    grid->setFixedRows(0);
    grid->DrawInterface();
    EXPECT_EQ(cells(0), u"dddd"_s) << "a row of its own, with no block and no walk";
}

TEST_F(InterfaceDrawingTest, AReportOfFactorsAloneHasNoRowWalk) {
    factors(4);
    grid->setTextMatrix(1, 0, QString());
    grid->DrawInterface();
    EXPECT_EQ(cells(1), u"gggg"_s);
    EXPECT_EQ(cells(3), u"gggg"_s);
    EXPECT_EQ(grid->TextMatrix(1, 0), QString());
}

TEST_F(InterfaceDrawingTest, SelectionFillStyleAndScrollPositionStandAsBefore) {
    surface().setVisibleRows(3);
    surface().setTopRow(3);
    surface().setFillStyle(0);
    surface().Select(2, 1, 5, 3);
    told();
    grid->DrawInterface();
    EXPECT_EQ(selection(), u"2,1 to 5,3"_s);
    EXPECT_EQ(surface().FillStyle(), 0);
    EXPECT_EQ(surface().TopRow(), 3);
    EXPECT_TRUE(grid->Redraw());
    EXPECT_EQ(told(), u"Start Stop"_s);
    grid->setRedraw(false);
    grid->DrawInterface();
    EXPECT_FALSE(grid->Redraw());
}

TEST_F(InterfaceDrawingTest, ACornerInRowOrColumnZeroDoesNotComeBack) {
    surface().Select(2, 1, 5, 0);
    grid->DrawInterface();
    EXPECT_EQ(selection(), u"2,1 to 5,1"_s);
    surface().Select(2, 1, 0, 3);
    grid->DrawInterface();
    EXPECT_EQ(selection(), u"2,1 to 2,3"_s);
}

TEST_F(InterfaceDrawingTest, TheCurrentRowIsMarkedAnew) {
    grid->setRow(2);
    grid->setRowSelect(true);
    told();
    grid->DrawInterface();
    EXPECT_EQ(cells(2), u"ggbb"_s);
    EXPECT_EQ(grid->PreRow(), 2);
    EXPECT_EQ(grid->PreBackColor(), kDetail) << "the section's colour and not what lay there before";
    EXPECT_EQ(told(), u"Start Selecting Stop"_s);
    grid->setRow(4);
    EXPECT_EQ(cells(2), u"ggdd"_s);
}

TEST_F(InterfaceDrawingTest, WithoutRowSelectTheMarkedRowIsForgotten) {
    grid->setPreRow(5);
    grid->DrawInterface();
    EXPECT_EQ(grid->PreRow(), 0);
}

TEST_F(InterfaceDrawingTest, AFailureShowsTheBoxAndLocksNothing) {
    const auto broken = QObject::connect(&grid->events(), &Events::StartInterface,
                                         [] { throw Error(kErrInvalidCall, u"no"_s); });
    grid->DrawInterface();
    QObject::disconnect(broken);
    ASSERT_EQ(host->messages.size(), 1u);
    EXPECT_EQ(host->messages[0].title, u"QRN Insurance"_s);
    EXPECT_TRUE(host->messages[0].text.contains(u"NO"_s));
    EXPECT_EQ(host->messages[0].style, kMsgBoxCritical);
    EXPECT_TRUE(grid->Redraw());
    told();
    grid->DrawInterface();
    EXPECT_EQ(told(), u"Start Stop"_s);
}

TEST_F(InterfaceDrawingTest, AFailureOfTheMarkPutsTheViewBackToo) {
    surface().Select(2, 1, 5, 3);
    surface().setFillStyle(0);
    grid->setRowSelect(true);
    QObject::connect(&grid->events(), &Events::Selecting, [] { throw Error(kErrInvalidCall, u"no"_s); });
    grid->DrawInterface();
    EXPECT_EQ(host->messages.size(), 1u);
    EXPECT_EQ(selection(), u"2,1 to 5,3"_s);
    EXPECT_EQ(surface().FillStyle(), 0);
    EXPECT_TRUE(grid->Redraw());
}

TEST_F(InterfaceDrawingTest, AHandlerThatTakesRowsAwayDoesNoHarm) {
    grid->setRowSelect(true);
    grid->setRow(6);
    surface().setTopRow(5);
    QObject::connect(&grid->events(), &Events::Selecting, [this] { grid->setRows(2); });
    grid->DrawInterface();
    EXPECT_EQ(host->messages.size(), 0u);
    EXPECT_EQ(surface().inconsistency(), QString());
    EXPECT_TRUE(grid->Redraw());
}

TEST_F(InterfaceDrawingTest, AHandlerThatAsksForItAgainIsNotHeard) {
    QObject::connect(&grid->events(), &Events::StopInterface, [this] { grid->DrawInterface(); });
    QObject::connect(&grid->events(), &Events::StartInterface, [this] { grid->DrawInterface(); });
    grid->DrawInterface();
    EXPECT_EQ(told(), u"Start Stop"_s);
}

TEST_F(InterfaceDrawingTest, AHandlerMayDestroyTheControl) {
    QObject::connect(&grid->events(), &Events::StartInterface, [this] { grid.reset(); });
    grid->DrawInterface();
    EXPECT_EQ(grid, nullptr);
    EXPECT_EQ(log.join(u' '), u"Start"_s);
}

TEST_F(InterfaceDrawingTest, LeavingTheControlPaintsItAndPassesOverErrors) {
    grid->UserControl_ExitFocus();
    EXPECT_EQ(told(), u"Start Stop"_s);
    EXPECT_EQ(cells(3), u"ssss"_s);
}

TEST_F(InterfaceDrawingTest, TheCostIsThatOfTheRowsThatShow) {
    surface().setVisibleRows(41);
    const auto cost = [this](int rows) {
        grid->setRows(rows);
        for (int row = 1; row < rows; ++row)
            surface().setRowData(row, row % 5 == 0 ? ZKPSubTotals : ZKPSingleRow);
        surface().setTopRow(rows / 2);
        surface().takeCosts();
        grid->DrawInterface();
        return surface().takeCosts();
    };
    const GridSurface::Costs few = cost(1'000);
    const GridSurface::Costs many = cost(100'000);
    EXPECT_EQ(many.styleWrites, few.styleWrites);
    EXPECT_EQ(many.textsMade, few.textsMade);
    EXPECT_LE(many.styleWrites, 41 * 4 + 41 + 2);
}

TEST_F(InterfaceDrawingTest, WithAllRowsInSightAPlainReportIsAHandfulOfWrites) {
    for (int c = 0; c < 2; ++c)
        grid->setColForTot(c, false);
    grid->CheckGroupBy();
    grid->setRows(50'000);
    for (int row = 1; row < 50'000; ++row)
        surface().setRowData(row, ZKPSingleRow);
    surface().takeCosts();
    grid->DrawInterface();
    EXPECT_LE(surface().takeCosts().styleWrites, 3) << "body font, heading font, detail colours";
}

} // namespace
