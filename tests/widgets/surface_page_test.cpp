#include "widgets/grid/surface_page.h"

#include "print_qt.h"

#include <gtest/gtest.h>

namespace zkp {
namespace {

class SurfacePage : public testing::Test {
protected:
    SurfacePage() {
        surface.setRows(20);
        surface.setCols(2);
        surface.setRowHeight(-1, 300);
        surface.setMergeCells(1);
        surface.setMergeCol(0, true);
        for (int row = 1; row < 20; ++row)
            surface.setTextMatrix(row, 0, row < 6 ? QStringLiteral("Αθήνα") : QStringLiteral("Πάτρα"));
    }
    PageLayout page(int height) { return PageLayout::of(surface, {300, height}, TwipScale()); }

    GridSurface surface;
};

TEST_F(SurfacePage, EqualNeighboursOfAMergedColumnAreOneBlockAsTheSurfaceSays) {
    const PageLayout shown = page(210); // heading, rows 1 to 9, half of row 10
    PageTexts texts(surface, shown);
    EXPECT_EQ(texts.block(1, 0).first, 1u);
    EXPECT_EQ(texts.block(1, 0).last, 5u);
    EXPECT_EQ(texts.block(8, 0).first, 6u);
    EXPECT_EQ(texts.block(8, 0).last, 10u);
    EXPECT_EQ(surface.mergedRange(8, 0, 1, 10), (CellRange{6, 0, 10, 0}));
}

TEST_F(SurfacePage, ABlockIsLookedForOnThePageOnly) {
    surface.setTopRow(4);
    const PageLayout shown = page(210);
    PageTexts texts(surface, shown);
    EXPECT_EQ(texts.block(1, 0).first, 1u); // position 1 is row 4
    EXPECT_EQ(texts.block(1, 0).last, 2u);
}

TEST_F(SurfacePage, BlanksAndColumnsThatDoNotMergeStayApart) {
    surface.setTextMatrix(3, 0, QStringLiteral("  "));
    surface.setTextMatrix(4, 0, QStringLiteral("  "));
    surface.setTextMatrix(1, 1, QStringLiteral("x"));
    surface.setTextMatrix(2, 1, QStringLiteral("x"));
    const PageLayout shown = page(210);
    PageTexts texts(surface, shown);
    EXPECT_EQ(texts.block(3, 0).last, 3u);
    EXPECT_EQ(texts.block(1, 1).last, 1u);
}

TEST_F(SurfacePage, AHeadingNeverMergesWithTheBody) {
    surface.setTextMatrix(0, 0, QStringLiteral("Αθήνα"));
    const PageLayout shown = page(210);
    PageTexts texts(surface, shown);
    EXPECT_EQ(texts.block(0, 0).last, 0u);
    EXPECT_EQ(texts.block(1, 0).first, 1u);
}

TEST_F(SurfacePage, LongTextsThatOnlyBeginAlikeStayApart) {
    surface.setTextMatrix(1, 0, QString(5000, QChar(u'α')));
    surface.setTextMatrix(2, 0, QString(6000, QChar(u'α')));
    const PageLayout shown = page(210);
    PageTexts texts(surface, shown);
    EXPECT_EQ(texts.block(1, 0).last, 1u);
}

TEST_F(SurfacePage, ControlCharactersShowAsBlanks) {
    surface.setTextMatrix(1, 1, QStringLiteral("a\tb\r\nc"));
    const PageLayout shown = page(210);
    PageTexts texts(surface, shown);
    EXPECT_EQ(texts.at(1, 1), QStringLiteral("a b  c"));
}

} // namespace
} // namespace zkp
