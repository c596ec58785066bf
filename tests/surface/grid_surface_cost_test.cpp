#include "surface/grid_surface.h"

#include "surface/sample_column.h"

#include <gtest/gtest.h>

using namespace zkp;
using namespace zkp::test;

namespace {

constexpr int kMillion = 1'000'000;

/// A million body rows that show one short column ten times.
void loadMillion(GridSurface& surface) {
    const auto column = numberedTexts("r", 1000);
    surface.setCols(10);
    surface.setRows(1);
    surface.setRows(kMillion + 1);
    const auto layout = surface.addLayout(std::vector<CellBinding>(10, {column, CellFormat::OwnText}));
    surface.bindRows(
        1, kMillion, layout, [](int i) { return static_cast<std::uint32_t>(i % 1000); }, 1);
}

} // namespace

TEST(SurfaceCost, TwoHundredThousandInsertionsInTheMiddleTouchTwoHundredThousandRows) {
    GridSurface surface;
    surface.setRedraw(false);
    loadMillion(surface);
    surface.takeCosts();
    constexpr int kInsertions = 200'000;
    for (int i = 0; i < kInsertions; ++i)
        surface.AddItem(QString(), 1 + 6 * i);
    const GridSurface::Costs costs = surface.takeCosts();
    EXPECT_EQ(costs.rowsTouched, kInsertions);
    EXPECT_LE(costs.rowsCopied, std::int64_t{kInsertions} * 130) << "a block of runs at the most";
    EXPECT_EQ(costs.textsMade, 0);
    EXPECT_EQ(surface.TextMatrix(2, 0), u("r0"));
    EXPECT_EQ(surface.TextMatrix(1 + 6 * (kInsertions - 1) + 1, 0), u("r995"));
}

TEST(SurfaceCost, AFontForTheWholeBodyIsOneWrite) {
    GridSurface surface;
    loadMillion(surface);
    surface.setFillStyle(1);
    surface.Select(1, 0, kMillion, 9);
    surface.takeCosts();
    surface.setCellFontName(u("Tahoma"));
    EXPECT_EQ(surface.takeCosts().styleWrites, 1);
    EXPECT_EQ(surface.styleAt(kMillion, 9).fontName, u("Tahoma"));
    surface.Select(1, 2, kMillion, 4);
    surface.setCellBackColor(3);
    EXPECT_EQ(surface.takeCosts().styleWrites, 3) << "one for each column";
    surface.Select(7, 0, 8, 9);
    surface.setCellBackColor(4);
    EXPECT_EQ(surface.takeCosts().styleWrites, 2) << "one for each row";
}

TEST(SurfaceCost, BlankingAColumnWritesNoCell) {
    GridSurface surface;
    loadMillion(surface);
    surface.setFillStyle(1);
    surface.Select(1, 3, kMillion, 3);
    surface.takeCosts();
    surface.setText({});
    EXPECT_EQ(surface.takeCosts().rowsTouched, 0);
    EXPECT_EQ(surface.TextMatrix(kMillion, 3), QString());
    EXPECT_EQ(surface.TextMatrix(kMillion, 4), u("r999"));
}

TEST(SurfaceCost, APaintMakesTheTextsOfItsRows) {
    GridSurface surface;
    loadMillion(surface);
    surface.setVisibleRows(41);
    surface.setTopRow(500'000);
    surface.takeCosts();
    for (int row = surface.TopRow(); row <= surface.BottomRow(); ++row)
        for (int col = 0; col < 10; ++col) {
            surface.TextMatrix(row, col);
            surface.styleAt(row, col);
        }
    const GridSurface::Costs costs = surface.takeCosts();
    EXPECT_EQ(costs.textsMade, 41 * 10);
    EXPECT_EQ(costs.rowsTouched, 0);
}

TEST(SurfaceCost, GrowingAndDroppingTheBodyTouchNoRow) {
    GridSurface surface;
    loadMillion(surface);
    surface.takeCosts();
    surface.setRows(1);
    surface.setRows(2'000'000'000);
    const GridSurface::Costs costs = surface.takeCosts();
    EXPECT_EQ(costs.rowsTouched, 0);
    EXPECT_LE(costs.rowsCopied, 2);
    EXPECT_EQ(surface.TextMatrix(1'999'999'999, 0), QString());
}

TEST(SurfaceCost, TheLastOfAMillionBlankRowsIsWrittenAlone) {
    GridSurface surface;
    surface.setRows(kMillion);
    surface.takeCosts();
    surface.setRowData(kMillion - 1, 10);
    EXPECT_EQ(surface.takeCosts().rowsTouched, 1);
    EXPECT_EQ(surface.RowData(kMillion - 1), 10);
    EXPECT_EQ(surface.RowData(kMillion - 2), 0);
}

TEST(SurfaceCost, ClearingAMillionRowsMakesNoText) {
    GridSurface surface;
    loadMillion(surface);
    surface.takeCosts();
    surface.Clear();
    EXPECT_EQ(surface.takeCosts().textsMade, 0);
    EXPECT_EQ(surface.TextMatrix(kMillion, 0), QString());
}
