#include "surface/grid_surface.h"

#include "surface/sample_column.h"

#include <gtest/gtest.h>

using namespace zkp;
using zkp::test::u;

namespace {

void sized(GridSurface& surface, int rows, int cols) {
    surface.setRows(rows);
    surface.setCols(cols);
}

} // namespace

TEST(SurfaceStyles, TheDefaultsAreTheSystemsColours) {
    GridSurface surface;
    EXPECT_EQ(surface.BackColor(), 0x80000005u);
    EXPECT_EQ(surface.ForeColor(), 0x80000008u);
    EXPECT_EQ(surface.BackColorFixed(), 0x8000000Fu);
    EXPECT_EQ(surface.ForeColorFixed(), 0x80000012u);
    EXPECT_EQ(surface.styleAt(1, 0), CellStyle{});
    EXPECT_EQ(surface.styleAt(0, 0).backColor, 0x8000000Fu);
    EXPECT_EQ(surface.styleAt(0, 0).foreColor, 0x80000012u);
}

TEST(SurfaceStyles, TheCellPropertiesReadAndWriteTheCurrentCell) {
    GridSurface surface;
    sized(surface, 5, 3);
    surface.setRow(2);
    surface.setCol(1);
    surface.setRowSel(4);
    surface.setCellBackColor(1);
    surface.setCellForeColor(2);
    surface.setCellFontName(u("Tahoma"));
    surface.setCellFontSize(9.5);
    surface.setCellFontBold(true);
    surface.setCellFontItalic(true);
    surface.setCellFontUnderline(true);
    surface.setCellFontStrikeThrough(true);
    EXPECT_EQ(surface.CellBackColor(), 1u);
    EXPECT_EQ(surface.CellForeColor(), 2u);
    EXPECT_EQ(surface.CellFontName(), u("Tahoma"));
    EXPECT_EQ(surface.CellFontSize(), 9.5);
    EXPECT_TRUE(surface.CellFontBold() && surface.CellFontItalic());
    EXPECT_TRUE(surface.CellFontUnderline() && surface.CellFontStrikeThrough());
    EXPECT_EQ(surface.styleAt(3, 1), CellStyle{}) << "without FillStyle the block stays as it was";
}

TEST(SurfaceStyles, WithFillStyleTheyWriteTheBlock) {
    GridSurface surface;
    sized(surface, 5, 3);
    surface.setFillStyle(1);
    surface.Select(3, 2, 2, 1);
    surface.setCellBackColor(9);
    EXPECT_EQ(surface.styleAt(2, 1).backColor, 9u);
    EXPECT_EQ(surface.styleAt(3, 2).backColor, 9u);
    EXPECT_EQ(surface.styleAt(3, 0).backColor, systemColor(kSysWindow));
    EXPECT_EQ(surface.styleAt(1, 1).backColor, systemColor(kSysWindow));
}

TEST(SurfaceStyles, TheBodysColourCoversWhatCellsHadAndTheFixedPartStays) {
    GridSurface surface;
    sized(surface, 5, 3);
    surface.setCellBackColor(9);
    surface.setBackColor(3);
    EXPECT_EQ(surface.CellBackColor(), 3u);
    EXPECT_EQ(surface.BackColor(), 3u);
    EXPECT_EQ(surface.styleAt(0, 0).backColor, systemColor(kSysButtonFace));
    surface.setBackColorFixed(4);
    surface.setForeColorFixed(5);
    EXPECT_EQ(surface.styleAt(0, 0).backColor, 4u);
    EXPECT_EQ(surface.styleAt(0, 0).foreColor, 5u);
    surface.setCellBackColor(9);
    EXPECT_EQ(surface.BackColor(), 3u) << "the property keeps what it was given";
}

TEST(SurfaceStyles, TheSurfacesFontReachesTheHeadingToo) {
    GridSurface surface;
    sized(surface, 5, 3);
    surface.setFontName(u("Verdana"));
    surface.setFontSize(12);
    surface.setFontBold(true);
    surface.setFontItalic(true);
    surface.setFontUnderline(true);
    surface.setFontStrikethru(true);
    for (const int row : {0, 4}) {
        const CellStyle style = surface.styleAt(row, 1);
        EXPECT_EQ(style.fontName, u("Verdana"));
        EXPECT_EQ(style.fontSize, 12);
        EXPECT_TRUE(style.bold && style.italic && style.underline && style.strikethru);
    }
    surface.setFillStyle(1);
    surface.Select(1, 0, 4, 2);
    surface.setCellFontSize(7);
    EXPECT_EQ(surface.FontSize(), 12);
    EXPECT_EQ(surface.styleAt(0, 1).fontSize, 12);
    EXPECT_EQ(surface.styleAt(4, 1).fontSize, 7);
}

TEST(SurfaceStyles, FixedColumnsAreOfTheFixedPart) {
    GridSurface surface;
    sized(surface, 5, 3);
    surface.setFixedCols(1);
    surface.setBackColorFixed(4);
    surface.setBackColor(3);
    EXPECT_EQ(surface.styleAt(2, 0).backColor, 4u);
    EXPECT_EQ(surface.styleAt(2, 1).backColor, 3u);
    surface.setFillStyle(1);
    surface.Select(0, 0, 4, 2);
    surface.setCellBackColor(6);
    for (int row = 0; row < 5; ++row)
        for (int col = 0; col < 3; ++col)
            EXPECT_EQ(surface.styleAt(row, col).backColor, 6u) << row << ',' << col;
}

TEST(SurfaceStyles, AStyleMovesWithItsRowAndColumn) {
    GridSurface surface;
    sized(surface, 5, 3);
    surface.applyStyle({2, 1, 2, 1}, {.backColor = 8,
                                      .foreColor = {},
                                      .fontName = {},
                                      .fontSize = {},
                                      .bold = {},
                                      .italic = {},
                                      .underline = {},
                                      .strikethru = {}});
    surface.AddItem(QString(), 1);
    surface.setColPosition(1, 0);
    EXPECT_EQ(surface.styleAt(3, 0).backColor, 8u);
    EXPECT_EQ(surface.styleAt(2, 1).backColor, systemColor(kSysWindow));
    surface.RemoveItem(3);
    surface.AddItem(QString(), 3);
    EXPECT_EQ(surface.styleAt(3, 0).backColor, systemColor(kSysWindow))
        << "a new row has no style of the old";
}

TEST(SurfaceStyles, AMarkedSingleBodyRowDoesNotColourRowsToCome) {
    GridSurface surface;
    sized(surface, 2, 3);
    surface.setFillStyle(1);
    surface.Select(1, 0, 1, 2);
    surface.setCellBackColor(8);
    surface.setRows(4);
    EXPECT_EQ(surface.styleAt(1, 1).backColor, 8u);
    EXPECT_EQ(surface.styleAt(3, 1).backColor, systemColor(kSysWindow));
}
