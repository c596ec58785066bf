#include "view_fixture.h"

#include "host/host.h"
#include "widgets/grid/palette_colors.h"

namespace zkp {
namespace {

/// A heading on its way, and what the window shows of it.
class GridViewDrag : public ViewTest {
protected:
    GridViewDrag() {
        surface->setTextMatrix(0, 0, QStringLiteral("Κλάδος"));
        surface->notifications.headingDropped = [this](int from, int to) {
            drops.emplace_back(from, to);
            return true;
        };
        settle();
    }
    void dragTo(QPoint at) {
        press(cell(0, 0));
        move((cell(0, 0) + at) / 2);
        move(at);
    }
    QColor pixel(int x, int y) { return picture().pixelColor(x, y); }
    QColor mark() const { return view->palette().color(QPalette::Highlight); }
    Qt::CursorShape cursor() const { return view->viewport()->cursor().shape(); }

    std::vector<std::pair<int, int>> drops;
};

TEST_F(GridViewDrag, TheHeadingGoesWithThePointerAndALineShowsItsPlace) {
    const QImage before = picture();
    dragTo(cell(0, 2));
    const QImage during = picture();
    EXPECT_EQ(during.pixelColor(299, 10), mark()) << "behind the third heading";
    EXPECT_EQ(during.pixelColor(299, 100), mark()) << "down to the last row";
    const auto part = [](const QImage& image, int col) {
        return image.copy(col * kCol + 2, 2, kCol - 5, kRow - 5);
    };
    EXPECT_TRUE(hasInk(during, 0, 2)) << "the heading that is carried";
    EXPECT_NE(part(during, 2), part(before, 2));
    EXPECT_NE(part(during, 0), part(before, 0)) << "its own place is faded";
    EXPECT_EQ(part(during, 1), part(before, 1));
    release(cell(0, 2));
    EXPECT_EQ(drops, (std::vector<std::pair<int, int>>{{0, 2}}));
    EXPECT_NE(pixel(299, 100), mark()) << "and then it is gone";
}

TEST_F(GridViewDrag, TheLineStandsBeforeAHeadingOnTheLeft) {
    press(cell(0, 3));
    move(cell(0, 2));
    move(cell(0, 1));
    EXPECT_EQ(pixel(100, 10), mark());
    release(cell(0, 1));
}

TEST_F(GridViewDrag, WhereADropIsRefusedThereIsNoLine) {
    dragTo(cell(0, 2));
    view->setPointer(kPointerNoDrop);
    EXPECT_NE(pixel(299, 100), mark());
    EXPECT_EQ(cursor(), Qt::ForbiddenCursor);
    view->setPointer(kPointerCustom);
    EXPECT_EQ(pixel(299, 100), mark());
    EXPECT_EQ(cursor(), Qt::DragMoveCursor);
    release(cell(0, 2));
}

TEST_F(GridViewDrag, WhereADropIsRefusedTheHeadingIsFramedInRed) {
    dragTo(cell(0, 2));
    EXPECT_EQ(pixel(2 * kCol, 10), mark());
    view->setPointer(kPointerNoDrop);
    EXPECT_EQ(pixel(2 * kCol, 10), refusalColor(view->palette()));
    EXPECT_EQ(pixel(3 * kCol - 1, 10), refusalColor(view->palette()));
    release(cell(0, 2));
}

TEST_F(GridViewDrag, NothingBelowShowsThroughTheHeading) {
    const QImage before = picture();
    surface->setTextMatrix(0, 1, QStringLiteral("ΩΩΩΩΩΩΩΩΩΩ"));
    dragTo(cell(0, 1));
    const auto inside = [](const QImage& image, int col) {
        return image.copy(col * kCol + 3, 2, kCol - 7, kRow - 5);
    };
    EXPECT_EQ(inside(picture(), 1), inside(before, 0));
    view->setPointer(kPointerNoDrop);
    EXPECT_EQ(inside(picture(), 1), inside(before, 0)) << "also where it is refused";
    release(cell(0, 1));
}

TEST_F(GridViewDrag, ThePointerOfADragShowsOnlyWhileThereIsOne) {
    view->setPointer(kPointerCustom);
    EXPECT_EQ(cursor(), Qt::ArrowCursor);
    view->setPointer(kPointerNoDrop);
    EXPECT_EQ(cursor(), Qt::ArrowCursor) << "no button is down";
    press(cell(2, 0));
    view->setPointer(kPointerNoDrop);
    EXPECT_EQ(cursor(), Qt::ForbiddenCursor);
    release(cell(2, 0));
    view->setPointer(kPointerHourglass);
    EXPECT_EQ(cursor(), Qt::WaitCursor);
    view->setPointer(kPointerDefault);
    EXPECT_EQ(cursor(), Qt::ArrowCursor);
}

TEST_F(GridViewDrag, OffTheHeadingsThereIsNoLineAndADropDoesNothing) {
    dragTo(cell(0, 2));
    move(cell(5, 2));
    EXPECT_NE(pixel(299, 100), mark());
    release(cell(5, 2));
    press(cell(0, 0));
    move(cell(0, 2));
    release({480, 10}); // beside the last column
    EXPECT_TRUE(drops.empty());
}

TEST_F(GridViewDrag, EscapeLeavesNothingOfIt) {
    dragTo(cell(0, 2));
    key(Qt::Key_Escape);
    EXPECT_NE(pixel(299, 10), mark());
    move(cell(0, 3));
    EXPECT_NE(pixel(399, 10), mark());
    release(cell(0, 3));
    EXPECT_TRUE(drops.empty());
}

TEST_F(GridViewDrag, AHeadingThatMayNotBeDraggedStays) {
    int asked = -1;
    surface->notifications.mayDragHeading = [&](int col) {
        asked = col;
        return false;
    };
    dragTo(cell(0, 2));
    EXPECT_EQ(asked, 0);
    EXPECT_NE(pixel(299, 10), mark());
    release(cell(0, 2));
    EXPECT_TRUE(drops.empty());
}

TEST_F(GridViewDrag, AReleaseThatNobodyHeardOfEndsIt) {
    dragTo(cell(0, 2));
    QMouseEvent moved(QEvent::MouseMove, cell(0, 3), view->viewport()->mapToGlobal(cell(0, 3)), Qt::NoButton,
                      Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(view->viewport(), &moved);
    EXPECT_NE(pixel(399, 10), mark());
    release(cell(0, 3));
    EXPECT_TRUE(drops.empty());
}

TEST_F(GridViewDrag, HeldAtTheEdgeItScrolls) {
    for (int col = 0; col < 4; ++col)
        surface->setColWidth(col, 3000); // 200 pixels: two and a half of them show
    settle();
    const int width = view->viewport()->width();
    press({100, 10});
    move({200, 10});
    move({width - 5, 10});
    ASSERT_TRUE(QTest::qWaitFor([&] { return surface->LeftCol() == 2; }, 3000));
    QTest::qWait(600);
    EXPECT_EQ(surface->LeftCol(), 2) << "the last column shows wholly";
    move({3, 10});
    ASSERT_TRUE(QTest::qWaitFor([&] { return surface->LeftCol() == 0; }, 3000));
    move({width - 5, 10});
    ASSERT_TRUE(QTest::qWaitFor([&] { return surface->LeftCol() == 2; }, 3000));
    release({250, 10});
    EXPECT_EQ(drops, (std::vector<std::pair<int, int>>{{0, 3}}));
    QTest::qWait(400);
    EXPECT_EQ(surface->LeftCol(), 2) << "and no more after the drop";
}

TEST_F(GridViewDrag, TheSurfaceMayGoAwayUnderIt) {
    surface->notifications.mouseMove = [this](const SurfaceMouse& mouse) {
        if (mouse.col == 2)
            view->detach();
    };
    dragTo(cell(0, 2));
    move(cell(0, 1));
    release(cell(0, 1));
    EXPECT_FALSE(picture().isNull());
}

} // namespace
} // namespace zkp
