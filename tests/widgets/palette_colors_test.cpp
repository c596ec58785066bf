#include "widgets/grid/palette_colors.h"

#include <gtest/gtest.h>

namespace zkp {
namespace {

QPalette colourful() {
    QPalette palette;
    palette.setColor(QPalette::Base, QColor(1, 2, 3));
    palette.setColor(QPalette::Text, QColor(4, 5, 6));
    palette.setColor(QPalette::Button, QColor(7, 8, 9));
    palette.setColor(QPalette::Mid, QColor(10, 11, 12));
    palette.setColor(QPalette::Highlight, QColor(13, 14, 15));
    return palette;
}

TEST(PaletteColors, AStoredColourHasBlueInItsHighByte) {
    EXPECT_EQ(paintedColor(0xFF8001, QPalette()), QColor(0x01, 0x80, 0xFF));
    EXPECT_EQ(storedColor(QColor(0x01, 0x80, 0xFF)), 0xFF8001u);
}

TEST(PaletteColors, ASystemColourIsThePalettes) {
    const QPalette palette = colourful();
    EXPECT_EQ(paintedColor(systemColor(kSysWindow), palette), QColor(1, 2, 3));
    EXPECT_EQ(paintedColor(systemColor(kSysWindowText), palette), QColor(4, 5, 6));
    EXPECT_EQ(paintedColor(systemColor(kSysButtonFace), palette), QColor(7, 8, 9));
    EXPECT_EQ(paintedColor(systemColor(kSysButtonShadow), palette), QColor(10, 11, 12));
    EXPECT_EQ(paintedColor(systemColor(kSysHighlight), palette), QColor(13, 14, 15));
}

TEST(PaletteColors, AnUnknownSystemColourIsTheTextColour) {
    EXPECT_EQ(paintedColor(systemColor(200), colourful()), QColor(4, 5, 6));
}

TEST(PaletteColors, ATextThatCouldNotBeReadTurnsBlackOrWhite) {
    EXPECT_EQ(readableOn(QColor(240, 240, 230), QColor(220, 220, 220)), QColor(Qt::black));
    EXPECT_EQ(readableOn(QColor(30, 30, 30), QColor(10, 10, 60)), QColor(Qt::white));
    EXPECT_EQ(readableOn(QColor(240, 240, 230), QColor(120, 0, 0)), QColor(120, 0, 0));
}

} // namespace
} // namespace zkp
