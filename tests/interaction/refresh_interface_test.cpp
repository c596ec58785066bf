#include "painted_grid.h"

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

/// Three group factors; subtotals in rows 3 and 5, the totals in row 7, everything else painted as a
/// host's mark.
class RefreshInterfaceTest : public PaintedGridTest {
protected:
    RefreshInterfaceTest() {
        factors(3);
        kinds({1, 1, 9, 1, 9, 1, 10});
        for (int row = 0; row < 8; ++row)
            grid->ReverseCell(row, 0, 3, kMark, kMark + 1);
        surface().setVisibleRows(2);
    }
};

TEST_F(RefreshInterfaceTest, AllRowsTakeTheirSectionsAlsoThoseOutOfSight) {
    grid->RefreshInterface();
    EXPECT_EQ(cells(0), u"mmmm"_s) << "of the heading the font alone";
    EXPECT_EQ(cells(1), u"gggm"_s) << "details keep their colours";
    EXPECT_EQ(cells(3), u"ssss"_s);
    EXPECT_EQ(cells(5), u"ssss"_s);
    EXPECT_EQ(cells(6), u"gggm"_s);
    EXPECT_EQ(cells(7), u"tttt"_s);
    EXPECT_EQ(told(), QString());
}

TEST_F(RefreshInterfaceTest, ZeroIsTheHeadingAlone) {
    grid->FontsRow(0, {}, 20, false, true, true, false);
    grid->setFixedFontStrikethru(true);
    grid->RefreshInterface(0);
    const CellStyle heading = style(0, 2);
    EXPECT_EQ(heading.fontSize, 8);
    EXPECT_TRUE(heading.bold && heading.strikethru);
    EXPECT_FALSE(heading.underline || heading.italic);
    EXPECT_EQ(cells(3), u"mmmm"_s);
    EXPECT_EQ(cells(1), u"mmmm"_s);
}

TEST_F(RefreshInterfaceTest, AnyOtherNumberIsAll) {
    grid->RefreshInterface(3);
    EXPECT_EQ(cells(3), u"ssss"_s);
}

TEST_F(RefreshInterfaceTest, AHandlerThatTakesTheRowsAwayEndsIt) {
    grid->setRowSelect(true);
    surface().setRowData(1, ZKPSubTotals); // the group block leaves row 1 the current one
    QObject::connect(&grid->events(), &Events::Selecting, grid.get(), [&] { surface().setRows(1); });
    grid->RefreshInterface();
    EXPECT_EQ(surface().Rows(), 1);
    EXPECT_TRUE(surface().Redraw());
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(RefreshInterfaceTest, SumsTakeSizeAndStyleAndKeepTheirTypeface) {
    grid->setSubTotalsFontName(u"Sub"_s);
    grid->setSubTotalsFontSize(11);
    grid->setSubTotalsFontItalic(true);
    grid->setTotalsFontSize(12);
    grid->setTotalsFontUnderline(true);
    grid->setTotalsFontStrikethru(true);
    grid->RefreshInterface();
    EXPECT_EQ(style(3, 3).fontName, u"Arial"_s);
    EXPECT_EQ(style(3, 3).fontSize, 11);
    EXPECT_TRUE(style(3, 0).bold && style(3, 0).italic);
    EXPECT_FALSE(style(3, 0).underline || style(3, 0).strikethru);
    EXPECT_EQ(style(7, 3).fontSize, 12);
    EXPECT_TRUE(style(7, 0).bold && style(7, 0).underline && style(7, 0).strikethru);
}

TEST_F(RefreshInterfaceTest, PointerAndRedrawComeBack) {
    host->setPointer(kPointerNoDrop);
    int within = 0;
    QObject::connect(&grid->events(), &Events::PropertyChanged, [&] { within = host->pointer(); });
    grid->RefreshInterface();
    EXPECT_EQ(within, kPointerHourglass);
    EXPECT_EQ(host->pointer(), kPointerNoDrop);
    EXPECT_TRUE(grid->Redraw());
    QObject::connect(&grid->events(), &Events::PropertyChanged,
                     [] { throw Error(kErrInvalidCall, u"no"_s); });
    EXPECT_EQ(errorNumber([&] { grid->RefreshInterface(); }), kErrInvalidCall);
    EXPECT_EQ(host->pointer(), kPointerNoDrop);
    EXPECT_TRUE(grid->Redraw());
}

TEST_F(RefreshInterfaceTest, TheBarIsLaidOutAgainUnlessItIsTheHeadingAlone) {
    int changed = 0;
    const Listening view = grid->Picture1().views.add({.changed = [&] { ++changed; }});
    grid->RefreshInterface(0);
    EXPECT_EQ(changed, 0);
    grid->RefreshInterface();
    EXPECT_EQ(changed, 1);
}

TEST_F(RefreshInterfaceTest, WithoutFixedRowsAndFactorsThereAreOnlySums) {
    for (int c = 0; c < 3; ++c)
        grid->setColForTot(c, false);
    grid->CheckGroupBy();
    grid->setFixedRows(0);
    grid->FontsRow(0, {}, 20);
    grid->RefreshInterface();
    EXPECT_EQ(cells(0), u"mmmm"_s);
    EXPECT_EQ(style(0, 0).fontSize, 20);
    EXPECT_EQ(cells(1), u"mmmm"_s);
    EXPECT_EQ(cells(7), u"tttt"_s);
}

// --- PaintGroupBlock

TEST_F(RefreshInterfaceTest, TheGroupBlockIsTheFactorsOfAllRows) {
    grid->PaintGroupBlock();
    EXPECT_EQ(cells(0), u"mmmm"_s);
    for (int row = 1; row < 8; ++row)
        EXPECT_EQ(cells(row), u"gggm"_s) << row;
}

TEST_F(RefreshInterfaceTest, InATotalsReportTheInnermostOfSeveralFactorsIsAPlainCell) {
    grid->setTotalForm(true);
    surface().setMergeCol(2, true);
    surface().setMergeCol(3, true);
    grid->PaintGroupBlock();
    EXPECT_EQ(cells(1), u"ggmm"_s);
    EXPECT_EQ(surface().MergeCells(), 1);
    EXPECT_TRUE(surface().MergeCol(0) && surface().MergeCol(1));
    EXPECT_FALSE(surface().MergeCol(2) || surface().MergeCol(3));
}

TEST_F(RefreshInterfaceTest, TheOnlyFactorOfATotalsReportIsABlock) {
    grid->setTotalForm(true);
    grid->setColForTot(1, false);
    grid->setColForTot(2, false);
    grid->CheckGroupBy();
    grid->PaintGroupBlock();
    EXPECT_EQ(cells(1), u"gmmm"_s);
}

TEST_F(RefreshInterfaceTest, FromTheEndItIsTheLastRowAlone) {
    grid->PaintGroupBlock(false);
    EXPECT_EQ(cells(6), u"mmmm"_s);
    EXPECT_EQ(cells(7), u"gggm"_s);
    EXPECT_TRUE(surface().MergeCol(2));
}

TEST_F(RefreshInterfaceTest, TheBlockTakesSizeAndStyleAndKeepsItsTypeface) {
    grid->setGroupedFontName(u"Group"_s);
    grid->setGroupedFontSize(11);
    grid->setGroupedFontStrikethru(true);
    grid->PaintGroupBlock();
    const CellStyle cell = style(4, 2);
    EXPECT_EQ(cell.fontName, u"Arial"_s);
    EXPECT_EQ(cell.fontSize, 11);
    EXPECT_TRUE(cell.bold && cell.strikethru);
    EXPECT_FALSE(cell.italic || cell.underline);
}

TEST_F(RefreshInterfaceTest, TheBlockStaysSelectedAndFillStyleIsTheCell) {
    grid->setRow(4);
    surface().setFillStyle(1);
    told();
    grid->PaintGroupBlock();
    EXPECT_EQ(selection(), u"1,0 to 7,2"_s);
    EXPECT_EQ(surface().FillStyle(), 0);
    EXPECT_EQ(told(), QString()) << "the control's own moves";
}

TEST_F(RefreshInterfaceTest, WithoutFactorsNothingHappens) {
    for (int c = 0; c < 3; ++c)
        grid->setColForTot(c, false);
    grid->CheckGroupBy();
    surface().setMergeCol(0, true);
    grid->PaintGroupBlock();
    EXPECT_EQ(cells(1), u"mmmm"_s);
    EXPECT_TRUE(surface().MergeCol(0));
}

TEST_F(RefreshInterfaceTest, AReportWithoutRowsHasNoBlock) {
    grid->setRows(1);
    grid->PaintGroupBlock();
    grid->PaintGroupBlock(false);
    grid->RefreshInterface();
    EXPECT_EQ(cells(0), u"mmmm"_s);
    EXPECT_TRUE(surface().MergeCol(2));
}

} // namespace
