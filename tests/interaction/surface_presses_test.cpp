#include "grid/load_parts.h"
#include "interaction/menu_bands.h"
#include "interaction/surface_events.h"
#include "load/load_fixture.h"

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

constexpr int kLeft = 1;
constexpr int kRight = 2;

/// A control of five columns, the first two of them group factors, the last one a counter.
class SurfacePressesTest : public LoadTest {
protected:
    SurfacePressesTest() {
        columns({u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s});
        grid->setRows(4);
        grid->setColForTot(0, true);
        grid->setColForTot(1, true);
        grid->setColcnt(4, true);
        grid->CheckGroupBy();
        QObject::connect(&grid->events(), &Events::MouseDown, [this](MouseArgs& e) {
            log << u"MouseDown %1 %2 %3 %4"_s.arg(e.Button).arg(e.Shift).arg(e.X).arg(e.Y);
        });
        QObject::connect(&grid->events(), &Events::Click, [this] { log << u"Click"_s; });
        QObject::connect(&grid->events(), &Events::DblClick, [this] { log << u"DblClick"_s; });
    }

    GridSurface& surface() { return grid->MSFlexGrid1(); }
    void press(int button, int row, int col) { surface().userPress({button, 0, 10, 20, row, col}); }
};

struct PressCase {
    const char* title;
    bool totals;
    int row;
    int col;
    bool told;
    QString tag;
    int pointer;
};

class Presses : public SurfacePressesTest, public testing::WithParamInterface<PressCase> {};

TEST_P(Presses, OnHeadingsPrepareADragAndSomeAreNotTold) {
    const PressCase& one = GetParam();
    grid->setTotalForm(one.totals);
    GridSurface::Look look = surface().look();
    look.Tag = u"old"_s;
    surface().setLook(look);
    press(kLeft, one.row, one.col);
    EXPECT_EQ(log, one.told ? QStringList{u"MouseDown 1 0 10 20"_s} : QStringList()) << one.title;
    EXPECT_EQ(surface().look().Tag, one.tag) << one.title;
    EXPECT_EQ(surface().mayDragHeading(one.col), one.tag == QString::number(one.col)) << one.title;
    EXPECT_EQ(grid->MousePointer(), one.pointer) << one.title;
    EXPECT_EQ(grid->Col(), one.col);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, Presses,
    testing::Values(PressCase{"a data row of a detail report", false, 2, 3, false, u""_s, 0},
                    PressCase{"a factor's heading", false, 0, 1, false, u""_s, 0},
                    PressCase{"the heading of the first column behind them", false, 0, 2, false, u""_s, 0},
                    PressCase{"the next heading", false, 0, 3, true, u"3"_s, 0},
                    PressCase{"the counter's heading of a detail report", false, 0, 4, true, u"4"_s, 0},
                    PressCase{"a data row of a totals report", true, 2, 3, false, u""_s, 0},
                    PressCase{"a factor's heading there", true, 0, 0, true, u"0"_s, 0},
                    PressCase{"the first heading behind them there", true, 0, 2, true, u"2"_s, 0},
                    PressCase{"the counter's heading there", true, 0, 4, true, u""_s, kPointerNoDrop}),
    [](const auto& each) { return "Case" + std::to_string(each.index); });

TEST_F(SurfacePressesTest, AHostThatHearsOfThePressMayForbidOrAllowTheDrag) {
    QString written;
    QObject::connect(&grid->events(), &Events::MouseDown, [&](MouseArgs&) {
        GridSurface::Look look = surface().look();
        look.Tag = written;
        surface().setLook(look);
    });
    press(kLeft, 0, 3);
    EXPECT_FALSE(surface().mayDragHeading(3));
    written = u"4"_s;
    press(kLeft, 0, 3);
    EXPECT_FALSE(surface().mayDragHeading(3));
    EXPECT_TRUE(surface().mayDragHeading(4));
}

TEST_F(SurfacePressesTest, WithLockedMenusEveryPressIsToldAndNoneDrags) {
    grid->callMember(u"LockMenus"_s);
    press(kLeft, 2, 3);
    EXPECT_EQ(log, QStringList{u"MouseDown 1 0 10 20"_s});
    EXPECT_EQ(grid->MousePointer(), kPointerNoDrop);
    EXPECT_EQ(surface().look().Tag, QString());
}

TEST_F(SurfacePressesTest, ARightPressSelectsTheColumnOpensTheMenuAndIsTold) {
    grid->setCol(0);
    press(kRight, 2, 3);
    EXPECT_EQ(grid->Col(), 3);
    EXPECT_EQ(grid->Picture1().lastPopup(), u" mnuChooceObject"_s);
    EXPECT_FALSE(grid->Picture1().Tools(u"mnuInsertGroup").Enabled) << "brought in line with the column";
    EXPECT_EQ(log, QStringList{u"MouseDown 2 0 10 20"_s});
    grid->mnuInsert_Click();
    EXPECT_EQ(grid->ColDataField(3), u" "_s) << "the pressed column counts as clicked";
}

TEST_F(SurfacePressesTest, TheMenuIsOpenBeforeTheHostHearsOfThePress) {
    const auto popup = [this](const Band&, bool&) {
        log << u"popup %1"_s.arg(grid->Picture1().Tools(u"mnuInsertGroup").Enabled);
    };
    const Listening view = grid->Picture1().views.add({.popupWanted = popup});
    press(kRight, 2, 0);
    EXPECT_EQ(log, (QStringList{u"popup 1"_s, u"MouseDown 2 0 10 20"_s}));
}

TEST_F(SurfacePressesTest, ARightPressDoesNotTouchThePreparedDragAndWorksWithLockedMenus) {
    press(kLeft, 0, 3);
    grid->callMember(u"LockMenus"_s);
    press(kRight, 0, 4);
    EXPECT_EQ(surface().look().Tag, u"3"_s);
    EXPECT_EQ(grid->MousePointer(), 0);
    EXPECT_EQ(grid->Picture1().lastPopup(), u" mnuChooceObject"_s);
}

TEST_F(SurfacePressesTest, APressBesideTheColumnsLeavesTheCurrentOne) {
    grid->setCol(3);
    grid->setTotalForm(true);
    press(kLeft, 0, -1);
    press(kRight, -1, -1);
    EXPECT_EQ(grid->Col(), 3);
    EXPECT_EQ(boxes(), QStringList());
}

TEST_F(SurfacePressesTest, APressThatFailsShowsTheErrorBox) {
    QObject::connect(&grid->events(), &Events::MouseDown,
                     [](MouseArgs&) { throw Error(kErrOverflow, u"too much"_s); });
    press(kLeft, 0, 3);
    ASSERT_EQ(host->messages.size(), 1u);
    EXPECT_EQ(host->messages.front().title, u"QRN Insurance"_s);
}

TEST_F(SurfacePressesTest, WithNoColumnsAtAllNothingHappens) {
    grid->Columns().Remove(5);
    surface().setCols(0);
    for (const bool totals : {false, true}) {
        grid->setTotalForm(totals);
        press(kLeft, 0, -1);
        surface().userMove({kLeft, 0, 0, 0, 0, -1});
        surface().userClick(0, -1);
        surface().userDrop(0, 1);
    }
    EXPECT_EQ(boxes(), QStringList());
}

// --- Move, drop, release

TEST_F(SurfacePressesTest, ThePointerFollowsADragOfAHeading) {
    press(kLeft, 0, 3);
    surface().userMove({kLeft, 0, 0, 0, 0, 1});
    EXPECT_EQ(grid->MousePointer(), kPointerNoDrop);
    surface().userMove({kLeft, 0, 0, 0, 0, 2});
    EXPECT_EQ(grid->MousePointer(), kPointerCustom);
    surface().userRelease({kLeft, 0, 0, 0, 0, 2});
    EXPECT_EQ(grid->MousePointer(), kPointerCustom) << "a release by itself is nothing";
    surface().userDrop(3, 2);
    EXPECT_EQ(grid->MousePointer(), kPointerDefault);
    EXPECT_EQ(grid->ColDataField(2), u"d"_s);
    EXPECT_EQ(grid->TextMatrix(0, 2), u"d"_s);
}

// --- Click, double click, key

TEST_F(SurfacePressesTest, ALeftPressOnADataRowIsNotToldButAClickIs) {
    press(kLeft, 2, 3);
    surface().userClick(2, 3);
    EXPECT_EQ(log, QStringList{u"Click"_s});
}

TEST_F(SurfacePressesTest, ADoubleClickIsOneAndNothingElse) {
    grid->setCol(1);
    surface().userDblClick(2, 3);
    EXPECT_EQ(log, QStringList{u"DblClick"_s});
    EXPECT_EQ(grid->Col(), 1);
}

TEST_F(SurfacePressesTest, CtrlWithEndSaysHitBottomAndLeavesTheRow) {
    grid->setRow(2);
    surface().userKey(35, 2);
    surface().userKey(35, 3);
    surface().userKey(35, 0);
    surface().userKey(36, 2);
    EXPECT_EQ(boxes(), (QStringList{u"HitBottom"_s, u"HitBottom"_s}));
    EXPECT_EQ(grid->Row(), 2);
}

TEST_F(SurfacePressesTest, AClickWhoseDictionaryVanishedIsToldAndIsStillAClick) {
    grid->setclmns(u"NOWHERE"_s);
    surface().userClick(1, 1);
    EXPECT_EQ(host->messages.size(), 1u);
    EXPECT_EQ(log, QStringList{u"Click"_s});
}

// --- Widths

TEST_F(SurfacePressesTest, WidthsOfAllColumnsAtOnceAreTheColumns) {
    grid->setColWidth(1, 0);
    EXPECT_EQ(keysOf([&] { surface().userResizeColumn(-1, 1234); }), QStringList());
    EXPECT_EQ(grid->Columns().Item(1).Width, 1234);
    EXPECT_EQ(grid->Columns().Item(5).Width, 1234);
    EXPECT_EQ(grid->Columns().Item(2).Width, 0) << "as on the surface";
    EXPECT_TRUE(surface().ColHidden(1));
}

TEST_F(SurfacePressesTest, AColumnMadeNarrowToNothingIsHidden) {
    surface().userResizeColumn(1, 0);
    EXPECT_TRUE(surface().ColHidden(1));
    surface().userResizeColumn(1, 300);
    EXPECT_FALSE(surface().ColHidden(1));
    EXPECT_EQ(grid->Columns().Item(2).Width, 300);
}

// --- The chart

/// The part alone, with a chart that is only counted.
class ClickTest : public testing::Test {
protected:
    ClickTest() {
        buildMenuBands(children.Picture1);
        surface.setCols(4);
        properties.resize(4);
        events_.connect(std::weak_ptr<void>(owner));
        QObject::connect(&events, &Events::Click, [this] { log << u"Click"_s; });
    }

    std::shared_ptr<int> owner = std::make_shared<int>();
    QStringList log;
    CoreParts core{std::make_shared<ScriptedHost>()};
    StatementParts statements{core.forStatements()};
    LoadParts load{core, statements};
    ReportState& state = core.state;
    Events& events = core.events;
    ChildControls& children = core.children;
    GridSurface& surface = core.surface;
    ColumnProperties& properties = core.columnProperties;
    InterfaceDrawing drawing{state.data,    state.source,      state.grouping, state.sections, state.lifetime,
                             state.notices, state.painted,     surface,        events,         core.fonts,
                             core.marking,  children.Picture1, core.pointer,   core.reporting};
    MenuState menus{state.data, state.grouping, state.face,        state.tools,          core.columns,
                    properties, surface,        children.Picture1, statements.dictionary};
    SelectionEvents selection{state.source,   state.grouping, state.face,    state.lifetime,
                              state.notices,  state.painted,  state.clicked, state.exporting,
                              core.keyColumn, surface,        events,        core.marking,
                              drawing,        menus,          core.pointer,  {}};
    HeadingDrag drag{
        state.data,        state.grouping, state.face,      state.lifetime, state.notices,  state.clicked,
        core.setters,      menus,          state.exporting, state.tools,    core.columns,   properties,
        core.groupFactors, surface,        core.boxes,      core.pointer,   core.reporting, [] {}};
    SurfaceEvents events_{state.grouping,
                          state.face,
                          state.lifetime,
                          state.clicked,
                          core.setters,
                          state.tools,
                          properties,
                          surface,
                          children.Picture1,
                          events,
                          statements.dictionary,
                          load.emptyReport,
                          menus,
                          drag,
                          selection,
                          core.boxes,
                          core.reporting,
                          [this] { log << u"chart of %1"_s.arg(state.clicked.get()); }};
};

TEST_F(ClickTest, AClickUpToTheFirstColumnBehindTheFactorsChartsAgainBeforeItIsRaised) {
    state.grouping.GroupFactorCount = 1;
    for (const bool open : {false, true}) {
        state.face.GraphVisible = open;
        for (int col = 0; col < 4; ++col) {
            log.clear();
            surface.setCol(col);
            surface.userClick(1, col);
            const QStringList charted{u"chart of %1"_s.arg(col), u"Click"_s};
            EXPECT_EQ(log, open && col <= 1 ? charted : QStringList{u"Click"_s}) << col;
        }
    }
}

} // namespace
