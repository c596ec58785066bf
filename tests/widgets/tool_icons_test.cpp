#include "widgets/band/tool_icons.h"

#include "interaction/menu_table.h"
#include "print_qt.h"

#include <QApplication>
#include <QImage>
#include <QPalette>

#include <gtest/gtest.h>

namespace zkp {
namespace {

QPalette inked(const QColor& ink) {
    QPalette palette;
    palette.setColor(QPalette::WindowText, ink);
    palette.setColor(QPalette::Disabled, QPalette::WindowText, Qt::blue);
    palette.setColor(QPalette::HighlightedText, Qt::green);
    return palette;
}

QImage drawn(const QString& tool, const QColor& ink, int size, QIcon::Mode mode = QIcon::Normal) {
    return toolIcon(tool, inked(ink), IconPlace::Menu)
        .pixmap(QSize(size, size), 1, mode)
        .toImage()
        .convertToFormat(QImage::Format_ARGB32);
}

/// How many pixels are all of one colour.
int count(const QImage& image, const QColor& color) {
    int found = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            found += image.pixelColor(x, y) == color;
    return found;
}

TEST(ToolIcons, EveryCommandOfTheMenusHasOne) {
    for (const MenuRow& row : menuRows()) {
        const ToolKind kind = row.tool.kind;
        const bool isCommand =
            kind != ToolKind::Separator && kind != ToolKind::Label && kind != ToolKind::Text;
        EXPECT_EQ(toolIcon(row.tool.Name, QPalette(), IconPlace::Row).isNull(), !isCommand)
            << row.tool.Name.toStdString();
        if (isCommand) {
            EXPECT_GT(count(drawn(row.tool.Name, Qt::red, 32), Qt::red), 20) << row.tool.Name.toStdString();
        }
    }
}

TEST(ToolIcons, TheNameIsFoundInAnyCase) {
    EXPECT_FALSE(toolIcon(QStringLiteral("MNUREFRESH"), QPalette(), IconPlace::Row).isNull());
    EXPECT_TRUE(toolIcon(QStringLiteral("mnuOfAHost"), QPalette(), IconPlace::Row).isNull());
}

TEST(ToolIcons, TheDrawingTakesTheTextsColour) {
    const QString tool = QStringLiteral("mnuPrint");
    EXPECT_GT(count(drawn(tool, Qt::white, 16), Qt::white), 15);
    EXPECT_EQ(count(drawn(tool, Qt::white, 16), Qt::black), 0);
    EXPECT_GT(count(drawn(tool, Qt::black, 16, QIcon::Disabled), Qt::blue), 15);
    EXPECT_GT(count(drawn(tool, Qt::black, 16, QIcon::Active), Qt::green), 15);
}

TEST(ToolIcons, TwiceTheSizeIsDrawnAndNotStretched) {
    const QImage small = drawn(QStringLiteral("mnuAlignLeft"), Qt::black, 16);
    const QImage big = drawn(QStringLiteral("mnuAlignLeft"), Qt::black, 32);
    // The first line, 13 long and round at its ends: a row of whole pixels, two rows at twice the size.
    EXPECT_EQ(small.pixelColor(7, 2), QColor(Qt::black));
    EXPECT_EQ(small.pixelColor(7, 1).alpha(), 0);
    EXPECT_EQ(small.pixelColor(7, 3).alpha(), 0);
    for (const int y : {4, 5})
        EXPECT_EQ(big.pixelColor(14, y), QColor(Qt::black)) << y;
    for (const int y : {3, 6})
        EXPECT_EQ(big.pixelColor(14, y).alpha(), 0) << y;
}

} // namespace
} // namespace zkp
