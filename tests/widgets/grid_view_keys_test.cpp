#include "view_fixture.h"

#include <gmock/gmock.h>

#include <QInputMethodEvent>
#include <QLineEdit>
#include <QVBoxLayout>

namespace zkp {
namespace {

using testing::ElementsAre;

class GridViewKeys : public ViewTest {
protected:
    GridViewKeys() { surface->Select(1, 0); }
};

TEST_F(GridViewKeys, ArrowsMoveTheCurrentCell) {
    key(Qt::Key_Down);
    key(Qt::Key_Right);
    EXPECT_EQ(surface->Row(), 2);
    EXPECT_EQ(surface->Col(), 1);
    EXPECT_EQ(surface->RowSel(), 2);
}

TEST_F(GridViewKeys, ShiftExtendsTheSelection) {
    key(Qt::Key_Down, Qt::ShiftModifier);
    key(Qt::Key_Down, Qt::ShiftModifier);
    key(Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_EQ(surface->selection(), (CellRange{1, 0, 3, 1}));
    EXPECT_EQ(surface->Row(), 1);
}

TEST_F(GridViewKeys, TheCurrentCellIsScrolledIntoView) {
    for (int i = 0; i < 9; ++i)
        key(Qt::Key_Down);
    EXPECT_EQ(surface->Row(), 10);
    EXPECT_EQ(surface->TopRow(), 2) << "row 10 was cut and now shows wholly";
    key(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(surface->Row(), 99);
    EXPECT_EQ(surface->TopRow(), 91);
    key(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(surface->Row(), 1);
    EXPECT_EQ(surface->TopRow(), 1);
    key(Qt::Key_PageDown);
    EXPECT_EQ(surface->Row(), 9);
}

TEST_F(GridViewKeys, AKeyWithNowhereToGoTellsNothing) {
    int told = 0;
    surface->notifications.selectedAgain = [&] { ++told; };
    surface->notifications.selectionChanged = [&] { ++told; };
    key(Qt::Key_Up);
    key(Qt::Key_Left);
    EXPECT_EQ(told, 0);
    surface->Select(1, 0, 4, 0);
    key(Qt::Key_Up);
    EXPECT_EQ(told, 2) << "but a block shrinks to the cell";
    EXPECT_EQ(surface->selection(), (CellRange{1, 0, 1, 0}));
}

/// A listener counts a move in both directions as one to the side, which brings no new row into sight.
TEST_F(GridViewKeys, AJumpIntoTheOtherCornerScrollsInOneDirectionAfterTheOther) {
    view->resize(250, 210);
    settle();
    std::vector<std::pair<int, int>> places;
    surface->notifications.scrolled = [&] { places.emplace_back(surface->TopRow(), surface->LeftCol()); };
    key(Qt::Key_End, Qt::ControlModifier);
    EXPECT_THAT(places, ElementsAre(std::pair(91, 0), std::pair(91, 2)));
}

TEST_F(GridViewKeys, TheSurfaceHearsOfKeysByTheirCodes) {
    std::vector<std::pair<int, int>> heard;
    std::vector<int> typed;
    surface->notifications.keyDown = [&](int& code, int shift) { heard.emplace_back(code, shift); };
    surface->notifications.keyPress = [&](int& ascii) { typed.push_back(ascii); };
    key(Qt::Key_End, Qt::ControlModifier);
    QKeyEvent letter(QEvent::KeyPress, Qt::Key_A, Qt::ShiftModifier, QStringLiteral("A"));
    QApplication::sendEvent(view.get(), &letter);
    // The Ctrl key is pressed before End, and is a key of its own.
    EXPECT_THAT(heard, ElementsAre(std::pair(17, 2), std::pair(35, 2), std::pair(65, 1)));
    EXPECT_THAT(typed, ElementsAre('A'));
}

TEST_F(GridViewKeys, TheControlHearsOfAKeyFirstAndMaySwallowIt) {
    int heard = 0;
    surface->notifications.keyDown = [&](int&, int) { ++heard; };
    view->relays.keyDown = [](int code, int) { return code == 40 ? 0 : code; };
    key(Qt::Key_Down);
    EXPECT_EQ(heard, 0);
    EXPECT_EQ(surface->Row(), 1);
    key(Qt::Key_Right);
    EXPECT_EQ(heard, 1);
    EXPECT_EQ(surface->Col(), 1);
}

TEST_F(GridViewKeys, GreekTypingArrivesCharacterByCharacter) {
    std::vector<int> typed;
    surface->notifications.keyPress = [&](int& ascii) { typed.push_back(ascii); };
    QInputMethodEvent event;
    event.setCommitString(QStringLiteral("Ωή"));
    QApplication::sendEvent(view.get(), &event);
    EXPECT_THAT(typed, ElementsAre(0x3A9, 0x3AE));
}

TEST_F(GridViewKeys, TabPassesTheFocusOn) {
    QWidget form;
    auto* layout = new QVBoxLayout(&form);
    GridSurface other;
    auto* first = new GridView(other, &form);
    auto* second = new QLineEdit(&form);
    layout->addWidget(first);
    layout->addWidget(second);
    form.show();
    form.activateWindow();
    first->setFocus();
    settle();
    QTest::keyClick(first, Qt::Key_Tab);
    EXPECT_EQ(form.focusWidget(), second);
}

TEST_F(GridViewKeys, AKeyThatDoesNotMoveIsLeftToTheForm) {
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(view.get(), &escape);
    EXPECT_FALSE(escape.isAccepted());
    QKeyEvent up(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier);
    QApplication::sendEvent(view.get(), &up);
    EXPECT_TRUE(up.isAccepted()) << "also where there is nowhere to go";
}

TEST_F(GridViewKeys, TheMenuKeyIsARightPressOnTheCurrentCell) {
    SurfaceMouse pressed;
    surface->Select(3, 2);
    surface->notifications.mouseDown = [&](const SurfaceMouse& mouse) { pressed = mouse; };
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(5, 5), view->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(view->viewport(), &event);
    EXPECT_EQ(pressed.button, 2);
    EXPECT_EQ(pressed.row, 3);
    EXPECT_EQ(pressed.col, 2);
}

} // namespace
} // namespace zkp
