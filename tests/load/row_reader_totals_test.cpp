#include "core/paint_scopes.h"
#include "core/report_state.h"
#include "load/row_reader.h"

#include "host/scripted_host.h"
#include "print_qt.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

/// The row reader with the parts that make group rows, over a surface of two columns: a text that is no
/// factor unless a test says so, and a summed amount.
class RowReaderTotalsTest : public testing::Test {
protected:
    RowReaderTotalsTest() {
        connection->Open(u"sqlite:"_s);
        surface.setLocale(ReportLocale(QLocale(u"el_GR"_s)));
        surface.setCols(2);
        properties.resize(2);
        columns.Item(1).Datafield = u"A"_s;
        columns.Item(2).Datafield = u"N"_s;
        columns.Item(2).Totals = true;
        hooks.DrawInterface = [this] { log << u"draw"_s; };
    }

    void factor() {
        columns.Item(1).ForTot = true;
        state.grouping.GroupFactorCount = 1;
    }

    void hear() {
        QObject::connect(&events, &Events::RetrieveRow,
                         [this](RetrieveRowArgs& e) { log << u"row %1"_s.arg(e.rw); });
    }

    void load(const QString& statement, int rows) {
        state.source.ReportRecordset = std::make_shared<ado::Recordset>();
        state.source.ReportRecordset->Open(statement, connection);
        surface.setRows(surface.FixedRows());
        surface.setRows(rows);
        reader.LoadRows();
    }

    /// The rows below the heading: "kind: cell | cell".
    QStringList report() const {
        QStringList rows;
        for (int r = 1; r < surface.Rows(); ++r)
            rows << u"%1: %2 | %3"_s.arg(surface.RowData(r))
                        .arg(surface.TextMatrix(r, 0), surface.TextMatrix(r, 1));
        return rows;
    }

    std::shared_ptr<ado::Connection> connection = std::make_shared<ado::Connection>();
    ReportState state;
    ColumnList columns;
    GridSurface surface;
    Events events;
    ScriptedHost host;
    Reporting reporting{state.lifetime, host};
    LoadHooks hooks;
    ColumnProperties properties{columns, surface, events};
    LoadNotes notes;
    Percentages percentages{state.source, state.grouping, columns, surface, host, notes};
    GroupRows groups{state.data, state.grouping, state.load, columns, surface, percentages};
    TotalsRows totals{state.data, state.load, state.notices, state.sections,
                      columns,    surface,    groups.sums(), hooks};
    RowReader reader{state.data, state.source, state.load, state.lifetime, state.notices,
                     properties, columns,      surface,    events,         host,
                     host,       reporting,    groups,     totals,         percentages};
    QStringList log;
};

const QString kThree = u"select 'a' as A, 1 as N union all select 'b', 2 union all select 'b', 4"_s;
const QStringList kGrouped{u"1: a | 1,00"_s, u"9: a | 1,00"_s, u"1: b | 2,00"_s,
                           u"1: b | 4,00"_s, u"9: b | 6,00"_s, u"10:   | 7,00"_s};

} // namespace

// A record that breaks a group is announced where the subtotal has left it for the next one.
TEST_F(RowReaderTotalsTest, ASubtotalRowMovesTheFollowingRecordsOn) {
    factor();
    hear();
    load(kThree, 4);
    EXPECT_EQ(log, (QStringList{u"row 1"_s, u"row 2"_s, u"row 4"_s, u"draw"_s}));
    EXPECT_EQ(report(), kGrouped);
    EXPECT_TRUE(state.load.isFinished());
}

// Rows that nobody hears about are summed and bound by runs of equal keys; the report is the same.
TEST_F(RowReaderTotalsTest, UnheardRowsGiveTheSameReport) {
    factor();
    load(kThree, 4);
    EXPECT_EQ(log, QStringList{u"draw"_s});
    EXPECT_EQ(report(), kGrouped);
}

TEST_F(RowReaderTotalsTest, WithoutSumsThereAreNoTotals) {
    columns.Item(2).Totals = false;
    factor();
    load(kThree, 4);
    EXPECT_EQ(report(), (QStringList{u"1: a | 1"_s, u"1: b | 2"_s, u"1: b | 4"_s}));
    EXPECT_FALSE(state.load.areTotalsNeeded());
    EXPECT_FALSE(state.load.isFinished());
}

// The mark of a report with sums is only ever raised; a later report without them keeps all its rows.
TEST_F(RowReaderTotalsTest, TheMarkOfTotalsStaysAndHarmsNoLaterReport) {
    load(kThree, 4);
    columns.Item(2).Totals = false;
    load(kThree, 4);
    EXPECT_TRUE(state.load.areTotalsNeeded());
    EXPECT_EQ(report(), (QStringList{u"1: a | 1"_s, u"1: b | 2"_s, u"1: b | 4"_s}));
}

// Keyed to grid row 1 and not to the first record; one heading row is the design.
TEST_F(RowReaderTotalsTest, WithTwoFixedRowsThereAreNoTotals) {
    surface.setRows(5);
    surface.setFixedRows(2);
    load(kThree, 5);
    EXPECT_FALSE(state.load.areTotalsNeeded());
    EXPECT_EQ(surface.Rows(), 5);
}

TEST_F(RowReaderTotalsTest, WithNoFixedRowTheSecondRecordStartsTheTotals) {
    surface.setFixedRows(0);
    load(kThree, 3);
    EXPECT_EQ(report(), (QStringList{u"1: b | 2,00"_s, u"1: b | 4,00"_s, u"10:   | 6,00"_s}));
}

TEST_F(RowReaderTotalsTest, RowCapacityFollowsItsOwnCount) {
    factor();
    state.load.makeRoom(3);
    load(kThree, 4);
    EXPECT_EQ(state.load.rowCapacity(), 4 + 2 - 1); // two subtotal rows, less the row that goes at the end
}

TEST_F(RowReaderTotalsTest, BlankRowsGoAfterTotalsButTheLastRowStays) {
    columns.Item(2).Datafield = u" "_s;
    load(u"select 'a' as A union all select '' union all select 'b'"_s, 4);
    EXPECT_EQ(report(), (QStringList{u"1: a | "_s, u"1: b | "_s, u"10:   | 0,00"_s}));
}

// After a removal the row above is passed over, as wanted: of two blank neighbours one stays.
TEST_F(RowReaderTotalsTest, TheRowAboveARemovedOneIsPassedOver) {
    columns.Item(2).Datafield = u" "_s;
    load(u"select 'a' as A union all select '  ' union all select '' union all select 'b'"_s, 5);
    EXPECT_EQ(report(), (QStringList{u"1: a | "_s, u"1:    | "_s, u"1: b | "_s, u"10:   | 0,00"_s}));
}

TEST_F(RowReaderTotalsTest, AnEmptyRecordsetRaisesStartAndStop) {
    QObject::connect(&events, &Events::StartFilling, [this] { log << u"start"_s; });
    QObject::connect(&events, &Events::StopFillIng, [this] { log << u"stop"_s; });
    load(u"select 1 as A, 1 as N where 1=0"_s, 1);
    EXPECT_EQ(log, (QStringList{u"start"_s, u"stop"_s}));
}

TEST_F(RowReaderTotalsTest, AClosedRecordsetRaisesNothing) {
    QObject::connect(&events, &Events::StartFilling, [this] { log << u"start"_s; });
    state.source.ReportRecordset = std::make_shared<ado::Recordset>();
    reader.LoadRows();
    state.source.ReportRecordset.reset();
    reader.LoadRows();
    EXPECT_EQ(log, QStringList{});
}

TEST_F(RowReaderTotalsTest, TheSurfaceIsNotRedrawnWhileRowsAreRead) {
    bool drawn = true;
    int pointer = 0;
    const SelectionQuiet quiet(state.notices);
    QObject::connect(&events, &Events::RetrieveRow, [&](RetrieveRowArgs&) {
        drawn = surface.Redraw();
        pointer = host.pointer();
    });
    load(kThree, 4);
    EXPECT_FALSE(drawn);
    EXPECT_EQ(pointer, kPointerHourglass);
    EXPECT_TRUE(surface.Redraw());
    EXPECT_TRUE(state.notices.isHeard() && state.notices.isContentSeen());
    EXPECT_EQ(host.pointer(), kPointerDefault);
}

TEST_F(RowReaderTotalsTest, AnExceptionOfAnyTypeEndsInTheReadersBox) {
    bool stopped = false;
    QObject::connect(&events, &Events::StopFillIng, [&] { stopped = true; });
    QObject::connect(&events, &Events::RetrieveRow, [](RetrieveRowArgs&) { throw 7; });
    load(kThree, 4);
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_TRUE(stopped);
}
