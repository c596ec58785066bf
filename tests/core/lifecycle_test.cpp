#include "grid_fixture.h"

using namespace Qt::StringLiterals;
using namespace zkp;

using LifecycleTest = GridTest;

TEST_F(LifecycleTest, TheBandStandsOnTopWithTwentyTwipsBelowIt) {
    grid->setWidth(6000);
    grid->setHeight(4000);
    grid->Picture1().Bands(u"BndTemplate").Height = 400;
    grid->UserControl_Resize();
    const GridSurface::Place& place = grid->MSFlexGrid1().place();
    EXPECT_EQ(place.Top, 420);
    EXPECT_EQ(place.Width, 6000);
    EXPECT_EQ(place.Height, 3580);
    EXPECT_TRUE(grid->Picture1().Visible);
    EXPECT_FALSE(grid->MSFlexGrid2().place().Visible);
    EXPECT_FALSE(grid->MSFlexGrid3().place().Visible);
}

TEST_F(LifecycleTest, WithoutChoicesTheSurfaceTakesTheWholeControl) {
    grid->setWidth(6000);
    grid->setHeight(4000);
    grid->Picture1().Bands(u"BndTemplate").Height = 400;
    grid->setChoicesVisible(false);
    grid->UserControl_Resize();
    const GridSurface::Place& place = grid->MSFlexGrid1().place();
    EXPECT_EQ(place.Left, 0);
    EXPECT_EQ(place.Top, 0);
    EXPECT_EQ(place.Width, 6000);
    EXPECT_EQ(place.Height, 4000);
    EXPECT_FALSE(grid->Picture1().Visible);
}

TEST_F(LifecycleTest, AControlSmallerThanItsBandGivesNoNegativeHeight) {
    grid->setHeight(100);
    grid->Picture1().Bands(u"BndTemplate").Height = 400;
    grid->UserControl_Resize();
    EXPECT_EQ(grid->MSFlexGrid1().place().Height, 0);
}

TEST_F(LifecycleTest, FocusPassesToAVisibleSurface) {
    int asked = 0;
    const Listening view = grid->MSFlexGrid1().views.add({.focusWanted = [&] { ++asked; }});
    grid->UserControl_EnterFocus();
    EXPECT_EQ(asked, 1);
    GridSurface::Place place = grid->MSFlexGrid1().place();
    place.Visible = false;
    grid->MSFlexGrid1().setPlace(place);
    grid->UserControl_EnterFocus();
    EXPECT_EQ(asked, 1);
}

TEST_F(LifecycleTest, EscapeHidesAChartThatShowsAndRaisesKeyDownInBothCases) {
    int pressed = 0;
    int raised = 0;
    grid->cmdHide().pressed = [&] { ++pressed; };
    QObject::connect(&grid->events(), &Events::KeyDown, [&](KeyArgs&) { ++raised; });
    grid->UserControl_KeyDown(27, 0);
    EXPECT_EQ(pressed, 0);
    EXPECT_EQ(raised, 1);
    grid->setGraphVisible(true);
    grid->UserControl_KeyDown(27, 0);
    EXPECT_EQ(pressed, 1);
    EXPECT_EQ(raised, 2);
}

TEST_F(LifecycleTest, HandlersMayChangeTheKey) {
    QObject::connect(&grid->events(), &Events::KeyDown, [](KeyArgs& e) { e.KeyCode = 0; });
    QObject::connect(&grid->events(), &Events::KeyPress, [](KeyPressArgs& e) { e.KeyAscii = 66; });
    EXPECT_EQ(grid->UserControl_KeyDown(65, 0), 0);
    EXPECT_EQ(grid->UserControl_KeyPress(65), 66);
}

TEST_F(LifecycleTest, CtrlEndOnTheSurfaceOnlySaysHitBottom) {
    grid->setRows(10);
    const int row = grid->Row();
    grid->MSFlexGrid1().userKey(35, 2);
    ASSERT_EQ(host->messages.size(), 1u);
    EXPECT_EQ(host->messages[0].text, u"HitBottom"_s);
    EXPECT_EQ(grid->Row(), row);
    grid->MSFlexGrid1().userKey(35, 0);
    grid->MSFlexGrid1().userKey(36, 2);
    EXPECT_EQ(host->messages.size(), 1u);
}

TEST_F(LifecycleTest, ClicksOnTheSurfaceAreRaised) {
    int clicks = 0;
    int doubles = 0;
    QObject::connect(&grid->events(), &Events::Click, [&] { ++clicks; });
    QObject::connect(&grid->events(), &Events::DblClick, [&] { ++doubles; });
    grid->setRows(3);
    grid->MSFlexGrid1().userClick(1, 0);
    grid->MSFlexGrid1().userDblClick(1, 0);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(doubles, 1);
}

TEST_F(LifecycleTest, ALeftPressIsToldForHeadingsBehindTheGroupFactorsOnly) {
    QList<int> told;
    QObject::connect(&grid->events(), &Events::MouseDown, [&](MouseArgs& e) { told << e.Button; });
    grid->setRows(3);
    GridSurface& surface = grid->MSFlexGrid1();
    surface.userPress({1, 0, 0, 0, 1, 1}); // a data row
    surface.userPress({1, 0, 0, 0, 0, 0}); // the heading of the first column
    EXPECT_EQ(told, QList<int>{});
    surface.userPress({1, 0, 0, 0, 0, 1});
    surface.userPress({2, 0, 0, 0, 1, 0}); // the right button anywhere
    EXPECT_EQ(told, (QList<int>{1, 2}));
    EXPECT_EQ(grid->Col(), 0);
}

TEST_F(LifecycleTest, EventsThatAreNeverRaisedStaySilent) {
    int raised = 0;
    Events& events = grid->events();
    QObject::connect(&events, &Events::MouseUp, [&](MouseArgs&) { ++raised; });
    QObject::connect(&events, &Events::KeyUp, [&](KeyArgs&) { ++raised; });
    QObject::connect(&events, &Events::StartEdit, [&](CellArgs&) { ++raised; });
    QObject::connect(&events, &Events::LeaveEdit, [&](CellArgs&) { ++raised; });
    QObject::connect(&events, &Events::FirstRetrieved, [&] { ++raised; });
    QObject::connect(&events, &Events::Groupby, [&](FieldArgs&) { ++raised; });
    QObject::connect(&events, &Events::GroupBy1, [&](FieldArgs&) { ++raised; });
    grid->setRows(3);
    GridSurface& surface = grid->MSFlexGrid1();
    surface.userPress({1, 0, 0, 0, 1, 1});
    surface.userRelease({1, 0, 0, 0, 1, 1});
    surface.userKey(65, 0);
    surface.userKeyUp(65, 0);
    grid->setGroupby(u"A"_s);
    grid->setGroupBy1(u"A"_s);
    EXPECT_EQ(raised, 0);
}

TEST_F(LifecycleTest, TheAccumulatorGridsAreNeverVisible) {
    EXPECT_FALSE(grid->MSFlexGrid2().place().Visible);
    EXPECT_FALSE(grid->MSFlexGrid3().place().Visible);
}

TEST_F(LifecycleTest, AColumnThatTheUserResizesIsStored) {
    grid->MSFlexGrid1().userResizeColumn(1, 2345);
    EXPECT_EQ(grid->Columns().Item(2).Width, 2345);
}

TEST_F(LifecycleTest, AHandlerMayDestroyTheControl) {
    QObject::connect(&grid->events(), &Events::Click, [&] { grid.reset(); });
    grid->setRows(3);
    GridSurface& surface = grid->MSFlexGrid1();
    surface.userClick(1, 0);
    EXPECT_EQ(grid, nullptr);
}
