#include "load_fixture.h"

#include <QCoreApplication>

#include <stdexcept>

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

const QString kReadFailed = u"Σφάλμα κατά την ανάγνωση Data στο ZKP_GRID"_s;

/// What hosts do, or should not do, while rows are read.
class HandlersTest : public LoadTest {
protected:
    HandlersTest() {
        columns({u"POLICYID"_s});
        fill();
    }

    void onRow(std::function<void(RetrieveRowArgs&)> handler) {
        QObject::connect(&grid->events(), &Events::RetrieveRow, std::move(handler));
    }

    void expectUsable() {
        host->messages.clear();
        host->onPendingEvents = nullptr;
        grid->events().disconnect();
        columns({u"POLICYID"_s});
        fill();
        grid->refresh();
        EXPECT_EQ(report(), (QStringList{u"1: 1"_s, u"1: 2"_s, u"1: 3"_s}));
        EXPECT_TRUE(host->messages.empty());
        EXPECT_TRUE(grid->Redraw());
        EXPECT_EQ(host->pointer(), 0);
    }
};

} // namespace

TEST_F(HandlersTest, AHandlerSeesTheRecordAndMayChangeTheRowJustWritten) {
    onRow([&](RetrieveRowArgs& e) {
        const QString id = e.rsrc->Fields().Item(u"POLICYID").Value().toString();
        grid->setTextMatrix(static_cast<int>(e.rw), 0, u"Νο "_s + id);
    });
    grid->refresh();
    EXPECT_EQ(report(), (QStringList{u"1: Νο 1"_s, u"1: Νο 2"_s, u"1: Νο 3"_s}));
}

TEST_F(HandlersTest, TheRowThatAHandlerLeavesIsWhereTheReaderGoesOn) {
    onRow([](RetrieveRowArgs& e) {
        if (e.rw == 1)
            e.rw = 2;
    });
    grid->refresh();
    EXPECT_EQ(grid->TextMatrix(1, 0), u"1"_s);
    EXPECT_EQ(grid->TextMatrix(2, 0), u""_s);
    EXPECT_EQ(grid->TextMatrix(3, 0), u"2"_s);
    EXPECT_EQ(boxes(), QStringList{kReadFailed}); // the third record has no row left
    expectUsable();
}

TEST_F(HandlersTest, ColumnsChangedOnTheWayCountFromTheNextRecordOn) {
    columns({u"POLICYID"_s, u"PREMIUM"_s});
    onRow([&](RetrieveRowArgs& e) {
        if (e.rw == 1)
            grid->setEuroVer(false);
        if (e.rw == 2)
            grid->setColDataField(1, u"AGENTNAME"_s);
    });
    grid->refresh();
    EXPECT_EQ(report(), (QStringList{u"1: 1 | 1.234,50"_s, u"1: 2 | 0"_s, u"1: 3 | "_s}));
}

TEST_F(HandlersTest, AHandlerThatThrowsEndsTheLoadAndTheRowsStay) {
    logEvents();
    onRow([](RetrieveRowArgs& e) {
        if (e.rw == 2)
            throw std::runtime_error("no");
    });
    grid->refresh();
    EXPECT_EQ(boxes(), QStringList{kReadFailed});
    EXPECT_EQ(log, (QStringList{u"Start"_s, u"Row 1"_s, u"Row 2"_s, u"Stop"_s}));
    EXPECT_EQ(grid->TextMatrix(2, 0), u"2"_s);
    EXPECT_EQ(grid->TextMatrix(3, 0), u""_s);
    expectUsable();
}

TEST_F(HandlersTest, AHandlerOfStartFillingThatThrowsEndsTheLoad) {
    QObject::connect(&grid->events(), &Events::StartFilling, [] { throw Error(1, u"no"_s); });
    grid->refresh();
    EXPECT_EQ(boxes(), QStringList{kReadFailed});
    expectUsable();
}

TEST_F(HandlersTest, AHandlerOfStopFillIngThatThrowsShowsTheErrorBox) {
    QObject::connect(&grid->events(), &Events::StopFillIng, [] { throw Error(1, u"no"_s); });
    grid->refresh();
    EXPECT_EQ(boxes(), QStringList{u"Παρουσιάστικε Εξαίρεση : \r\rNO\r\r"_s});
    expectUsable();
}

TEST_F(HandlersTest, ARecordsetClosedHalfWayEndsTheLoad) {
    onRow([](RetrieveRowArgs& e) {
        if (e.rw == 2)
            e.rsrc->Close();
    });
    grid->refresh();
    EXPECT_EQ(boxes(), QStringList{kReadFailed});
    EXPECT_EQ(grid->TextMatrix(2, 0), u"2"_s);
    expectUsable();
}

TEST_F(HandlersTest, AConnectionClosedHalfWayDoesNotMatter) {
    onRow([&](RetrieveRowArgs&) {
        if (connection->State() == ado::adStateOpen)
            connection->Close();
    });
    grid->refresh();
    EXPECT_EQ(report(), (QStringList{u"1: 1"_s, u"1: 2"_s, u"1: 3"_s}));
    grid->events().disconnect();
    grid->refresh();
    EXPECT_EQ(boxes().size(), 1); // a closed connection, in its own words
}

TEST_F(HandlersTest, AHandlerThatLoadsAgainIsToldOnceAndTheLoadGoesOn) {
    onRow([&](RetrieveRowArgs&) { grid->refresh(); });
    grid->refresh();
    EXPECT_EQ(boxes(), QStringList{u"Παρουσιάστικε Εξαίρεση : \r\rA LOAD IS RUNNING ALREADY.\r\r"_s});
    EXPECT_EQ(report(), (QStringList{u"1: 1"_s, u"1: 2"_s, u"1: 3"_s}));
    expectUsable();
}

TEST_F(HandlersTest, APendingEventThatLoadsAgainIsToldAndTheLoadGoesOn) {
    host->onPendingEvents = [&] { grid->refresh(); };
    grid->refresh();
    EXPECT_EQ(boxes().size(), 1);
    EXPECT_EQ(report().size(), 3);
    expectUsable();
}

TEST_F(HandlersTest, AHandlerMayChangeTheNumberOfColumns) {
    onRow([&](RetrieveRowArgs& e) {
        if (e.rw == 1)
            grid->setCols(3);
        if (e.rw == 2)
            grid->setCols(1);
    });
    grid->refresh();
    EXPECT_EQ(report(), (QStringList{u"1: 1"_s, u"1: 2"_s, u"1: 3"_s}));
    expectUsable();
}

TEST_F(HandlersTest, AHandlerThatDropsTheRowsEndsTheLoad) {
    onRow([&](RetrieveRowArgs&) { grid->setRows(1); });
    grid->refresh();
    EXPECT_EQ(boxes(), QStringList{kReadFailed});
    expectUsable();
}

TEST_F(HandlersTest, AHandlerThatGivesAnotherSourceChangesTheNextLoad) {
    onRow([&](RetrieveRowArgs& e) {
        if (e.rw == 1)
            grid->setRecordSource(u"select 9 as POLICYID"_s);
    });
    grid->refresh();
    EXPECT_EQ(report(), (QStringList{u"1: 1"_s, u"1: 2"_s, u"1: 3"_s}));
    grid->refresh();
    EXPECT_EQ(report(), QStringList{u"1: 9"_s});
}

TEST_F(HandlersTest, APendingEventMayTakeTheSourceAway) {
    host->onPendingEvents = [&] { grid->setRecordSource(u"select 9 as POLICYID"_s); };
    grid->refresh();
    EXPECT_EQ(boxes().size(), 1);
    expectUsable();
}

TEST_F(HandlersTest, APendingEventThatThrowsShowsTheErrorBox) {
    host->onPendingEvents = [] { throw Error(1, u"no"_s); };
    grid->refresh();
    EXPECT_EQ(boxes(), QStringList{u"Παρουσιάστικε Εξαίρεση : \r\rNO\r\r"_s});
    expectUsable();
}

TEST_F(HandlersTest, AnyHandlerMayDestroyTheControl) {
    onRow([&](RetrieveRowArgs& e) {
        if (e.rw == 2)
            grid.reset();
    });
    grid->refresh();
    EXPECT_EQ(grid, nullptr);
    EXPECT_TRUE(host->messages.empty());
    EXPECT_EQ(host->pointer(), 0);
}

TEST_F(HandlersTest, StartAndStopHandlersAndPendingEventsMayDestroyTheControl) {
    QObject::connect(&grid->events(), &Events::StartFilling, [&] { grid.reset(); });
    grid->refresh();
    EXPECT_EQ(grid, nullptr);

    const auto fresh = [&] {
        grid = std::make_unique<ZkpGrid>(host);
        columns({u"POLICYID"_s});
        fill();
    };
    fresh();
    QObject::connect(&grid->events(), &Events::StopFillIng, [&] { grid.reset(); });
    grid->refresh();
    EXPECT_EQ(grid, nullptr);

    fresh();
    host->onPendingEvents = [&] { grid.reset(); };
    grid->refresh();
    EXPECT_EQ(grid, nullptr);
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(HandlersTest, AHandlerThatOpensOtherRecordsIsFollowed) {
    onRow([&](RetrieveRowArgs& e) {
        if (e.rw != 1)
            return;
        e.rsrc->Close();
        e.rsrc->Open(u"select 'p' as POLICYID union all select 'q' union all select 'r'"_s, connection);
    });
    grid->refresh();
    EXPECT_EQ(report(), (QStringList{u"1: 1"_s, u"1: q"_s, u"1: r"_s}));
    expectUsable();
}

TEST_F(HandlersTest, AHandlerThatOpensMoreRecordsReadsNoneBeyondTheRows) {
    onRow([&](RetrieveRowArgs& e) {
        if (e.rw != 1)
            return;
        e.rsrc->Close();
        e.rsrc->Open(u"with recursive n(i) as (select 1 union all select i+1 from n where i < 5000) "
                     "select i as POLICYID from n"_s,
                     connection);
        e.rsrc->setAbsolutePosition(4000);
    });
    grid->refresh();
    EXPECT_EQ(grid->TextMatrix(2, 0), u"4001"_s);
    EXPECT_EQ(boxes(), QStringList{kReadFailed});
    expectUsable();
}

TEST_F(HandlersTest, AHandlerThatChangesAColumnAndLeavesIsFollowed) {
    columns({u"POLICYID"_s, u"PREMIUM"_s});
    QMetaObject::Connection once;
    once = QObject::connect(&grid->events(), &Events::RetrieveRow, [&](RetrieveRowArgs&) {
        grid->setColDataField(1, u"POLICYID"_s);
        QObject::disconnect(once);
    });
    grid->refresh();
    EXPECT_EQ(report(), (QStringList{u"1: 1 | 1.234,50"_s, u"1: 2 | 2"_s, u"1: 3 | 3"_s}));
}

TEST_F(HandlersTest, StartFillingMayGiveOtherRecords) {
    auto other = std::make_shared<ado::Recordset>();
    other->Open(u"select 8 as POLICYID union all select 9"_s, connection);
    QObject::connect(&grid->events(), &Events::StartFilling, [&] {
        grid->setSourceType(ZKP_RecordSet);
        grid->setRecordSource(QVariant::fromValue(other));
    });
    grid->refresh();
    EXPECT_EQ(report().mid(0, 2), (QStringList{u"1: 8"_s, u"1: 9"_s}));
}

TEST_F(HandlersTest, AFilterHandlerThatTakesTheSourceAwayGetsABox) {
    QObject::connect(&grid->events(), &Events::PropertyChanged, [&](PropertyArgs& e) {
        if (e.name == u"Filter"_s)
            grid->setRecordSource(u"POLICIES"_s);
    });
    grid->setFilter(u""_s);
    grid->Fill(connection, u"POLICIES"_s, ZKP_Table_QUERY);
    grid->refresh();
    EXPECT_EQ(boxes().size(), 1);
}

TEST_F(HandlersTest, APropertyHandlerMayDestroyTheControlInTheMiddleOfAnOperation) {
    QObject::connect(&grid->events(), &Events::PropertyChanged, [&](PropertyArgs&) { grid.reset(); });
    ZkpGrid* control = grid.get();
    control->InsertColumn(0);
    EXPECT_EQ(grid, nullptr);
}

// The rows are read once; who asks again meanwhile is refused, and the report is whole.
TEST_F(HandlersTest, ReadingRowsWhileRowsAreReadIsRefused) {
    columns({u"POLICYID"_s});
    grid->setColTotals(0, true);
    std::uint32_t refused = 0;
    QObject::connect(&grid->events(), &Events::RetrieveRow,
                     [&](RetrieveRowArgs&) { refused = errorNumber([&] { grid->LoadRows(); }); });
    fill();
    grid->refresh();
    EXPECT_EQ(refused, std::uint32_t{kErrIllegalOperation});
    EXPECT_EQ(report(), (QStringList{u"1: 1,00"_s, u"1: 2,00"_s, u"1: 3,00"_s, u"10: 6,00"_s}));
}

// Sums that are started anew for another shape under a load end it with a box.
TEST_F(HandlersTest, SumsStartedAnewUnderALoadDoNoHarm) {
    columns({u"AGENTNAME"_s, u"POLICYID"_s});
    grid->setColForTot(0, true);
    grid->setColTotals(1, true);
    QObject::connect(&grid->events(), &Events::RetrieveRow, [&](RetrieveRowArgs& e) {
        if (e.rw != 2)
            return;
        grid->setColForTot(0, false);
        grid->CheckGroupBy();
        grid->setCols(1);
        grid->InitTotalsGrid();
    });
    fill();
    grid->refresh();
    EXPECT_LE(boxes().size(), 1);
}

TEST_F(HandlersTest, AnErrorSinkMayReplaceItself) {
    int calls = 0;
    grid->setCn(nullptr);
    grid->setErrorSink([&](const Error&) {
        ++calls;
        grid->setErrorSink({});
    });
    EXPECT_EQ(errorNumber([&] { grid->refresh(); }), kErrPropertyNotSet);
    EXPECT_EQ(calls, 1);
}
