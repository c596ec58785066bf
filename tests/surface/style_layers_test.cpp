#include "surface/style_layers.h"

#include "surface/sample_column.h"

#include <gtest/gtest.h>

using namespace zkp;
using zkp::test::u;

namespace {

StylePatch back(Color color) {
    StylePatch patch;
    patch.backColor = color;
    return patch;
}

StylePatch bold(bool on) {
    StylePatch patch;
    patch.bold = on;
    return patch;
}

Color backOf(const StyleLayers& layers, RowId row, ColumnId column) {
    return layers.resolve(row, column, false, false).backColor;
}

} // namespace

TEST(StyleLayers, AnUntouchedCellHasTheWindowsColours) {
    StyleLayers layers;
    EXPECT_EQ(layers.resolve(kNoRow, 0, false, false), CellStyle{});
    const CellStyle fixed = layers.resolve(kNoRow, 0, true, false);
    EXPECT_EQ(fixed.backColor, 0x8000000Fu);
    EXPECT_EQ(fixed.foreColor, 0x80000012u);
}

TEST(StyleLayers, TheLatestWriteWinsWhateverItsLayer) {
    StyleLayers layers;
    layers.writeCell(1, 0, back(1));
    layers.writeRow(1, back(2));
    EXPECT_EQ(backOf(layers, 1, 0), 2u);
    layers.writeColumn(0, back(3));
    EXPECT_EQ(backOf(layers, 1, 0), 3u);
    layers.writeBody(back(4));
    EXPECT_EQ(backOf(layers, 1, 0), 4u);
    layers.writeSurface(back(5));
    EXPECT_EQ(backOf(layers, 1, 0), 5u);
    layers.writeCell(1, 0, back(6));
    EXPECT_EQ(backOf(layers, 1, 0), 6u);
    EXPECT_EQ(backOf(layers, 1, 1), 5u);
}

TEST(StyleLayers, EachAttributeGoesItsOwnWay) {
    StyleLayers layers;
    layers.writeRow(1, bold(true));
    layers.writeBody(back(9));
    const CellStyle style = layers.resolve(1, 0, false, false);
    EXPECT_TRUE(style.bold);
    EXPECT_EQ(style.backColor, 9u);
    layers.writeBody(bold(false));
    EXPECT_FALSE(layers.resolve(1, 0, false, false).bold);
}

TEST(StyleLayers, BodyAndFixedPartAreApart) {
    StyleLayers layers;
    layers.writeBody(back(1));
    layers.writeFixed(back(2));
    layers.writeColumn(0, back(3));
    EXPECT_EQ(layers.resolve(kNoRow, 0, true, false).backColor, 2u) << "columns do not reach the fixed rows";
    EXPECT_EQ(layers.resolve(kNoRow, 0, false, true).backColor, 3u);
    EXPECT_EQ(layers.resolve(kNoRow, 1, false, true).backColor, 2u);
    EXPECT_EQ(layers.resolve(kNoRow, 1, false, false).backColor, 1u);
}

TEST(StyleLayers, EveryAttributeArrives) {
    StyleLayers layers;
    StylePatch patch;
    patch.backColor = 1;
    patch.foreColor = 2;
    patch.fontName = u("Tahoma");
    patch.fontSize = 9.75;
    patch.bold = patch.italic = patch.underline = patch.strikethru = true;
    layers.writeCell(0, 0, patch);
    CellStyle wanted;
    wanted.backColor = 1;
    wanted.foreColor = 2;
    wanted.fontName = u("Tahoma");
    wanted.fontSize = 9.75;
    wanted.bold = wanted.italic = wanted.underline = wanted.strikethru = true;
    EXPECT_EQ(layers.resolve(0, 0, false, false), wanted);
}

TEST(StyleLayers, AMarkIsKnownUntilASectionsLookCoversIt) {
    StyleLayers layers;
    const auto marksAt = [&layers](RowId row) { return layers.resolveMarked(row, 0, false, false).marks; };
    layers.writeBody(back(1), StyleOrigin::Section);
    EXPECT_EQ(marksAt(1), StylePatch());
    layers.writeRow(1, back(2));
    layers.writeRow(1, bold(true), StyleOrigin::Section);
    EXPECT_EQ(marksAt(1), back(2)) << "of each attribute by itself";
    EXPECT_EQ(marksAt(2), StylePatch());
    layers.writeRow(1, back(2), StyleOrigin::Section);
    EXPECT_EQ(marksAt(1), StylePatch()) << "though it looks the same";
    layers.writeCell(1, 0, bold(false));
    EXPECT_EQ(marksAt(1), bold(false));
    layers.writeBody(bold(true), StyleOrigin::Section);
    EXPECT_EQ(marksAt(1), StylePatch());
}

TEST(StyleLayers, AClearedRowAndADroppedColumnHaveNoStyle) {
    StyleLayers layers;
    layers.writeRow(1, back(1));
    layers.writeCell(2, 3, back(2));
    layers.writeColumn(4, back(3));
    layers.clearRows({1, 1});
    layers.dropColumn(3);
    layers.dropColumn(4);
    EXPECT_EQ(backOf(layers, 1, 0), systemColor(kSysWindow));
    EXPECT_EQ(backOf(layers, 2, 3), systemColor(kSysWindow));
    EXPECT_EQ(backOf(layers, 5, 4), systemColor(kSysWindow));
}

TEST(StyleLayers, RowsThatLookTheSameShareOneSet) {
    StyleLayers layers;
    for (RowId row = 0; row < 200'000; ++row) {
        layers.writeRow(row, back(7));
        layers.writeRow(row, bold(true));
    }
    EXPECT_LE(layers.setCount(), 3u);
    EXPECT_EQ(layers.takeWrites(), 400'000);
    EXPECT_EQ(backOf(layers, 199'999, 0), 7u);
}

TEST(StyleLayers, RowsAndCellsThatTakeTurnsShareSetsUntilTheyMeet) {
    StyleLayers layers;
    for (RowId row = 0; row < 100'000; ++row) {
        if (row % 3 == 0)
            layers.writeRow(row, back(7));
        else
            layers.writeCell(row, 1, back(8));
    }
    EXPECT_LE(layers.setCount(), 3u);
    layers.writeRow(3, back(1));
    layers.writeRow(4, back(2));
    EXPECT_EQ(backOf(layers, 4, 1), 2u) << "the row was written after its cell";
    layers.writeCell(3, 1, back(3));
    EXPECT_EQ(backOf(layers, 3, 1), 3u) << "the cell was written after its row";
    EXPECT_EQ(backOf(layers, 3, 0), 1u);
}

TEST(StyleLayers, SetsThatNothingNamesAreFreed) {
    StyleLayers layers;
    for (Color color = 0; color < 100'000; ++color) { // a band that moves, and a repaint below it each time
        layers.writeBody(back(color));
        layers.writeCell(color % 40, 0, back(color + 1));
    }
    EXPECT_LE(layers.setCount(), 4'200u);
    EXPECT_EQ(layers.inconsistency(40), QString());
    EXPECT_EQ(backOf(layers, 99'999 % 40, 0), 100'000u);
    EXPECT_EQ(backOf(layers, 99'998 % 40, 0), 99'999u) << "the body was written after this cell";
}
