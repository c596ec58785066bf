#include "core/child_controls.h"
#include "core/paint_scopes.h"
#include "core/report_state.h"
#include "grid_fixture.h"
#include "interaction/menu_bands.h"
#include "interaction/selection_events.h"

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

/// The part alone, on a surface of 4 rows and 4 columns, with a chart that is only counted.
class SelectionPartsTest : public testing::Test {
protected:
    SelectionPartsTest() {
        buildMenuBands(children.Picture1);
        surface.setRows(4);
        surface.setCols(4);
        properties.resize(4);
        QObject::connect(&events, &Events::Selecting, [this] { ++selecting; });
    }

    ReportState state;
    ColumnList columns;
    Events events;
    ChildControls children;
    ScriptedHost host;
    Reporting reporting{state.lifetime, host};
    GridSurface& surface = children.MSFlexGrid1;
    ColumnProperties properties{columns, surface, events};
    KeyColumn key{state.key, columns, surface};
    FontWriter fonts{state.grouping, state.sections, state.notices, state.lifetime, surface, events};
    RowMarking marking{state.grouping, state.marking, state.notices, state.lifetime, key, surface, events};
    InterfaceDrawing drawing{state.data,    state.source,      state.grouping, state.sections, state.lifetime,
                             state.notices, state.painted,     surface,        events,         fonts,
                             marking,       children.Picture1, host,           reporting};
    Dictionary dictionary{state.data, state.source, state.identity};
    MenuState menus{state.data, state.grouping, state.face,        state.tools, columns,
                    properties, surface,        children.Picture1, dictionary};
    int charts = 0;
    int selecting = 0;
    SelectionEvents selection{state.source,  state.grouping, state.face,    state.lifetime,
                              state.notices, state.painted,  state.clicked, state.exporting,
                              key,           surface,        events,        marking,
                              drawing,       menus,          host,          [this] { ++charts; }};
};

} // namespace

TEST_F(SelectionPartsTest, AnOpenChartFollowsTheGroupFactors) {
    const struct {
        bool open;
        int factors;
        int col;
        int charts;
    } cases[] = {{true, 2, 0, 1}, {true, 2, 1, 1},  {true, 2, 2, 0}, {true, 2, 3, 0},
                 {true, 0, 0, 0}, {false, 2, 0, 0}, {false, 2, 2, 0}};
    for (const auto& row : cases) {
        charts = 0;
        state.face.GraphVisible = row.open;
        state.grouping.GroupFactorCount = static_cast<short>(row.factors);
        surface.setCol(row.col);
        selection.selectionChanged();
        EXPECT_EQ(charts, row.charts) << row.factors << " factors, column " << row.col;
    }
}

TEST_F(SelectionPartsTest, TheMenusAndTheChartAreBroughtUpBeforeSelectingIsRaised) {
    state.face.GraphVisible = true;
    state.grouping.GroupFactorCount = 1;
    QString seen;
    QObject::connect(&events, &Events::Selecting, [&] {
        seen = u"%1 charts, sort %2"_s.arg(charts).arg(children.Picture1.Tools(u"mnuSort").Enabled);
    });
    selection.selectionChanged();
    EXPECT_EQ(seen, u"1 charts, sort 0"_s);
}

TEST_F(SelectionPartsTest, WhileAReportIsExportedNothingFollows) {
    state.exporting.ExportRunning = true;
    state.face.GraphVisible = state.marking.RowSelect = true;
    state.grouping.GroupFactorCount = 1;
    host.setPointer(kPointerHourglass);
    properties.setColIndexKey(1, true);
    surface.setTextMatrix(2, 1, u"7"_s);
    surface.Select(2, 0);
    selection.currentCellChanged();
    selection.selectionChanged();
    EXPECT_EQ(selecting, 0);
    EXPECT_EQ(charts, 0);
    EXPECT_EQ(state.marking.PreRow, 0);
    EXPECT_EQ(state.key.indkey, 0);
    EXPECT_EQ(host.pointer(), kPointerHourglass);
    EXPECT_TRUE(children.Picture1.Tools(u"mnuSort").Enabled) << "the menus stay";
}

TEST_F(SelectionPartsTest, WhileTheControlPaintsNothingFollows) {
    state.notices.hush();
    state.face.GraphVisible = true;
    state.grouping.GroupFactorCount = 1;
    surface.Select(2, 0);
    selection.currentCellChanged();
    selection.selectionChanged();
    EXPECT_EQ(selecting, 0);
    EXPECT_EQ(charts, 0);
}

TEST_F(SelectionPartsTest, TheKeyIsTakenOnlyOnceContentIsSeen) {
    properties.setColIndexKey(1, true);
    properties.setColIndexKey(2, true);
    surface.setTextMatrix(2, 1, u"7"_s);
    surface.setTextMatrix(2, 2, u"8"_s);
    surface.Select(2, 0);
    const SelectionQuiet quiet(state.notices);
    state.notices.hear();
    selection.selectionChanged();
    selection.currentCellChanged();
    EXPECT_EQ(state.key.indkey, 0);
    state.notices.seeContent();
    selection.selectionChanged();
    EXPECT_EQ(state.key.indkey, 7) << "of the first key column";
}

TEST_F(SelectionPartsTest, WithoutAChartASelectionIsASelection) {
    SelectionEvents bare{state.source,  state.grouping, state.face,    state.lifetime,
                         state.notices, state.painted,  state.clicked, state.exporting,
                         key,           surface,        events,        marking,
                         drawing,       menus,          host,          {}};
    state.face.GraphVisible = true;
    state.grouping.GroupFactorCount = 2;
    bare.selectionChanged();
    EXPECT_EQ(selecting, 1);
}
