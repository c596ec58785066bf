#include "painted_grid.h"

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

class CellFontsTest : public PaintedGridTest {
protected:
    /// Which cells of a row have that size: "x" or ".".
    QString ofSize(int row, double size) {
        QString text;
        for (int c = 0; c < grid->Cols(); ++c)
            text += style(row, c).fontSize == size ? u'x' : u'.';
        return text;
    }
};

// --- SetCellFonts

TEST_F(CellFontsTest, ABlockTakesNameSizeAndStyle) {
    grid->SetCellFonts(2, u"Courier"_s, 11, true, true, true, 1, 3, 2);
    EXPECT_EQ(ofSize(1, 11), u"...."_s);
    EXPECT_EQ(ofSize(2, 11), u".xx."_s);
    EXPECT_EQ(ofSize(3, 11), u".xx."_s);
    EXPECT_EQ(ofSize(4, 11), u"...."_s);
    const CellStyle cell = style(3, 2);
    EXPECT_EQ(cell.fontName, u"Courier"_s);
    EXPECT_TRUE(cell.bold && cell.italic && cell.underline);
    EXPECT_FALSE(cell.strikethru);
    EXPECT_EQ(cell.backColor, kDetail);
}

TEST_F(CellFontsTest, WithoutPlacesItIsTheRowFromBehindTheFactorsToTheLastColumn) {
    factors(2);
    grid->SetCellFonts(2, u"Arial"_s, 11, false, false, false);
    EXPECT_EQ(ofSize(2, 11), u"..xx"_s);
    EXPECT_EQ(ofSize(1, 11), u"...."_s);
    EXPECT_EQ(ofSize(3, 11), u"...."_s);
    grid->SetCellFonts(0, u"Arial"_s, 12, false, false, false);
    EXPECT_EQ(ofSize(0, 12), u"xxxx"_s) << "in row 0 from the first column";
}

TEST_F(CellFontsTest, ARowThatIsNotThereIsPassedOver) {
    grid->SetCellFonts(-1, u"Arial"_s, 11, false, false, false);
    grid->SetCellFonts(8, u"Arial"_s, 11, false, false, false);
    for (int row = 0; row < 8; ++row)
        EXPECT_EQ(ofSize(row, 11), u"...."_s);
}

TEST_F(CellFontsTest, AReportOfFactorsAloneHasNothingBehindThem) {
    factors(4);
    grid->SetCellFonts(2, u"Arial"_s, 11, false, false, false);
    EXPECT_EQ(ofSize(2, 11), u"...."_s);
}

TEST_F(CellFontsTest, TheCurrentCellFillStyleAndRedrawStandAsBefore) {
    surface().Select(2, 1, 4, 3);
    surface().setFillStyle(0);
    grid->SetCellFonts(5, u"Arial"_s, 11, false, false, false);
    EXPECT_EQ(selection(), u"2,1 to 2,1"_s) << "setting Row and Col anew makes it the selection";
    EXPECT_EQ(surface().FillStyle(), 0);
    EXPECT_TRUE(grid->Redraw());
    grid->setRedraw(false);
    grid->SetCellFonts(5, u"Arial"_s, 12, false, false, false);
    EXPECT_FALSE(grid->Redraw());
}

TEST_F(CellFontsTest, TheControlsOwnMovesRaiseNothing) {
    grid->setRowSelect(true);
    surface().Select(2, 1, 4, 3);
    told();
    grid->SetCellFonts(5, u"Arial"_s, 11, false, false, false);
    grid->FontsRow(5);
    grid->CellFonts(5, 2);
    EXPECT_EQ(told(), QString());
}

TEST_F(CellFontsTest, ABlockThatLeavesTheSurfaceIsAnErrorAndLocksNothing) {
    EXPECT_EQ(errorNumber([&] { grid->SetCellFonts(2, u"Arial"_s, 11, false, false, false, 0, 99); }),
              kErrInvalidRow);
    EXPECT_EQ(errorNumber([&] { grid->SetCellFonts(2, u"Arial"_s, 11, false, false, false, 9); }),
              kErrInvalidColumn);
    EXPECT_TRUE(grid->Redraw());
    surface().userSelect(4, 0);
    EXPECT_EQ(told(), u"Selecting"_s);
}

TEST_F(CellFontsTest, TheWholeBodyIsOneWriteWhateverItsLength) {
    grid->setRows(200'000);
    surface().takeCosts();
    grid->SetCellFonts(1, u"Courier"_s, 11, true, false, false, 0, 199'999);
    const GridSurface::Costs costs = surface().takeCosts();
    EXPECT_EQ(costs.styleWrites, 1);
    EXPECT_EQ(costs.rowsTouched, 0);
    EXPECT_EQ(ofSize(1, 11), u"xxxx"_s);
    EXPECT_EQ(ofSize(199'999, 11), u"xxxx"_s);
    EXPECT_EQ(ofSize(0, 11), u"...."_s);
}

TEST_F(CellFontsTest, SettersOfTheFixedFontPaintTheHeadingWithAllOfIt) {
    grid->SetCellFonts(0, u"Courier"_s, 20, false, true, false);
    grid->setFixedFontSize(10);
    EXPECT_EQ(ofSize(0, 10), u"xxxx"_s);
    EXPECT_EQ(style(0, 3).fontName, u"Arial"_s);
    EXPECT_TRUE(style(0, 3).bold);
    EXPECT_FALSE(style(0, 3).italic);
    EXPECT_EQ(ofSize(1, 10), u"...."_s);
}

TEST_F(CellFontsTest, WithoutAHeadingTheFixedFontPaintsNoDataRow) {
    grid->setFixedRows(0);
    grid->setFixedFontSize(10);
    EXPECT_EQ(ofSize(0, 10), u"...."_s);
}

// --- FontsRow and CellFonts

TEST_F(CellFontsTest, ARowTakesSizeAndStyleFromTheFixedColumnsOn) {
    grid->setFixedCols(1);
    grid->FontsRow(3, {}, 14, true, true, true, true);
    EXPECT_EQ(ofSize(3, 14), u".xxx"_s);
    const CellStyle cell = style(3, 1);
    EXPECT_TRUE(cell.bold && cell.underline && cell.italic && cell.strikethru);
    EXPECT_EQ(ofSize(2, 14), u"...."_s);
}

TEST_F(CellFontsTest, TheTypefaceOfARowOrCellCannotBeChanged) {
    grid->SetCellFonts(3, u"Courier"_s, 14, true, true, false);
    grid->FontsRow(3, u"Times"_s);
    grid->CellFonts(3, 0, u"Times"_s);
    EXPECT_EQ(style(3, 0).fontName, u"Courier"_s);
}

TEST_F(CellFontsTest, ANameAloneSetsSizeAndStyleBackToTheSurfacesFont) {
    grid->setFontSize(9);
    grid->setFontItalic(true);
    grid->FontsRow(3, {}, 14, true, true, false, true);
    grid->FontsRow(3, u"Arial"_s);
    const CellStyle cell = style(3, 2);
    EXPECT_EQ(cell.fontSize, 9);
    EXPECT_TRUE(cell.italic);
    EXPECT_FALSE(cell.bold || cell.underline || cell.strikethru);
}

TEST_F(CellFontsTest, ArgumentsInTheMiddleMayBeLeftOut) {
    grid->FontsRow(3, {}, {}, true, {}, true);
    const CellStyle cell = style(3, 2);
    EXPECT_EQ(cell.fontSize, 8);
    EXPECT_TRUE(cell.bold && cell.italic);
    EXPECT_FALSE(cell.underline);
}

TEST_F(CellFontsTest, OneCellTakesItsMarksAlone) {
    grid->CellFonts(3, 1, {}, 14, true, true, true, true);
    EXPECT_EQ(ofSize(3, 14), u".x.."_s);
    EXPECT_EQ(ofSize(2, 14), u"...."_s);
    const CellStyle cell = style(3, 1);
    EXPECT_TRUE(cell.bold && cell.underline && cell.italic && cell.strikethru);
}

TEST_F(CellFontsTest, ARowLeavesFillStyleAtTheBlockAndACellLeavesItAlone) {
    grid->CellFonts(3, 1);
    EXPECT_EQ(surface().FillStyle(), 0);
    grid->FontsRow(3);
    EXPECT_EQ(surface().FillStyle(), 1);
}

TEST_F(CellFontsTest, TheCurrentCellComesBackThroughTheControlsSetters) {
    grid->setRow(2);
    grid->setCol(3);
    EXPECT_EQ(keysOf([&] { grid->FontsRow(5); }), (QStringList{u"Row"_s, u"Col"_s}));
    EXPECT_EQ(keysOf([&] { grid->CellFonts(5, 0); }), (QStringList{u"Row"_s, u"Col"_s}));
    EXPECT_EQ(selection(), u"2,3 to 2,3"_s);
}

TEST_F(CellFontsTest, AHandlerThatThrowsLeavesNothingLocked) {
    const auto broken = QObject::connect(&grid->events(), &Events::PropertyChanged,
                                         [](PropertyArgs&) { throw Error(kErrInvalidCall, u"no"_s); });
    EXPECT_EQ(errorNumber([&] { grid->FontsRow(5); }), kErrInvalidCall);
    QObject::disconnect(broken);
    EXPECT_TRUE(grid->Redraw());
    surface().userSelect(4, 0);
    EXPECT_EQ(told(), u"Selecting"_s);
}

TEST_F(CellFontsTest, AnArgumentOfAnotherKindIsAnError) {
    EXPECT_EQ(errorNumber([&] { grid->FontsRow(5, {}, QStringList{u"a"_s, u"b"_s}); }), kErrTypeMismatch);
    EXPECT_EQ(errorNumber([&] { grid->FontsRow(99); }), kErrInvalidRow);
    EXPECT_EQ(errorNumber([&] { grid->CellFonts(1, 9); }), kErrInvalidColumn);
}

TEST_F(CellFontsTest, AHandlerMayDestroyTheControl) {
    QObject::connect(&grid->events(), &Events::PropertyChanged, [this](PropertyArgs&) { grid.reset(); });
    grid->FontsRow(5);
    EXPECT_EQ(grid, nullptr);
}

} // namespace
