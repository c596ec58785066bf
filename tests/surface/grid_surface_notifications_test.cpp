#include "surface/grid_surface.h"

#include "error_of.h"
#include "surface/sample_column.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace zkp;
using namespace zkp::test;

namespace {

/// A surface of 11 rows and 3 columns that writes down what it tells.
struct Heard {
    GridSurface surface;
    QStringList said;

    Heard() {
        surface.setRows(11);
        surface.setCols(3);
        surface.notifications.currentCellChanged = [this] { said += u("cell"); };
        surface.notifications.selectionChanged = [this] { said += u("selection"); };
        surface.notifications.selectedAgain = [this] { said += u("again"); };
        surface.notifications.scrolled = [this] { said += u("scrolled"); };
        surface.notifications.visibleRowsGrew = [this] { said += u("more"); };
    }

    QString take() {
        const QString all = said.join(u' ');
        said.clear();
        return all;
    }
};

/// What a view hears.
struct Viewed {
    GridSurface surface;
    int changed = 0;
    int scrolled = 0;
    int focus = 0;
    std::vector<int> rows;
    Listening listening;

    Viewed() {
        surface.setRows(11);
        listening = surface.views.add({.changed = [this] { ++changed; },
                                       .rowChanged = [this](int row) { rows.push_back(row); },
                                       .scrolled = [this] { ++scrolled; },
                                       .focusWanted = [this] { ++focus; }});
    }
};

} // namespace

TEST(SurfaceNotifications, MovingTheCurrentCellTellsTheCellThenTheSelection) {
    Heard h;
    h.surface.setRow(3);
    EXPECT_EQ(h.take(), u("cell selection"));
    h.surface.setCol(2);
    EXPECT_EQ(h.take(), u("cell selection"));
    h.surface.Select(4, 1, 6, 2);
    EXPECT_EQ(h.take(), u("cell selection"));
}

TEST(SurfaceNotifications, NothingIsToldWhenNothingMoves) {
    Heard h;
    h.surface.setRow(3);
    h.take();
    h.surface.setRow(3);
    h.surface.setRowSel(3);
    h.surface.setTopRow(h.surface.TopRow());
    EXPECT_EQ(h.take(), QString());
}

TEST(SurfaceNotifications, TheOtherCornerTellsTheSelectionOnly) {
    Heard h;
    h.surface.setRowSel(5);
    EXPECT_EQ(h.take(), u("selection"));
    h.surface.setColSel(2);
    EXPECT_EQ(h.take(), u("selection"));
    h.surface.setRow(1);
    EXPECT_EQ(h.take(), u("selection")) << "the cell stays, the block shrinks to it";
    EXPECT_EQ(h.surface.selection(), (CellRange{1, 0, 1, 0}));
}

TEST(SurfaceNotifications, ScrollingIsToldOncePerMove) {
    Heard h;
    h.surface.setTopRow(4);
    EXPECT_EQ(h.take(), u("scrolled"));
    h.surface.setLeftCol(1);
    EXPECT_EQ(h.take(), u("scrolled"));
    h.surface.userScroll(6, 2);
    EXPECT_EQ(h.take(), u("scrolled"));
    h.surface.userScroll(6, 2);
    EXPECT_EQ(h.take(), QString());
    h.surface.userScroll(1'000'000, -5);
    EXPECT_EQ(h.surface.TopRow(), 10);
    EXPECT_EQ(h.surface.LeftCol(), 0);
}

TEST(SurfaceNotifications, RowsThatGoAwayMoveTheCursorWithoutAWord) {
    Heard h;
    h.surface.setRow(9);
    h.surface.setTopRow(8);
    h.take();
    h.surface.setRows(4);
    EXPECT_EQ(h.surface.Row(), 3);
    EXPECT_EQ(h.take(), QString());
}

TEST(SurfaceNotifications, WhatTheUserSelectsIsClampedToTheSurface) {
    Heard h;
    h.surface.userSelect(100, 100);
    EXPECT_EQ(h.surface.Row(), 10);
    EXPECT_EQ(h.surface.Col(), 2);
    EXPECT_EQ(h.take(), u("cell selection"));
    h.surface.userSelect(-3, -3);
    EXPECT_EQ(h.surface.Row(), 0);
    EXPECT_EQ(h.surface.Col(), 0);
}

TEST(SurfaceNotifications, TheCellThatIsCurrentAlreadyIsSelectedAgainByAUserOnly) {
    Heard h;
    h.surface.userSelect(3, 1);
    h.take();
    h.surface.userSelect(3, 1);
    EXPECT_EQ(h.take(), u("again"));
    h.surface.Select(3, 1);
    EXPECT_EQ(h.take(), QString());
    h.surface.setRowSel(5);
    h.take();
    h.surface.userSelect(3, 1);
    EXPECT_EQ(h.take(), u("selection")) << "the block shrinks to it";
}

TEST(SurfaceNotifications, MoreVisibleRowsAreToldWhenMoreShow) {
    Heard h;
    h.surface.setVisibleRows(4);
    EXPECT_EQ(h.take(), QString()) << "all were visible before";
    h.surface.setVisibleRows(6);
    EXPECT_EQ(h.take(), u("more"));
    h.surface.setVisibleRows(5);
    h.surface.setVisibleRows(5);
    EXPECT_EQ(h.take(), QString());
    h.surface.setVisibleRows(0);
    EXPECT_EQ(h.take(), u("more"));
    h.surface.setVisibleRows(4);
    h.surface.setTopRow(8);
    h.take();
    h.surface.setVisibleRows(40);
    EXPECT_EQ(h.take(), QString()) << "the last row showed already";
}

TEST(SurfaceNotifications, AListenerMayMoveTheCellOn) {
    Heard h;
    h.surface.notifications.currentCellChanged = [&] {
        h.said += u("cell") + QString::number(h.surface.Row());
        if (h.surface.Row() < 5)
            h.surface.setRow(h.surface.Row() + 1);
    };
    h.surface.setRow(4);
    EXPECT_EQ(h.surface.Row(), 5);
    EXPECT_EQ(h.take(), u("cell4 cell5 selection selection"));
}

TEST(SurfaceNotifications, AListenerMayTakeRowsAndColumnsAway) {
    Heard h;
    h.surface.notifications.currentCellChanged = [&] {
        h.surface.setRows(1);
        h.surface.setCols(1);
    };
    h.surface.userSelect(7, 2);
    EXPECT_EQ(h.surface.Row(), 0);
    EXPECT_EQ(h.surface.Col(), 0);
    EXPECT_EQ(h.surface.inconsistency(), QString());
}

TEST(SurfaceNotifications, AListenerThatThrowsLeavesTheSurfaceWhole) {
    Heard h;
    h.surface.notifications.currentCellChanged = [] { throw std::runtime_error("no"); };
    EXPECT_THROW(h.surface.setRow(5), std::runtime_error);
    EXPECT_EQ(h.surface.Row(), 5);
    EXPECT_EQ(h.surface.inconsistency(), QString());
}

TEST(SurfaceNotifications, AListenerMayReplaceItself) {
    Heard h;
    int calls = 0;
    h.surface.notifications.click = [&] {
        h.surface.notifications.click = nullptr;
        ++calls;
    };
    h.surface.userClick(1, 1);
    h.surface.userClick(1, 1);
    EXPECT_EQ(calls, 1);
}

TEST(SurfaceNotifications, TheMousesPlaceIsKnownBeforeAnybodyHearsOfIt) {
    Heard h;
    h.surface.notifications.mouseDown = [&](const SurfaceMouse& mouse) {
        h.said += QStringLiteral("down %1 %2 %3")
                      .arg(mouse.button)
                      .arg(h.surface.MouseRow())
                      .arg(h.surface.MouseCol());
    };
    h.surface.notifications.mouseMove = [&](const SurfaceMouse&) { h.said += u("move"); };
    h.surface.notifications.mouseUp = [&](const SurfaceMouse& mouse) {
        h.said += u("up ") + QString::number(mouse.x);
    };
    SurfaceMouse mouse;
    mouse.button = 2;
    mouse.x = 150;
    mouse.row = 3;
    mouse.col = 1;
    h.surface.userPress(mouse);
    h.surface.userMove(mouse);
    h.surface.userRelease(mouse);
    EXPECT_EQ(h.take(), u("down 2 3 1 move up 150"));
}

TEST(SurfaceNotifications, ClicksAndKeysArePassedOn) {
    Heard h;
    h.surface.notifications.click = [&] { h.said += u("click"); };
    h.surface.notifications.dblClick = [&] { h.said += u("double"); };
    h.surface.notifications.keyDown = [&](int& code, int shift) {
        h.said += QStringLiteral("down%1,%2").arg(code).arg(shift);
    };
    h.surface.notifications.keyUp = [&](int& code, int) { h.said += QStringLiteral("up%1").arg(code); };
    h.surface.notifications.keyPress = [&](int& ascii) { h.said += QStringLiteral("char%1").arg(ascii); };
    h.surface.userClick(1, 2);
    h.surface.userDblClick(1, 2);
    h.surface.userKey(35, 2);
    h.surface.userKeyUp(35, 2);
    h.surface.userChar(65);
    EXPECT_EQ(h.take(), u("click double down35,2 up35 char65"));
    EXPECT_EQ(h.surface.MouseCol(), 2);
}

TEST(SurfaceNotifications, AResizedColumnHasItsWidthWhenItIsTold) {
    Heard h;
    h.surface.notifications.columnResized = [&](int col) {
        h.said += QString::number(h.surface.ColWidth(col));
    };
    h.surface.userResizeColumn(1, 700);
    EXPECT_EQ(h.take(), u("700"));
    EXPECT_EQ(errorNumber([&] { h.surface.userResizeColumn(3, 700); }), kErrInvalidColumn);
}

TEST(SurfaceNotifications, AllColumnsThatShowCanBeResizedAtOnce) {
    Heard h;
    h.surface.setColHidden(1, true);
    h.surface.setColWidth(1, 0);
    h.surface.notifications.columnResized = [&](int col) { h.said += QString::number(col); };
    h.surface.userResizeColumn(-1, 700);
    EXPECT_EQ(h.take(), u("-1"));
    EXPECT_EQ(h.surface.ColWidth(0), 700);
    EXPECT_EQ(h.surface.ColWidth(1), 0);
    EXPECT_EQ(h.surface.ColWidth(2), 700);
}

TEST(SurfaceNotifications, ADropOutsideTheColumnsIsNothing) {
    Heard h;
    h.surface.notifications.headingDropped = [&](int, int) {
        h.said += u("asked");
        return true;
    };
    h.surface.userDrop(0, 3);
    h.surface.userDrop(-1, 0);
    EXPECT_EQ(h.take(), QString());
}

TEST(SurfaceNotifications, ADropIsAskedForFirst) {
    Heard h;
    h.surface.setTextMatrix(0, 0, u("a"));
    bool answer = false;
    h.surface.notifications.headingDropped = [&](int from, int to) {
        h.said += QStringLiteral("%1>%2").arg(from).arg(to);
        return answer;
    };
    h.surface.userDrop(0, 2);
    EXPECT_EQ(h.surface.TextMatrix(0, 0), u("a"));
    answer = true;
    h.surface.userDrop(0, 2);
    EXPECT_EQ(h.surface.TextMatrix(0, 2), u("a"));
    EXPECT_EQ(h.take(), u("0>2 0>2"));
}

TEST(SurfaceView, ARowTextTellsTheRowAndASizeTellsAll) {
    Viewed v;
    v.surface.setTextMatrix(4, 0, u("x"));
    EXPECT_EQ(v.rows, std::vector<int>{4});
    EXPECT_EQ(v.changed, 0);
    v.surface.setRows(20);
    EXPECT_EQ(v.changed, 1);
    v.surface.setTopRow(3);
    EXPECT_EQ(v.scrolled, 1);
    v.listening = v.surface.views.add({.changed = [&] { ++v.changed; }});
    v.surface.setTextMatrix(4, 0, u("y"));
    EXPECT_EQ(v.changed, 2);
    v.surface.setTopRow(4);
    EXPECT_EQ(v.changed, 3);
}

TEST(SurfaceView, WithRedrawOffItHearsOneChangeAtTheEnd) {
    Viewed v;
    v.surface.setRedraw(false);
    v.surface.setTextMatrix(4, 0, u("x"));
    v.surface.setRows(20);
    v.surface.setTopRow(3);
    v.surface.setBackColor(1);
    v.surface.setRow(6);
    EXPECT_EQ(v.changed + v.scrolled + static_cast<int>(v.rows.size()), 0);
    v.surface.setRedraw(true);
    EXPECT_EQ(v.changed, 1);
    v.surface.setRedraw(true);
    EXPECT_EQ(v.changed, 1);
    v.surface.setRedraw(false);
    v.surface.setRedraw(true);
    EXPECT_EQ(v.changed, 1) << "nothing happened meanwhile";
}

TEST(SurfaceView, AllViewsHearAndNoneSilencesAnother) {
    Viewed v;
    int other = 0;
    {
        const Listening second = v.surface.views.add({.changed = [&] { ++other; }});
        v.surface.setTextMatrix(4, 0, u("x"));
        EXPECT_EQ(v.rows, std::vector<int>{4});
        EXPECT_EQ(other, 1) << "it hears of rows as of any change";
        v.surface.setRows(20);
        EXPECT_EQ(v.changed, 1);
        EXPECT_EQ(other, 2);
        v.surface.SetFocus();
        EXPECT_EQ(v.focus, 1);
    }
    v.surface.setRows(21);
    EXPECT_EQ(v.changed, 2);
    EXPECT_EQ(other, 2);
}

TEST(SurfaceView, OneMayStopInANotification) {
    Viewed v;
    int last = 0;
    Listening once;
    once = v.surface.views.add({.changed = [&] { once.stop(); }});
    const Listening third = v.surface.views.add({.changed = [&] { ++last; }});
    v.surface.setRows(20);
    v.surface.setRows(21);
    EXPECT_FALSE(once);
    EXPECT_EQ(v.changed, 2);
    EXPECT_EQ(last, 2);
}

TEST(SurfaceView, TheSurfaceMayGoWithItsLastWord) {
    auto surface = std::make_unique<GridSurface>();
    int later = 0;
    const Listening first = surface->views.add({.changed = [&] { surface.reset(); }});
    const Listening second = surface->views.add({.changed = [&] { ++later; }});
    surface->Refresh();
    EXPECT_EQ(surface, nullptr);
    EXPECT_EQ(later, 0) << "there is nothing left to show";
}

TEST(SurfaceView, TheLargestViewSaysHowManyRowsFit) {
    GridSurface surface;
    EXPECT_EQ(surface.roomInViews(), 0);
    const Listening silent = surface.views.add({.changed = [] {}});
    const Listening small = surface.views.add({.room = [] { return 5; }});
    {
        const Listening large = surface.views.add({.room = [] { return 40; }});
        EXPECT_EQ(surface.roomInViews(), 40);
    }
    EXPECT_EQ(surface.roomInViews(), 5);
}

TEST(SurfaceView, LookAndPlaceTellWhenTheyDiffer) {
    Viewed v;
    GridSurface::Look look = v.surface.look();
    v.surface.setLook(look);
    EXPECT_EQ(v.changed, 0);
    look.GridLines = 0;
    v.surface.setLook(look);
    EXPECT_EQ(v.changed, 1);
    GridSurface::Place place = v.surface.place();
    place.Width = 5000;
    v.surface.setPlace(place);
    EXPECT_EQ(v.changed, 2);
    v.surface.SetFocus();
    EXPECT_EQ(v.focus, 1);
}
