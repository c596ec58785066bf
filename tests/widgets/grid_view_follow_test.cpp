#include "view_fixture.h"

#include <QScrollBar>

namespace zkp {
namespace {

/// Ten columns of 100 pixels in a window of 500: a command moves the current cell, and the view follows.
class GridViewFollow : public ViewTest {
protected:
    GridViewFollow() {
        surface->setCols(10);
        for (int col = 0; col < 10; ++col)
            surface->setColWidth(col, 1500);
        surface->Select(1, 0);
        settle();
        view->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        settle();
        surface->notifications.scrolled = [this] { scrolls.push_back(surface->LeftCol()); };
    }
    std::vector<int> scrolls;
};

TEST_F(GridViewFollow, TheCurrentColumnIsScrolledIntoSight) {
    surface->setCol(9);
    settle();
    EXPECT_EQ(surface->LeftCol(), 5) << "columns 5 to 9 show";
    surface->setCol(2);
    settle();
    EXPECT_EQ(surface->LeftCol(), 2);
    surface->setCol(4);
    settle();
    EXPECT_EQ(surface->LeftCol(), 2) << "it shows already";
    EXPECT_EQ(surface->TopRow(), 1);
}

TEST_F(GridViewFollow, AColumnAddedAtTheEndIsShown) {
    surface->setCols(11);
    surface->setColWidth(10, 1500);
    surface->setCol(10);
    settle();
    EXPECT_EQ(surface->LeftCol(), 6);
}

TEST_F(GridViewFollow, ACellThatStaysIsNotLookedFor) {
    surface->setLeftCol(5);
    settle();
    surface->setTextMatrix(1, 7, QStringLiteral("x"));
    surface->setRow(3);
    settle();
    view->viewport()->repaint();
    EXPECT_EQ(surface->LeftCol(), 5);
    view->horizontalScrollBar()->setValue(4);
    settle();
    EXPECT_EQ(surface->LeftCol(), 4);
    EXPECT_EQ(scrolls, (std::vector<int>{5, 4}));
}

TEST_F(GridViewFollow, ACommandThatBringsTheCellBackMovesNothing) {
    surface->setCol(9);
    surface->setCol(0);
    settle();
    EXPECT_TRUE(scrolls.empty());
}

TEST_F(GridViewFollow, AScrollThatALoadHasMadeStays) {
    surface->setLeftCol(5);
    surface->setCol(6);
    settle();
    EXPECT_EQ(scrolls, std::vector<int>{5});
}

TEST_F(GridViewFollow, NothingMovesUnderAButtonThatIsDown) {
    surface->notifications.mouseDown = [this](const SurfaceMouse&) { surface->setCol(9); };
    press(cell(0, 1));
    settle();
    EXPECT_EQ(surface->LeftCol(), 0);
    release(cell(0, 1));
    settle();
    EXPECT_EQ(surface->LeftCol(), 0);
}

TEST_F(GridViewFollow, AHeadingThatIsClickedStaysUnderThePointer) {
    view->resize(450, 210);
    settle();
    surface->notifications.mouseDown = [this](const SurfaceMouse& mouse) { surface->setCol(mouse.col); };
    click({430, 10});
    settle();
    EXPECT_EQ(surface->Col(), 4);
    EXPECT_EQ(surface->LeftCol(), 0) << "though half of it shows";
}

TEST_F(GridViewFollow, AHiddenColumnAndOneWiderThanTheViewDoNoHarm) {
    surface->setColHidden(9, true);
    surface->setCol(9);
    settle();
    EXPECT_EQ(surface->LeftCol(), 0);
    surface->setColWidth(8, 15'000);
    surface->setCol(8);
    settle();
    EXPECT_EQ(surface->LeftCol(), 8);
}

TEST_F(GridViewFollow, TheViewMayGoAwayInIt) {
    surface->notifications.scrolled = [this] { view.reset(); };
    surface->setCol(9);
    settle();
    EXPECT_EQ(view, nullptr);
}

} // namespace
} // namespace zkp
