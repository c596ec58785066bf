#include "view_fixture.h"

#include <QScrollBar>

namespace zkp {
namespace {

class GridViewPaint : public ViewTest {};

constexpr Color kRed = 0x0000FF;
constexpr Color kGreen = 0x00FF00;

TEST_F(GridViewPaint, ACellShowsItsBackColourAndText) {
    StylePatch patch;
    patch.backColor = kRed;
    surface->applyStyle({2, 1, 2, 1}, patch);
    surface->setTextMatrix(3, 2, QStringLiteral("Αθήνα"));
    const QImage image = picture();
    EXPECT_EQ(image.pixelColor(corner(2, 1)), QColor(255, 0, 0));
    EXPECT_EQ(image.pixelColor(corner(2, 2)), view->palette().color(QPalette::Base));
    EXPECT_TRUE(hasInk(image, 3, 2));
    EXPECT_FALSE(hasInk(image, 3, 1));
}

TEST_F(GridViewPaint, TheHeadingStaysWhenTheBodyIsScrolled) {
    surface->setTextMatrix(0, 0, QStringLiteral("Ασφάλιστρα"));
    surface->setTextMatrix(50, 0, QStringLiteral("x"));
    surface->setTopRow(50);
    const QImage image = picture();
    EXPECT_TRUE(hasInk(image, 0, 0));
    EXPECT_TRUE(hasInk(image, 1, 0));
    EXPECT_FALSE(hasInk(image, 2, 0));
}

/// Distance of the first and last inked pixel from the cell's borders.
std::pair<int, int> margins(const QImage& image, int row, int col) {
    int first = 1000;
    int last = -1;
    const QRgb back = image.pixel((col + 1) * 100 - 3, row * 20 + 2);
    for (int x = col * 100; x < (col + 1) * 100 - 1; ++x)
        for (int y = row * 20 + 2; y < row * 20 + 18; ++y)
            if (image.pixel(x, y) != back) {
                first = std::min(first, x - col * 100);
                last = std::max(last, x - col * 100);
            }
    return {first, 99 - last};
}

TEST_F(GridViewPaint, TextsAreAlignedAsTheirColumnsSay) {
    for (int row = 1; row < 4; ++row)
        surface->setTextMatrix(row, 1, QStringLiteral("12,50"));
    surface->setTextMatrix(4, 1, QStringLiteral("Αθήνα"));
    surface->Select(9, 3);
    surface->setColAlignment(1, 0);
    EXPECT_LT(margins(picture(), 2, 1).first, 8);
    surface->setColAlignment(1, 6);
    EXPECT_LT(margins(picture(), 2, 1).second, 8);
    surface->setColAlignment(1, 3);
    const auto [left, right] = margins(picture(), 2, 1);
    EXPECT_NEAR(left, right, 2);
    surface->setColAlignment(1, 9);
    EXPECT_LT(margins(picture(), 2, 1).second, 8) << "general: a number stands right";
    EXPECT_LT(margins(picture(), 4, 1).first, 8) << "general: a text stands left";
}

TEST_F(GridViewPaint, TheHeadingHasAnAlignmentOfItsOwn) {
    surface->setTextMatrix(0, 1, QStringLiteral("A"));
    surface->setColAlignment(1, 0);
    surface->setFixedAlignment(1, 7);
    EXPECT_LT(margins(picture(), 0, 1).second, 8);
}

TEST_F(GridViewPaint, AMergedBlockHasNoLinesInsideAndItsTextOnce) {
    surface->setMergeCells(1);
    surface->setMergeCol(0, true);
    surface->Select(9, 3);
    for (int row = 1; row <= 3; ++row)
        surface->setTextMatrix(row, 0, QStringLiteral("Αθήνα"));
    const QImage image = picture();
    const QRgb base = view->palette().color(QPalette::Base).rgb();
    EXPECT_EQ(image.pixel(50, 2 * kRow - 1), base) << "below row 1";
    EXPECT_NE(image.pixel(50, 4 * kRow - 1), base) << "below the block";
    EXPECT_NE(image.pixel(150, 2 * kRow - 1), base) << "the next column has its line";
    EXPECT_TRUE(hasInk(image, 1, 0));
    EXPECT_FALSE(hasInk(image, 3, 0));
}

TEST_F(GridViewPaint, GridLinesCanBeLeftOutAndColoured) {
    GridSurface::Look look = surface->look();
    look.GridColor = kGreen;
    surface->setLook(look);
    EXPECT_EQ(picture().pixelColor(50, 3 * kRow - 1), QColor(0, 255, 0));
    look.GridLines = 0;
    surface->setLook(look);
    EXPECT_EQ(picture().pixelColor(50, 3 * kRow - 1), view->palette().color(QPalette::Base));
}

TEST_F(GridViewPaint, TheSelectionIsHighlightedButForTheCurrentCell) {
    GridSurface::Look look = surface->look();
    look.BackColorSel = kRed;
    surface->setLook(look);
    surface->Select(2, 1, 4, 2);
    QImage image = picture();
    EXPECT_EQ(image.pixelColor(corner(4, 2)), QColor(255, 0, 0));
    EXPECT_EQ(image.pixelColor(corner(2, 1) - QPoint(4, -4)), view->palette().color(QPalette::Base));
    EXPECT_EQ(image.pixelColor(corner(5, 2)), view->palette().color(QPalette::Base));
    look.HighLight = 0;
    surface->setLook(look);
    EXPECT_EQ(picture().pixelColor(corner(4, 2)), view->palette().color(QPalette::Base));
    look.HighLight = 1;
    look.SelectionMode = 1;
    surface->setLook(look);
    image = picture();
    EXPECT_EQ(image.pixelColor(corner(3, 0)), QColor(255, 0, 0)) << "by row: all columns";
    EXPECT_EQ(image.pixelColor(corner(0, 0)), view->palette().color(QPalette::Button)) << "never the heading";
}

TEST_F(GridViewPaint, AMergedBlockIsHighlightedOnlyWhole) {
    GridSurface::Look look = surface->look();
    look.BackColorSel = kRed;
    look.SelectionMode = 1;
    surface->setLook(look);
    surface->setMergeCells(1);
    surface->setMergeCol(0, true);
    for (int row = 1; row <= 3; ++row)
        surface->setTextMatrix(row, 0, QStringLiteral("Αθήνα"));
    surface->Select(2, 1, 3, 1);
    EXPECT_EQ(picture().pixelColor(corner(2, 0)), view->palette().color(QPalette::Base));
    EXPECT_EQ(picture().pixelColor(corner(2, 2)), QColor(255, 0, 0));
    surface->Select(1, 1, 3, 1);
    EXPECT_EQ(picture().pixelColor(corner(2, 0)), QColor(255, 0, 0));
}

TEST_F(GridViewPaint, SystemColoursFollowThePalette) {
    QPalette dark;
    dark.setColor(QPalette::Base, QColor(20, 20, 20));
    dark.setColor(QPalette::Button, QColor(50, 50, 50));
    view->setPalette(dark);
    const QImage image = picture();
    EXPECT_EQ(image.pixelColor(corner(3, 2)), QColor(20, 20, 20));
    EXPECT_EQ(image.pixelColor(corner(0, 2)), QColor(50, 50, 50));
}

TEST_F(GridViewPaint, AHiddenColumnTakesNoPlace) {
    StylePatch patch;
    patch.backColor = kRed;
    surface->applyStyle({2, 2, 2, 2}, patch);
    surface->setColHidden(1, true);
    EXPECT_EQ(picture().pixelColor(corner(2, 1)), QColor(255, 0, 0)) << "column 2 stands in its place";
}

TEST_F(GridViewPaint, APageAsksForTheTextsOfItsRowsOnly) {
    surface->setRows(1'000'000);
    for (int col = 0; col < 4; ++col)
        surface->setTextMatrix(999'999, col, QStringLiteral("x")); // no row is a trailing blank
    view->resize(500, 42 * kRow);
    settle();
    surface->setTopRow(500'000);
    settle();
    surface->takeCosts();
    view->viewport()->repaint();
    EXPECT_EQ(view->page().shownRows(), 41);
    EXPECT_LE(surface->takeCosts().textsMade, 42 * 4);
}

TEST_F(GridViewPaint, AScrollByOneLineAsksForTheNewRowOnly) {
    surface->setRows(1'000'000);
    surface->setTextMatrix(999'999, 0, QStringLiteral("x"));
    view->resize(500, 42 * kRow);
    surface->setTopRow(500'000);
    settle();
    surface->takeCosts();
    surface->setTopRow(500'001);
    settle();
    const std::int64_t texts = surface->takeCosts().textsMade;
    EXPECT_GE(texts, 4);
    EXPECT_LE(texts, 2 * 4);
}

TEST_F(GridViewPaint, AScrolledPictureEqualsOnePaintedAnew) {
    surface->setMergeCells(1);
    surface->setMergeCol(0, true);
    for (int row = 1; row < 100; ++row) {
        surface->setTextMatrix(row, 0, QStringLiteral("Ομάδα %1").arg(row / 7));
        surface->setTextMatrix(row, 1, QString::number(row * 37));
    }
    surface->Select(6, 1, 7, 2);
    settle();
    for (const int top : {2, 3, 5, 4, 9, 8, 60, 59}) {
        surface->setTopRow(top);
        settle();
        const QImage scrolled = view->screen()->grabWindow(view->winId()).toImage();
        view->viewport()->update();
        settle();
        const QImage anew = view->screen()->grabWindow(view->winId()).toImage();
        ASSERT_FALSE(scrolled.isNull());
        EXPECT_EQ(scrolled, anew) << "first row " << top;
    }
}

TEST_F(GridViewPaint, AChangedRowIsPaintedAlone) {
    surface->takeCosts();
    surface->setTextMatrix(5, 1, QStringLiteral("νέο"));
    settle();
    EXPECT_LE(surface->takeCosts().textsMade, 4);
    surface->setTextMatrix(90, 1, QStringLiteral("νέο"));
    surface->takeCosts();
    settle();
    EXPECT_EQ(surface->takeCosts().textsMade, 0) << "it does not show";
}

TEST_F(GridViewPaint, TheViewSaysHowManyRowsShow) {
    EXPECT_EQ(surface->VisibleRows(), 10) << "nine whole rows and one cut";
    EXPECT_EQ(surface->BottomRow(), 10);
    view->resize(500, 410);
    settle();
    EXPECT_EQ(surface->VisibleRows(), 20);
    surface->setRows(3);
    settle();
    EXPECT_EQ(surface->VisibleRows(), 20) << "rows that come later show in the room that is left";
}

TEST_F(GridViewPaint, MoreRowsAreToldWithTheEventsAndNotInAPaint) {
    int told = 0;
    surface->notifications.visibleRowsGrew = [&] { ++told; };
    view->resize(500, 410);
    view->viewport()->grab();
    EXPECT_EQ(told, 0);
    settle();
    EXPECT_EQ(told, 1);
    view->resize(500, 210);
    settle();
    EXPECT_EQ(told, 1) << "fewer";
    EXPECT_EQ(surface->VisibleRows(), 10);
}

TEST_F(GridViewPaint, TheBarsCoverTheReportAndFollowIt) {
    EXPECT_EQ(view->verticalScrollBar()->minimum(), 1);
    EXPECT_EQ(view->verticalScrollBar()->maximum(), 91) << "nine rows show wholly: 91 to 99";
    surface->setTopRow(17);
    settle();
    EXPECT_EQ(view->verticalScrollBar()->value(), 17);
    view->verticalScrollBar()->setValue(30);
    EXPECT_EQ(surface->TopRow(), 30);
}

} // namespace
} // namespace zkp
