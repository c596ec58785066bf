#include "core/report_state.h"
#include "grid_fixture.h"
#include "interaction/heading_drag.h"
#include "interaction/menu_bands.h"

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

/// The parts that a drag touches, over five columns A to E with fields a to e and a row of data.
class HeadingDragTest : public testing::Test {
protected:
    HeadingDragTest() {
        buildMenuBands(children.Picture1);
        surface.setCols(5);
        properties.resize(5);
        for (int c = 0; c < 5; ++c) {
            properties.setColCaption(c, QString(QChar(u'A' + c)));
            properties.setColDataField(c, QString(QChar(u'a' + c)));
            properties.setColWidth(c, 100 * (c + 1));
            surface.setTextMatrix(1, c, QString::number(c));
        }
        host.onMsgBox = [this](const ScriptedHost::Message& box) {
            asked = box;
            return answer;
        };
    }

    void factors(int count) {
        for (int c = 0; c < count; ++c)
            properties.setColForTot(c, true);
        flags.CheckGroupBy(5);
    }

    /// Fields, headings and data from the left.
    QString order() const {
        QString fields;
        QString headings;
        QString data;
        for (int c = 0; c < surface.Cols(); ++c) {
            fields += properties.ColDataField(c);
            headings += surface.TextMatrix(0, c);
            data += surface.TextMatrix(1, c);
        }
        return fields + u' ' + headings + u' ' + data;
    }

    /// The control's pointer while the left button drags `from` over the heading of `to`.
    int pointerOver(int from, int to) {
        state.clicked.take(from);
        drag.showPointer({1, 0, 0, 0, 0, to});
        return state.face.MousePointer;
    }

    ReportState state;
    ColumnList columns;
    Events events;
    ChildControls children;
    GridSurface& surface = children.MSFlexGrid1;
    ScriptedHost host;
    Reporting reporting{state.lifetime, host};
    ColumnProperties properties{columns, surface, events};
    ControlSetters setters{state.data, state.print, state.face, children, properties, events};
    GroupFactorFlags flags{state.grouping, columns, events};
    Dictionary dictionary{state.data, state.source, state.identity};
    MenuState menus{state.data, state.grouping, state.face,        state.tools, columns,
                    properties, surface,        children.Picture1, dictionary};
    int refreshed = 0;
    HeadingDrag drag{state.data,     state.grouping, state.face,
                     state.lifetime, state.notices,  state.clicked,
                     setters,        menus,          state.exporting,
                     state.tools,    columns,        properties,
                     flags,          surface,        host,
                     host,           reporting,      [this] { ++refreshed; }};
    int answer = kAnswerNo;
    ScriptedHost::Message asked;
};

struct RefusalCase {
    const char* title;
    bool fromFactor;
    QString fromField;
    bool toFactor;
    QString toField;
    bool refused;
};

class DragRefusals : public HeadingDragTest, public testing::WithParamInterface<RefusalCase> {};

TEST_P(DragRefusals, AreTheSameOnTheWayAndAtTheDrop) {
    const RefusalCase& one = GetParam();
    properties.setColForTot(1, one.fromFactor);
    properties.setColDataField(1, one.fromField);
    properties.setColForTot(2, one.toFactor);
    properties.setColDataField(2, one.toField);
    EXPECT_EQ(pointerOver(1, 2), one.refused ? kPointerNoDrop : kPointerCustom) << one.title;
    drag.drop(1, 2);
    EXPECT_EQ(surface.TextMatrix(0, 1), one.refused ? u"B"_s : u"C"_s) << one.title;
    EXPECT_EQ(host.messages.size(), !one.refused && one.fromFactor ? 1u : 0u) << "refused without a word";
    EXPECT_EQ(state.face.MousePointer, kPointerDefault);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, DragRefusals,
    testing::Values(RefusalCase{"two plain columns", false, u"x"_s, false, u"y"_s, false},
                    RefusalCase{"plain ones without fields", false, u" "_s, false, u""_s, false},
                    RefusalCase{"two factors", true, u"x"_s, true, u"y"_s, false},
                    RefusalCase{"a factor without a field", true, u"  "_s, true, u"y"_s, true},
                    RefusalCase{"onto one without a field", true, u"x"_s, true, u" "_s, true},
                    RefusalCase{"neither has a field", true, u""_s, true, u""_s, true},
                    RefusalCase{"a tab is a field", true, u"\t"_s, true, u"y"_s, false},
                    RefusalCase{"a factor onto a plain one", true, u"x"_s, false, u"y"_s, true},
                    RefusalCase{"a plain one onto a factor", false, u"x"_s, true, u"y"_s, true}),
    [](const auto& each) { return "Case" + std::to_string(each.index); });

// --- Where a column goes

TEST_F(HeadingDragTest, AColumnGoesForwardsBehindTheOneItIsDroppedOn) {
    drag.drop(1, 3);
    EXPECT_EQ(order(), u"acdbe ACDBE 02314"_s);
}

TEST_F(HeadingDragTest, AndBackwardsBeforeIt) {
    drag.drop(3, 1);
    EXPECT_EQ(order(), u"adbce ADBCE 03124"_s);
}

TEST_F(HeadingDragTest, TheLastAndTheFirstPlaceCanBeReached) {
    drag.drop(0, 4);
    EXPECT_EQ(order(), u"bcdea BCDEA 12340"_s);
    drag.drop(4, 0);
    EXPECT_EQ(order(), u"abcde ABCDE 01234"_s);
}

TEST_F(HeadingDragTest, OnItsOwnPlaceNothingMovesAndNobodyIsAsked) {
    factors(2);
    drag.drop(1, 1);
    drag.drop(3, 3);
    EXPECT_EQ(order(), u"abcde ABCDE 01234"_s);
    EXPECT_EQ(host.messages.size(), 0u);
}

TEST_F(HeadingDragTest, OutsideTheColumnsIsNothing) {
    drag.drop(1, 5);
    drag.drop(-1, 2);
    EXPECT_EQ(order(), u"abcde ABCDE 01234"_s);
    EXPECT_EQ(host.messages.size(), 0u);
}

TEST_F(HeadingDragTest, WidthAlignmentLookAndHiddenColumnsTravelAlong) {
    properties.setColAlignment(1, 7);
    properties.setColWidth(2, 0);
    StylePatch marked;
    marked.backColor = 0x123456;
    surface.applyStyle({1, 1, 1, 1}, marked);
    surface.setMergeCol(1, true);
    surface.setColDataType(1, 6);
    drag.drop(1, 3);
    EXPECT_EQ(surface.ColWidth(3), 200);
    EXPECT_EQ(surface.ColAlignment(3), 6);
    EXPECT_EQ(columns.Item(4).Alignment, 7) << "stored as it was given";
    EXPECT_EQ(surface.styleAt(1, 3).backColor, 0x123456u);
    EXPECT_TRUE(surface.MergeCol(3));
    EXPECT_EQ(surface.ColDataType(3), 6);
    EXPECT_TRUE(surface.ColHidden(1));
    EXPECT_FALSE(surface.MergeCol(1));
    EXPECT_FALSE(surface.ColHidden(2));
}

TEST_F(HeadingDragTest, EveryMemberOfTheColumnTravelsInTheSameRecord) {
    Column& column = columns.Item(2);
    column.Credit = column.Debit = column.Balance = column.Stat_ic = column.Totals = column.Index_Key = true;
    column.cnt = column.PerCnt = column.lR = column.Avrg = column.Editable = column.calcEuro = true;
    column.EditRs = u"rs"_s;
    column.EditKind = 2;
    column.EditTag = u"tag"_s;
    column.EditLength = 12;
    column.EditField1 = u"f1"_s;
    column.EditField2 = u"f2"_s;
    drag.drop(1, 3);
    ASSERT_EQ(&columns.Item(4), &column);
    EXPECT_TRUE(column.Credit && column.Debit && column.Balance && column.Stat_ic && column.Totals &&
                column.Index_Key && column.cnt && column.PerCnt && column.lR && column.Avrg &&
                column.Editable && column.calcEuro);
    EXPECT_EQ(column.EditRs + column.EditTag + column.EditField1 + column.EditField2, u"rstagf1f2"_s);
    EXPECT_EQ(column.EditKind, 2);
    EXPECT_EQ(column.EditLength, 12);
    EXPECT_FALSE(columns.Item(2).Credit);
}

TEST_F(HeadingDragTest, EveryPropertyOfEveryColumnIsReportedInItsOrder) {
    QStringList keys;
    QObject::connect(&events, &Events::PropertyChanged, [&](PropertyArgs& e) { keys << e.name; });
    drag.drop(3, 4);
    const QStringList one{u"ColAlignment"_s,  u"ColBalance"_s,    u"ColCaption"_s,    u"ColCredit"_s,
                          u"ColDataField"_s,  u"ColDebit"_s,      u"ColTotals"_s,     u"ColStatic"_s,
                          u"ColLR"_s,         u"ColForTot"_s,     u"ColIndexKey"_s,   u"Colcnt"_s,
                          u"ColWidth"_s,      u"ColEditRs"_s,     u"ColEditKind"_s,   u"ColEditTag"_s,
                          u"ColEditLength"_s, u"ColEditField1"_s, u"ColEditField2"_s, u"ColEditable"_s};
    EXPECT_EQ(keys, one + one + one + one + one);
}

TEST_F(HeadingDragTest, TheViewSeesOneChangeAndAPlainColumnIsDrawnAgain) {
    int changes = 0;
    const Listening view = surface.views.add({.changed = [&] { ++changes; }});
    children.Picture1.Tools(u"mnuAddGroup").Enabled = false;
    drag.drop(1, 3);
    EXPECT_EQ(changes, 2) << "the move and the repaint";
    EXPECT_TRUE(surface.Redraw());
    EXPECT_EQ(surface.Col(), 3) << "the current cell goes along";
    EXPECT_TRUE(children.Picture1.Tools(u"mnuAddGroup").Enabled) << "and the tools with it";
}

// --- The steps before it

TEST_F(HeadingDragTest, TheWidthsAreTakenAndThePointerReturnsEvenWhenItIsRefused) {
    factors(1);
    surface.setColWidth(4, 777);
    state.face.MousePointer = kPointerNoDrop;
    host.setPointer(kPointerHourglass);
    drag.drop(0, 3);
    EXPECT_EQ(columns.Item(5).Width, 777);
    EXPECT_EQ(state.face.MousePointer, kPointerDefault);
    EXPECT_EQ(host.pointer(), kPointerDefault);
    EXPECT_EQ(order(), u"abcde ABCDE 01234"_s);
}

TEST_F(HeadingDragTest, LockedMenusEndItAfterTheWidths) {
    state.tools.MenusLocked = true;
    surface.setColWidth(4, 777);
    drag.drop(1, 3);
    EXPECT_EQ(columns.Item(5).Width, 777);
    EXPECT_EQ(order(), u"abcde ABCDE 01234"_s);
}

TEST_F(HeadingDragTest, WhileASpreadsheetIsWrittenADropIsNotHeardOf) {
    state.exporting.ExportRunning = true;
    state.face.MousePointer = kPointerCustom;
    surface.setColWidth(4, 777);
    drag.drop(1, 3);
    EXPECT_EQ(columns.Item(5).Width, 500);
    EXPECT_EQ(state.face.MousePointer, kPointerCustom);
    EXPECT_EQ(order(), u"abcde ABCDE 01234"_s);
}

TEST_F(HeadingDragTest, AnAcceptedDropEndsTheDragState) {
    GridSurface::Look look = surface.look();
    look.Tag = u"1"_s;
    surface.setLook(look);
    drag.drop(2, 2);
    EXPECT_EQ(surface.look().Tag, u"1"_s);
    drag.drop(1, 3);
    EXPECT_EQ(surface.look().Tag, QString());
}

// --- The question

TEST_F(HeadingDragTest, AFactorIsAskedAboutWithNoAsTheDefault) {
    factors(3);
    drag.drop(0, 2);
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(asked.text, u"Να αλλάξω τη σειρά των Παραγόντων;"_s);
    EXPECT_EQ(asked.style, 32 + 3 + 256);
}

TEST_F(HeadingDragTest, TheColumnsHaveMovedWhenTheQuestionIsPut) {
    factors(3);
    QString seen;
    host.onMsgBox = [&](const ScriptedHost::Message&) {
        seen = order();
        return int(kAnswerNo);
    };
    drag.drop(0, 2);
    EXPECT_EQ(seen, u"bcade BCADE 12034"_s);
    EXPECT_TRUE(surface.Redraw());
}

TEST_F(HeadingDragTest, NoAndCancelLeaveTheGroupingAsItWas) {
    factors(2);
    for (const int said : {kAnswerNo, kAnswerCancel}) {
        answer = said;
        drag.drop(0, 1);
        EXPECT_EQ(state.grouping.Groupby, u"a,b"_s);
    }
    EXPECT_EQ(order(), u"abcde ABCDE 01234"_s) << "there and back";
    EXPECT_EQ(refreshed, 0);
}

TEST_F(HeadingDragTest, YesRebuildsTheGroupingAndLoads) {
    factors(2);
    answer = kAnswerYes;
    drag.drop(0, 1);
    EXPECT_EQ(state.grouping.Groupby, u"b,a"_s);
    EXPECT_EQ(refreshed, 1);
    EXPECT_EQ(order(), u"bacde BACDE 10234"_s);
}

TEST_F(HeadingDragTest, APlainColumnIsNotAskedAbout) {
    factors(2);
    drag.drop(2, 4);
    EXPECT_EQ(host.messages.size(), 0u);
    EXPECT_EQ(order(), u"abdec ABDEC 01342"_s);
}

TEST_F(HeadingDragTest, AFailureIsToldInTheErrorBox) {
    QObject::connect(&events, &Events::PropertyChanged,
                     [](PropertyArgs&) { throw Error(kErrOverflow, u"too much"_s); });
    drag.drop(1, 3);
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages.front().title, u"QRN Insurance"_s);
    EXPECT_TRUE(surface.Redraw());
}

// --- The pointer on the way

TEST_F(HeadingDragTest, ThePointerTellsOnlyOverTheHeadingWithTheLeftButtonDown) {
    factors(1);
    EXPECT_EQ(pointerOver(0, 2), kPointerNoDrop);
    drag.showPointer({0, 0, 0, 0, 0, 2});
    EXPECT_EQ(state.face.MousePointer, kPointerNoDrop) << "with the button up it stays as it was";
    drag.showPointer({1, 0, 0, 0, 3, 2});
    EXPECT_EQ(state.face.MousePointer, kPointerDefault) << "over the rows";
    drag.showPointer({2, 0, 0, 0, 0, 2});
    EXPECT_EQ(state.face.MousePointer, kPointerDefault) << "the right button drags nothing";
    EXPECT_EQ(pointerOver(1, 2), kPointerCustom);
    EXPECT_EQ(pointerOver(1, -1), kPointerNoDrop) << "beside the columns";
}

TEST_F(HeadingDragTest, WithoutMenusOnlyTheSurfacesOwnPointerReturns) {
    GridSurface::Look look = surface.look();
    look.MousePointer = 5;
    surface.setLook(look);
    state.face.MenusVisible = false;
    state.face.MousePointer = kPointerCustom;
    EXPECT_EQ(pointerOver(0, 2), kPointerCustom);
    EXPECT_EQ(surface.look().MousePointer, 0);
}

} // namespace
