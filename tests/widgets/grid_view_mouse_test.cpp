#include "view_fixture.h"

#include <gmock/gmock.h>

#include <QScrollBar>
#include <QWheelEvent>

namespace zkp {
namespace {

using testing::ElementsAre;

/// Keeps what the surface was told, in order.
class GridViewMouse : public ViewTest {
protected:
    GridViewMouse() {
        SurfaceNotifications& on = surface->notifications;
        on.mouseDown = [this](const SurfaceMouse& mouse) { told.push_back("down"), last = mouse; };
        on.mouseUp = [this](const SurfaceMouse& mouse) { told.push_back("up"), last = mouse; };
        on.click = [this] { told.push_back("click"); };
        on.dblClick = [this] { told.push_back("dblclick"); };
        on.columnResized = [this](int col) { told.push_back("resized " + std::to_string(col)); };
        on.headingDropped = [this](int from, int to) {
            told.push_back("dropped " + std::to_string(from) + " on " + std::to_string(to));
            return accepts;
        };
    }
    std::vector<std::string> told;
    SurfaceMouse last;
    bool accepts = true;
};

TEST_F(GridViewMouse, AClickMovesTheCurrentCellAndIsReportedInTwips) {
    click(cell(3, 2));
    EXPECT_THAT(told, ElementsAre("down", "up", "click"));
    EXPECT_EQ(surface->Row(), 3);
    EXPECT_EQ(surface->Col(), 2);
    EXPECT_EQ(last.row, 3);
    EXPECT_EQ(last.col, 2);
    EXPECT_DOUBLE_EQ(last.x, 250 * 15);
    EXPECT_DOUBLE_EQ(last.y, 70 * 15);
}

TEST_F(GridViewMouse, APressBesideTheCellsHasNoRowOrColumn) {
    surface->setRows(3);
    surface->Select(1, 1);
    click({450, 150});
    EXPECT_EQ(last.row, -1);
    EXPECT_EQ(last.col, -1);
    EXPECT_THAT(told, ElementsAre("down", "up"));
    EXPECT_EQ(surface->Row(), 1);
}

TEST_F(GridViewMouse, ARightPressIsReportedAndMovesNothing) {
    surface->Select(1, 1);
    QTest::mouseClick(view->viewport(), Qt::RightButton, {}, cell(4, 2));
    EXPECT_EQ(last.button, 2);
    EXPECT_THAT(told, ElementsAre("down", "up"));
    EXPECT_EQ(surface->Row(), 1);
}

TEST_F(GridViewMouse, DraggingSelectsABlock) {
    press(cell(2, 1));
    move(cell(4, 2));
    release(cell(4, 2));
    EXPECT_EQ(surface->selection(), (CellRange{2, 1, 4, 2}));
    EXPECT_THAT(told, ElementsAre("down", "up")) << "a drag is no click";
}

TEST_F(GridViewMouse, ShiftExtendsToTheCellThatIsPressed) {
    click(cell(2, 1));
    press(cell(5, 3), Qt::ShiftModifier);
    release(cell(5, 3));
    EXPECT_EQ(surface->selection(), (CellRange{2, 1, 5, 3}));
}

TEST_F(GridViewMouse, DraggingBelowTheEdgeScrolls) {
    press(cell(8, 1));
    move({150, 230});
    EXPECT_EQ(surface->RowSel(), 11);
    EXPECT_GT(surface->TopRow(), 1);
    release({150, 230});
}

TEST_F(GridViewMouse, AClickOnTheCurrentCellChoosesItAgain) {
    int cells = 0;
    int again = 0;
    surface->notifications.currentCellChanged = [&] { ++cells; };
    surface->notifications.selectedAgain = [&] { ++again; };
    click(cell(3, 2));
    EXPECT_EQ(again, 0);
    click(cell(3, 2));
    EXPECT_EQ(again, 1);
    surface->notifications.mouseDown = [this](const SurfaceMouse& mouse) { surface->setCol(mouse.col); };
    click(cell(3, 1));
    EXPECT_EQ(again, 1) << "the press itself has moved to that cell";
    EXPECT_EQ(cells, 2);
}

TEST_F(GridViewMouse, ADoubleClickIsReportedOnce) {
    click(cell(3, 2));
    told.clear();
    QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, cell(3, 2));
    EXPECT_EQ(std::count(told.begin(), told.end(), "dblclick"), 1);
}

TEST_F(GridViewMouse, AHeadingDroppedOnAnotherMovesTheColumn) {
    surface->setTextMatrix(0, 0, QStringLiteral("α"));
    press(cell(0, 0));
    move(cell(0, 1));
    move(cell(0, 2));
    const QImage during = picture();
    EXPECT_EQ(during.pixelColor(299, 10), view->palette().color(QPalette::Highlight))
        << "the mark of the drop";
    release(cell(0, 2));
    EXPECT_THAT(told, ElementsAre("down", "up", "dropped 0 on 2"));
    EXPECT_EQ(surface->TextMatrix(0, 2), QStringLiteral("α"));
}

TEST_F(GridViewMouse, ARefusedDropAndOneBesideTheHeadingsMoveNothing) {
    surface->setTextMatrix(0, 0, QStringLiteral("α"));
    accepts = false;
    press(cell(0, 0));
    move(cell(0, 2));
    release(cell(0, 2));
    EXPECT_EQ(surface->TextMatrix(0, 0), QStringLiteral("α"));
    told.clear();
    press(cell(0, 0));
    move(cell(5, 2));
    release(cell(5, 2));
    EXPECT_THAT(told, ElementsAre("down", "up"));
}

TEST_F(GridViewMouse, EscapeEndsADrag) {
    press(cell(0, 0));
    move(cell(0, 2));
    key(Qt::Key_Escape);
    release(cell(0, 2));
    EXPECT_THAT(told, ElementsAre("down", "up"));
}

TEST_F(GridViewMouse, AClickOnAHeadingIsAClick) {
    click(cell(0, 1));
    EXPECT_THAT(told, ElementsAre("down", "up", "click"));
}

TEST_F(GridViewMouse, AHeadingsBorderResizesItsColumn) {
    press({199, 10});
    move({249, 10});
    release({249, 10});
    EXPECT_EQ(surface->ColWidth(1), 2250);
    EXPECT_THAT(told, ElementsAre("resized 1")) << "and the press is not one on the heading";
}

TEST_F(GridViewMouse, ADoubleClickOnABorderFitsTheColumnToItsTexts) {
    surface->setTextMatrix(4, 1, QStringLiteral("Αντωνόπουλος-Χατζηγεωργίου Κωνσταντίνος"));
    settle();
    QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, {199, 10});
    EXPECT_GT(surface->ColWidth(1), 2500);
    EXPECT_LT(surface->ColWidth(1), 5000);
}

TEST_F(GridViewMouse, TheWheelScrollsByRows) {
    const QPoint at = cell(3, 1);
    QWheelEvent event(at, view->viewport()->mapToGlobal(at), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(view->viewport(), &event);
    EXPECT_EQ(surface->TopRow(), 1 + QApplication::wheelScrollLines());
}

TEST_F(GridViewMouse, ScrollingIsReported) {
    int scrolled = 0;
    surface->notifications.scrolled = [&] { ++scrolled; };
    view->verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepAdd);
    EXPECT_EQ(scrolled, 1);
    EXPECT_EQ(surface->TopRow(), 9);
}

} // namespace
} // namespace zkp
