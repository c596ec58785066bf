#include "load/row_reader.h"

#include "platform/scripted_host.h"
#include "print_qt.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

/// The row reader by itself, with hooks that write down what it asks of the group rows.
class RowReaderHooksTest : public testing::Test {
protected:
    RowReaderHooksTest() {
        connection->Open(u"sqlite:"_s);
        surface.setCols(1);
        properties.resize(1);
        columns.Item(1).Datafield = u"A"_s;
        hooks.InitTotalsGrid = [this] {
            log << u"init"_s;
            if (raisesTotals)
                state.TotalsNeeded = true;
        };
        hooks.AccumulateRow = [this](double& r) {
            log << u"sum %1"_s.arg(r);
            if (insertBefore == r) {
                surface.AddItem(u"subtotal"_s, static_cast<int>(r));
                r += 1;
            }
        };
        hooks.FinishTotals = [this] { log << u"finish"_s; };
        QObject::connect(&events, &Events::RetrieveRow,
                         [this](RetrieveRowArgs& e) { log << u"row %1"_s.arg(e.rw); });
    }

    void load(const QString& statement, int rows) {
        state.ReportRecordset = std::make_shared<ado::Recordset>();
        state.ReportRecordset->Open(statement, connection);
        surface.setRows(rows);
        reader.LoadRows();
    }

    QStringList column() const {
        QStringList texts;
        for (int r = 1; r < surface.Rows(); ++r)
            texts << surface.TextMatrix(r, 0);
        return texts;
    }

    std::shared_ptr<ado::Connection> connection = std::make_shared<ado::Connection>();
    ReportState state;
    ColumnList columns;
    GridSurface surface;
    Events events;
    ScriptedHost host;
    LoadHooks hooks;
    ColumnProperties properties{columns, surface, events};
    RowReader reader{state, properties, columns, surface, events, host, hooks};
    QStringList log;
    bool raisesTotals = true;
    double insertBefore = -1;
};

const QString kThree = u"select 1 as A union all select 2 union all select 3"_s;

} // namespace

TEST_F(RowReaderHooksTest, TotalsStartAtGridRowOneAndEndBehindTheLastRecord) {
    load(kThree, 6);
    EXPECT_EQ(log, (QStringList{u"row 1"_s, u"init"_s, u"row 2"_s, u"sum 2"_s, u"row 3"_s, u"sum 3"_s,
                                u"sum 4"_s, u"finish"_s}));
    EXPECT_TRUE(state.LoadFinished);
}

TEST_F(RowReaderHooksTest, WithoutSumsNothingIsAccumulated) {
    raisesTotals = false;
    load(kThree, 4);
    EXPECT_EQ(log, (QStringList{u"row 1"_s, u"init"_s, u"row 2"_s, u"row 3"_s}));
    EXPECT_FALSE(state.LoadFinished);
}

// The record that breaks a group is announced where it stands before the subtotal pushes it down.
TEST_F(RowReaderHooksTest, ASubtotalRowMovesTheFollowingRecordsOn) {
    insertBefore = 2;
    load(kThree, 6);
    EXPECT_EQ(log, (QStringList{u"row 1"_s, u"init"_s, u"row 2"_s, u"sum 2"_s, u"row 4"_s, u"sum 4"_s,
                                u"sum 5"_s, u"finish"_s}));
    EXPECT_EQ(surface.TextMatrix(2, 0), u"subtotal"_s);
    EXPECT_EQ(surface.TextMatrix(3, 0), u"2"_s);
    EXPECT_EQ(surface.TextMatrix(4, 0), u"3"_s);
}

// Keyed to grid row 1 and not to the first record; one heading row is the design.
TEST_F(RowReaderHooksTest, WithTwoFixedRowsThereAreNoTotals) {
    surface.setRows(5);
    surface.setFixedRows(2);
    load(kThree, 5);
    EXPECT_EQ(log, (QStringList{u"row 2"_s, u"row 3"_s, u"row 4"_s}));
}

TEST_F(RowReaderHooksTest, WithNoFixedRowTheSecondRecordStartsTheTotals) {
    surface.setFixedRows(0);
    load(kThree, 6);
    EXPECT_EQ(log, (QStringList{u"row 0"_s, u"row 1"_s, u"init"_s, u"row 2"_s, u"sum 2"_s, u"sum 3"_s,
                                u"finish"_s}));
}

TEST_F(RowReaderHooksTest, BlankRowsGoAfterTotalsButTheLastRowStays) {
    load(u"select 'a' as A union all select '' union all select 'b'"_s, 5);
    EXPECT_EQ(column(), (QStringList{u"a"_s, u"b"_s, u""_s}));
}

// After a removal the row above is passed over, as wanted: of two blank neighbours one stays.
TEST_F(RowReaderHooksTest, TheRowAboveARemovedOneIsPassedOver) {
    load(u"select 'a' as A union all select '  ' union all select '' union all select 'b'"_s, 6);
    EXPECT_EQ(column(), (QStringList{u"a"_s, u"  "_s, u"b"_s, u""_s}));
}

TEST_F(RowReaderHooksTest, AnEmptyRecordsetRaisesStartAndStop) {
    QObject::connect(&events, &Events::StartFilling, [this] { log << u"start"_s; });
    QObject::connect(&events, &Events::StopFillIng, [this] { log << u"stop"_s; });
    load(u"select 1 as A where 1=0"_s, 1);
    EXPECT_EQ(log, (QStringList{u"start"_s, u"stop"_s}));
}

TEST_F(RowReaderHooksTest, AClosedRecordsetRaisesNothing) {
    QObject::connect(&events, &Events::StartFilling, [this] { log << u"start"_s; });
    state.ReportRecordset = std::make_shared<ado::Recordset>();
    reader.LoadRows();
    state.ReportRecordset.reset();
    reader.LoadRows();
    EXPECT_EQ(log, QStringList{});
}

TEST_F(RowReaderHooksTest, TheSurfaceIsNotRedrawnWhileRowsAreRead) {
    bool drawn = true;
    int pointer = 0;
    state.PaintReady = state.ContentSeen = false;
    QObject::connect(&events, &Events::RetrieveRow, [&](RetrieveRowArgs&) {
        drawn = surface.Redraw();
        pointer = host.pointer();
    });
    load(kThree, 4);
    EXPECT_FALSE(drawn);
    EXPECT_EQ(pointer, kPointerHourglass);
    EXPECT_TRUE(surface.Redraw());
    EXPECT_TRUE(state.PaintReady && state.ContentSeen);
    EXPECT_EQ(host.pointer(), kPointerDefault);
}

TEST_F(RowReaderHooksTest, PercentColumnsOfATotalsReportAreAskedForByFieldAndRow) {
    raisesTotals = false;
    state.TotalForm = true;
    surface.setCols(2);
    properties.resize(2);
    columns.Item(2).Datafield = u"POS_PREMIUM"_s;
    hooks.PercentOfParent = [](const QString& field, int r) { return u"%1@%2"_s.arg(field).arg(r); };
    load(u"select 1 as A, 9 as POS_PREMIUM union all select 2, 9"_s, 3);
    EXPECT_EQ(surface.TextMatrix(1, 1), u"PREMIUM@1"_s);
    EXPECT_EQ(surface.TextMatrix(2, 1), u"PREMIUM@2"_s);
}

TEST_F(RowReaderHooksTest, AnExceptionOfAnyTypeEndsInTheReadersBox) {
    bool stopped = false;
    QObject::connect(&events, &Events::StopFillIng, [&] { stopped = true; });
    QObject::connect(&events, &Events::RetrieveRow, [](RetrieveRowArgs&) { throw 7; });
    load(kThree, 4);
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_TRUE(stopped);
}
