#include "load/load_fixture.h"

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

/// A control with a dictionary that has loaded nothing yet.
class SurfaceEventsTest : public LoadTest {
protected:
    SurfaceEventsTest() {
        connection->Execute(u"create table CLMNS (dtfld text, Cptn text, visbl integer, IsPublic integer, "
                            "isGroup integer, [Sum] integer, [Avg] integer, [Min] integer, [Max] integer, "
                            "Align integer, DataType integer, Width integer, tbl text)"_s);
        columns({u"POLICYID"_s, u"AGENTNAME"_s});
        grid->setclmns(u"CLMNS"_s);
        grid->setRows(20);
        QObject::connect(&grid->events(), &Events::Click,
                         [this] { log << u"Click at %1 rows"_s.arg(grid->Rows()); });
    }

    GridSurface& surface() { return grid->MSFlexGrid1(); }
};

TEST_F(SurfaceEventsTest, TheFirstClickShowsTheReportsShapeBeforeItIsRaised) {
    surface().setTextMatrix(0, 0, u"other"_s);
    surface().userClick(1, 0);
    EXPECT_EQ(boxes(), QStringList());
    EXPECT_EQ(log, QStringList{u"Click at 3 rows"_s}) << "MinRows";
    EXPECT_EQ(grid->TextMatrix(0, 0), u"POLICYID"_s);
}

TEST_F(SurfaceEventsTest, FurtherClicksAreClicks) {
    surface().userClick(1, 0);
    grid->setRows(7);
    surface().userClick(1, 0);
    EXPECT_EQ(log.last(), u"Click at 7 rows"_s);
}

TEST_F(SurfaceEventsTest, AClickOnALoadedReportLeavesItAlone) {
    fill();
    grid->refresh();
    surface().userClick(1, 0);
    EXPECT_EQ(log, QStringList{u"Click at 4 rows"_s});
    EXPECT_EQ(grid->TextMatrix(1, 0), u"1"_s);
}

TEST_F(SurfaceEventsTest, WithoutADictionaryAClickIsAClick) {
    grid->setclmns({});
    surface().userClick(1, 0);
    EXPECT_EQ(log, QStringList{u"Click at 20 rows"_s});
}

TEST_F(SurfaceEventsTest, ALoadPaintsTheReportAndMarksItsFirstRow) {
    grid->setBackColorSel(0x60);
    grid->setRowSelect(true);
    grid->setFixedFontSize(11);
    QObject::connect(&grid->events(), &Events::StartInterface, [this] { log << u"Start"_s; });
    QObject::connect(&grid->events(), &Events::StopInterface, [this] { log << u"Stop"_s; });
    fill();
    grid->refresh();
    EXPECT_EQ(boxes(), QStringList());
    EXPECT_EQ(log, (QStringList{u"Start"_s, u"Stop"_s}));
    EXPECT_EQ(grid->Row(), 1);
    EXPECT_EQ(grid->PreRow(), 1);
    EXPECT_EQ(surface().styleAt(1, 1).backColor, 0x60u);
    EXPECT_EQ(surface().styleAt(2, 1).backColor, grid->BackColor());
}

TEST_F(SurfaceEventsTest, AWidthThatTheUserGivesIsTheColumns) {
    EXPECT_EQ(keysOf([&] { surface().userResizeColumn(1, 2345); }), QStringList{u"ColWidth"_s});
    EXPECT_EQ(grid->Columns().Item(2).Width, 2345);
}

} // namespace
