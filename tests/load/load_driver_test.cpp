#include "load_fixture.h"

using namespace Qt::StringLiterals;
using namespace zkp;

using LoadDriverTest = LoadTest;

TEST_F(LoadDriverTest, FillAloneShowsNothing) {
    columns({u"AGENTNAME"_s});
    const int rows = grid->Rows();
    fill();
    EXPECT_EQ(grid->Rows(), rows);
    EXPECT_EQ(grid->RecCount(), 0);
}

TEST_F(LoadDriverTest, FillStoresWhatItIsGiven) {
    grid->Fill(connection, u"POLICIES"_s, ZKP_Table_QUERY);
    EXPECT_EQ(grid->Cn(), connection);
    EXPECT_EQ(grid->SourceType(), ZKP_Table_QUERY);
    EXPECT_EQ(grid->RecordsourceSTR(), u"POLICIES"_s);
}

TEST_F(LoadDriverTest, ALoadSizesTheSurfaceToTheRecordsAndOneHeadingRow) {
    columns({u"POLICYID"_s});
    fill();
    grid->refresh();
    EXPECT_EQ(grid->Rows(), 4);
    EXPECT_EQ(grid->RecCount(), 3);
    EXPECT_EQ(grid->Row(), 1);
    EXPECT_TRUE(grid->Redraw());
    EXPECT_EQ(host->pointer(), 0);
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(LoadDriverTest, TheBandShowsTheCountWithNumberSignAndBlank) {
    fill();
    grid->refresh();
    EXPECT_EQ(grid->Picture1().Bands(u"BndTemplate").Tools(u"txtRecs").Text, u"3# "_s);
}

TEST_F(LoadDriverTest, AnEmptyResultLeavesTheHeadingAndTheFormerCountText) {
    columns({u"POLICYID"_s});
    fill();
    grid->refresh();
    logEvents();
    fill(u"select * from POLICIES where 1=0"_s);
    grid->refresh();
    EXPECT_EQ(grid->Rows(), 1);
    EXPECT_EQ(grid->RecCount(), 0);
    EXPECT_EQ(log, QStringList{}); // the row reader does not run
    EXPECT_EQ(grid->Picture1().Tools(u"txtRecs").Text, u"3# "_s);
}

TEST_F(LoadDriverTest, WithTwoFixedRowsAnEmptyResultKeepsThem) {
    grid->setRows(3);
    grid->setFixedRows(2);
    fill(u"select * from POLICIES where 1=0"_s);
    grid->refresh();
    EXPECT_EQ(grid->Rows(), 2);
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(LoadDriverTest, RecCountMinusOneCountsAsNoRecords) {
    columns({u"POLICYID"_s});
    fill();
    grid->setRecCount(-1);
    grid->refresh();
    EXPECT_EQ(grid->Rows(), 1);
    EXPECT_EQ(grid->RecCount(), 0);
    grid->refresh(); // the count of 0 is not -1
    EXPECT_EQ(grid->Rows(), 4);
}

TEST_F(LoadDriverTest, RecCountMinusOneIsNotLookedAtWithRunTimeStatements) {
    columns({u"POLICYID"_s});
    fill();
    grid->setSqlOnRunTime(true);
    grid->setRecCount(-1);
    grid->refresh();
    EXPECT_EQ(grid->RecCount(), 3);
}

TEST_F(LoadDriverTest, RefreshOnChangeFalseChangesNoRow) {
    columns({u"POLICYID"_s});
    fill();
    grid->refresh();
    fill(u"select * from POLICIES where POLICYID=1"_s);
    grid->setRefreshOnChange(false);
    grid->refresh();
    EXPECT_EQ(grid->Rows(), 4);
    EXPECT_EQ(grid->RecCount(), 3);
}

TEST_F(LoadDriverTest, RefreshWithoutAConnectionThrowsAndLoadsNothing) {
    grid->setCn(nullptr);
    grid->setSourceType(ZKP_SQLStatement);
    for (const int kind : {ZKP_SQLStatement, ZKP_Table_QUERY}) {
        grid->setSourceType(kind);
        const Error error = errorOf([&] { grid->refresh(); });
        EXPECT_EQ(error.number(), 0x8004000Au);
        EXPECT_EQ(error.description(), u"The Property Cn Hasn't Been set!"_s);
    }
    EXPECT_EQ(grid->Rows(), 2);
    EXPECT_EQ(host->pointer(), 0);
    EXPECT_EQ(grid->MousePointer(), 0);
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(LoadDriverTest, RefreshOfAMissingRecordsetThrows) {
    grid->setSourceType(ZKP_RecordSet);
    const Error error = errorOf([&] { grid->refresh(); });
    EXPECT_EQ(error.number(), 0x8004000Au);
    EXPECT_EQ(error.description(), u"The Property RecordSource Hasn't Been set!"_s);
}

TEST_F(LoadDriverTest, AMissingCommandAndConnectionFailTwiceAndThrowTheFirst) {
    std::vector<std::pair<std::uint32_t, QString>> failures;
    grid->setErrorSink(
        [&](const Error& error) { failures.emplace_back(error.number(), error.description()); });
    grid->setCn(nullptr);
    grid->setSourceType(ZKP_Command);
    EXPECT_EQ(errorNumber([&] { grid->refresh(); }), 0x80040014u);
    ASSERT_EQ(failures.size(), 2u);
    EXPECT_EQ(failures[0].second, u"The Property RecordSource As ADODB.Command Hasn't Been set!"_s);
    EXPECT_EQ(failures[1].first, 0x8004000Au);
    EXPECT_EQ(failures[1].second, u"The Property Cn Hasn't Been set!"_s);
}

TEST_F(LoadDriverTest, AKindAboveThreePassesTheChecksAndFailsInItsBox) {
    grid->setSourceType(4);
    grid->refresh();
    ASSERT_EQ(host->messages.size(), 1u);
    EXPECT_EQ(host->messages[0].title, u"QRN Insurance"_s);
    EXPECT_EQ(host->messages[0].style, 16);
    EXPECT_TRUE(grid->Redraw());
}

TEST_F(LoadDriverTest, ABadStatementShowsItsOwnWordsAndReleasesTheRecordSource) {
    fill();
    grid->refresh();
    fill(u"select NOTHING from POLICIES"_s);
    grid->refresh();
    ASSERT_EQ(host->messages.size(), 1u);
    EXPECT_TRUE(host->messages[0].text.contains(u"NOTHING"_s));
    EXPECT_EQ(host->messages[0].style, 16);
    EXPECT_EQ(host->messages[0].title, u""_s);
    EXPECT_EQ(grid->RecordSource().value<ado::RecordsetPtr>(), nullptr);
    EXPECT_EQ(grid->Rows(), 4); // the old rows stay
    fill();
    grid->refresh(); // and the control works on
    EXPECT_EQ(host->messages.size(), 1u);
}

TEST_F(LoadDriverTest, TheConnectionsTimeOutComesBack) {
    connection->setCommandTimeout(77);
    grid->setCommandTimeout(5);
    fill();
    grid->refresh();
    EXPECT_EQ(connection->CommandTimeout(), 77);
    fill(u"select * from NOWHERE"_s);
    grid->refresh();
    EXPECT_EQ(connection->CommandTimeout(), 77);
}

TEST_F(LoadDriverTest, TheStatementRunsUnderTheControlsTimeOut) {
    grid->setCommandTimeout(1);
    fill(
        u"with recursive n(i) as (select 1 union all select i+1 from n where i < 500000000) select count(*) from n"_s);
    grid->refresh();
    ASSERT_EQ(host->messages.size(), 1u);
    EXPECT_EQ(connection->CommandTimeout(), 30);
    columns({u"POLICYID"_s});
    fill();
    grid->refresh();
    EXPECT_EQ(grid->Rows(), 4);
}

TEST_F(LoadDriverTest, TheFirstDataRowBecomesCurrent) {
    columns({u"POLICYID"_s});
    fill();
    grid->refresh();
    grid->setRow(3);
    grid->refresh();
    EXPECT_EQ(grid->Row(), 1);
    EXPECT_EQ(grid->TopRow(), 1);
}

TEST_F(LoadDriverTest, TheBodysColoursAreWrittenAnew) {
    columns({u"POLICYID"_s});
    grid->setRow(1);
    grid->setCellBackColor(0x00FF00FF);
    fill();
    grid->refresh();
    EXPECT_EQ(grid->MSFlexGrid1().styleAt(1, 0).backColor, grid->BackColor());
}

TEST_F(LoadDriverTest, PendingEventsRunOnceWhenThereAreRecords) {
    int runs = 0;
    host->onPendingEvents = [&] { ++runs; };
    fill();
    grid->refresh();
    EXPECT_EQ(runs, 1);
    fill(u"select * from POLICIES where 1=0"_s);
    grid->refresh();
    EXPECT_EQ(runs, 1);
}

TEST_F(LoadDriverTest, CancelLoadAndStopSearchStopNothing) {
    columns({u"POLICYID"_s});
    QObject::connect(&grid->events(), &Events::RetrieveRow, [&](RetrieveRowArgs&) {
        grid->CancelLoad();
        grid->StopSearch();
    });
    fill();
    grid->refresh();
    EXPECT_EQ(report(), (QStringList{u"1: 1"_s, u"1: 2"_s, u"1: 3"_s}));
}

TEST_F(LoadDriverTest, ATotalsReportWithoutFactorsHasNoStatementAndShowsTheErrorBox) {
    connection->Execute(u"create table QRN_Main (GenKey integer, GenSubKey integer, GenValue text)"_s);
    connection->Execute(u"insert into QRN_Main values (2,6,'30'),(2,7,'300')"_s);
    grid->setTotalForm(true);
    fill();
    grid->refresh();
    ASSERT_EQ(host->messages.size(), 1u);
    EXPECT_EQ(host->messages[0].title, u"QRN Insurance"_s);
    EXPECT_TRUE(grid->Redraw());
}

namespace {

const QString kManyRows = u"with recursive n(i) as (select 1 union all select i+1 from n where i < 30000) "
                          "select i as POLICYID from n"_s;

} // namespace

TEST_F(LoadDriverTest, TheControlsTimeOutIsInForceWhileRecordsAreFetched) {
    connection->setCommandTimeout(77);
    grid->setCommandTimeout(5);
    int during = 0;
    connection->setFetchProgress([&](std::int64_t) { during = connection->CommandTimeout(); });
    fill(kManyRows);
    grid->refresh();
    EXPECT_EQ(during, 5);
    EXPECT_EQ(connection->CommandTimeout(), 77);
}

TEST_F(LoadDriverTest, AFailureWhileRecordsAreFetchedShowsABoxAndTheConnectionWorksOn) {
    connection->setFetchProgress([](std::int64_t) { throw Error(7, u"enough"_s); });
    fill(kManyRows);
    grid->refresh();
    EXPECT_EQ(boxes(), QStringList{u"enough"_s});
    connection->setFetchProgress({});
    columns({u"POLICYID"_s});
    fill();
    grid->refresh();
    EXPECT_EQ(report().size(), 3);
}

TEST_F(LoadDriverTest, TheControlMayBeDestroyedWhileRecordsAreFetched) {
    connection->setFetchProgress([&](std::int64_t) { grid.reset(); });
    fill(kManyRows);
    grid->refresh();
    EXPECT_EQ(grid, nullptr);
    EXPECT_TRUE(host->messages.empty());
    EXPECT_EQ(connection->CommandTimeout(), 30);
}

TEST_F(LoadDriverTest, FillLooksUpTheRightsOfAUserAndOfNobodyElse) {
    grid->Fill(connection, u"POLICIES"_s, ZKP_Table_QUERY, u""_s);
    grid->Fill(connection, u"POLICIES"_s, ZKP_Table_QUERY, u"-1"_s);
    // There is no procedure here: a look-up fails, and the failure reaches the caller.
    EXPECT_NE(errorNumber([&] { grid->Fill(connection, u"POLICIES"_s, ZKP_Table_QUERY, u"P1"_s); }), 0u);
    EXPECT_EQ(grid->RecordsourceSTR(), u"POLICIES"_s); // what stands before the look-up is stored
}

TEST_F(LoadDriverTest, ARemoteFlagOutOfRangeIsAnOverflow) {
    EXPECT_EQ(errorNumber([&] { grid->Fill(connection, u"POLICIES"_s, ZKP_Table_QUERY, u""_s, 40000); }),
              kErrOverflow);
}

TEST_F(LoadDriverTest, FillGridNeedsNoCheckedEntry) {
    columns({u"POLICYID"_s});
    fill();
    grid->FillGrid();
    EXPECT_EQ(report().size(), 3);
}

TEST_F(LoadDriverTest, FillGridWithoutAConnectionShowsABoxOfItsOwn) {
    grid->setCn(nullptr);
    grid->FillGrid();
    ASSERT_EQ(host->messages.size(), 1u);
    EXPECT_EQ(host->messages[0].style, 16);
    EXPECT_EQ(host->messages[0].title, u""_s);
    EXPECT_EQ(grid->RecordSource().value<ado::RecordsetPtr>(), nullptr);
}

TEST_F(LoadDriverTest, ARecordsetLoadWithoutAConnectionShowsABoxOfItsOwn) {
    auto records = std::make_shared<ado::Recordset>();
    records->Open(u"select 1 as A"_s, connection);
    grid->Fill(nullptr, QVariant::fromValue(records), ZKP_RecordSet);
    grid->refresh(); // the check asks for the recordset only
    EXPECT_EQ(boxes().size(), 1);
    EXPECT_EQ(grid->RecordSource().value<ado::RecordsetPtr>(), nullptr);
}

TEST_F(LoadDriverTest, ALoadWithTotalsPaintsWhenTheyStandAndOnceMoreAtItsEnd) {
    columns({u"POLICYID"_s});
    grid->setColTotals(0, true);
    const Events& events = grid->events();
    QObject::connect(&events, &Events::StartFilling, [this] { log << u"filling"_s; });
    QObject::connect(&events, &Events::StopFillIng, [this] { log << u"filled"_s; });
    QObject::connect(&events, &Events::StartInterface, [this] { log << u"painting"_s; });
    QObject::connect(&events, &Events::StopInterface, [this] { log << u"painted"_s; });
    fill();
    grid->refresh();
    EXPECT_EQ(log, (QStringList{u"filling"_s, u"painting"_s, u"painted"_s, u"filled"_s, u"painting"_s,
                                u"painted"_s}));
}

TEST_F(LoadDriverTest, ThePointerIsTheHourglassDuringALoadAndTheDefaultAfterIt) {
    QList<int> pointers;
    QObject::connect(&grid->events(), &Events::StartFilling, [&] { pointers << host->pointer(); });
    fill();
    grid->refresh();
    fill(u"select 1 as A where 1=0"_s);
    grid->refresh();
    EXPECT_EQ(pointers, QList<int>{kPointerHourglass});
    EXPECT_EQ(host->pointer(), kPointerDefault);
}
