#include "load_fixture.h"

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

/// What a load leaves behind for whoever asks how it went.
class LoadOutcomeTest : public LoadTest {
protected:
    LoadOutcome load() {
        grid->refresh();
        return grid->lastLoad();
    }

    /// An empty one, for tables and for totals.
    void makeDictionary() {
        connection->Execute(
            u"create table DICT (DTFLD text, CPTN text, VISBL bit, ISPUBLIC bit, ISGROUP bit, "
            "[SUM] bit, [AVG] bit, [MIN] bit, [MAX] bit, SOURCEFIELDNAME text, EXPR text, "
            "SOURCETABLENAME text, KEYMASTER text, FOREIGNKEY text, WDTH money, ISTOT bit, ALGN integer)"_s);
        grid->setclmns(u"DICT"_s);
    }

    Listening listen(QStringList& told) {
        return grid->listenToLoads(
            {.begins = [&told] { told << u"begins"_s; },
             .ended = [&told](const LoadOutcome& outcome) { told << QString::number(outcome.result); }});
    }
};

} // namespace

TEST_F(LoadOutcomeTest, BeforeTheFirstLoadThereIsNone) {
    EXPECT_EQ(grid->lastLoad().result, ZKPLoadNone);
    EXPECT_FALSE(grid->lastLoad().failure);
    EXPECT_FALSE(grid->isLoading());
}

TEST_F(LoadOutcomeTest, AStatementOfTheHosts) {
    const QString statement = u"select POLICYID from POLICIES where AGENTNAME='x' or POLICYID > 1"_s;
    fill(statement);
    const LoadOutcome outcome = load();
    EXPECT_EQ(outcome.result, ZKPLoaded);
    EXPECT_EQ(outcome.built, statement);
    EXPECT_EQ(outcome.sent,
              u"select POLICYID from POLICIES where AGENTNAME='x' COLLATE ZKP_TEXT or POLICYID > 1"_s);
    EXPECT_EQ(outcome.records, 2);
    EXPECT_FALSE(outcome.failure);
    EXPECT_GT(outcome.firstRecordMs, 0);
    EXPECT_GE(outcome.lastRecordMs, outcome.firstRecordMs);
}

TEST_F(LoadOutcomeTest, AReportWithoutRecordsIsLoaded) {
    fill(u"select * from POLICIES where 1=0"_s);
    const LoadOutcome outcome = load();
    EXPECT_EQ(outcome.result, ZKPLoaded);
    EXPECT_EQ(outcome.records, 0);
    EXPECT_GT(outcome.firstRecordMs, 0);
    EXPECT_EQ(outcome.lastRecordMs, outcome.firstRecordMs);
}

TEST_F(LoadOutcomeTest, ATableIsReadByTheStatementThatItsBuilderMade) {
    columns({u"POLICYID"_s, u"AGENTNAME"_s, u"PREMIUM"_s, u"RATE"_s});
    grid->setFilter(u"POLICYID < 3"_s);
    grid->Fill(connection, u"POLICIES"_s, ZKP_Table_QUERY);
    const LoadOutcome outcome = load();
    EXPECT_EQ(outcome.result, ZKPLoaded);
    EXPECT_EQ(outcome.built,
              u"SELECT [POLICYID],[AGENTNAME],[PREMIUM],[RATE] From [POLICIES] Where POLICYID < 3 "
              "order by  1,2,3,4 "_s);
    EXPECT_EQ(outcome.built, grid->NormalSQL());
    EXPECT_EQ(outcome.sent, connection->LastStatementSent());
    EXPECT_EQ(outcome.records, 2);
}

TEST_F(LoadOutcomeTest, ARecordsetTellsTheTextThatItWasOpenedFromAnew) {
    auto records = std::make_shared<ado::Recordset>();
    records->Open(u"select POLICYID from POLICIES where POLICYID < 3"_s, connection);
    grid->Fill(connection, QVariant::fromValue(records), ZKP_RecordSet);
    const LoadOutcome outcome = load();
    EXPECT_EQ(outcome.result, ZKPLoaded);
    EXPECT_EQ(outcome.built, u"select POLICYID from POLICIES where POLICYID < 3"_s);
    EXPECT_EQ(outcome.sent, outcome.built);
    EXPECT_EQ(outcome.records, 2);
}

TEST_F(LoadOutcomeTest, ACommandTellsItsTextAndTheLastStatementThatWasSent) {
    auto command = std::make_shared<ado::Command>();
    command->CommandText = u"select 1 as N; select 2 as N union all select 3 as N"_s;
    grid->Fill(connection, QVariant::fromValue(command), ZKP_Command);
    const LoadOutcome outcome = load();
    EXPECT_EQ(outcome.result, ZKPLoaded);
    EXPECT_EQ(outcome.built, command->CommandText);
    EXPECT_EQ(outcome.sent.trimmed(), u"select 2 as N union all select 3 as N"_s);
    EXPECT_EQ(outcome.records, 2);
}

TEST_F(LoadOutcomeTest, AfterACommandWithoutRecordsTheRowsAreThoseOfBefore) {
    fill();
    grid->refresh();
    auto command = std::make_shared<ado::Command>();
    command->CommandText = u"create table T (A integer)"_s;
    grid->Fill(connection, QVariant::fromValue(command), ZKP_Command);
    const LoadOutcome outcome = load();
    EXPECT_EQ(outcome.result, ZKPLoadKeptRows);
    EXPECT_EQ(outcome.built, command->CommandText);
    EXPECT_EQ(outcome.records, 0);
    EXPECT_FALSE(outcome.failure);
    EXPECT_EQ(grid->Rows(), 4);
}

TEST_F(LoadOutcomeTest, ATotalsReportTellsTheTotalsStatementAndNotTheSettingsReadAfterIt) {
    connection->Execute(u"create table QRN_Main (GenKey integer, GenSubKey integer, GenValue text)"_s);
    connection->Execute(u"insert into QRN_Main values (2,6,'30'),(2,7,'300')"_s);
    makeDictionary();
    columns({u"AGENTNAME"_s});
    grid->setColForTot(0, true);
    grid->setFilter(u"POLICYID > 0"_s);
    grid->setTotalForm(true);
    grid->Fill(connection, u"POLICIES"_s, ZKP_Table_QUERY);
    const LoadOutcome outcome = load();
    EXPECT_EQ(outcome.result, ZKPLoaded)
        << qPrintable(outcome.failure ? outcome.failure->description() : QString());
    EXPECT_TRUE(
        outcome.built.startsWith(u"SELECT DISTINCT AGENTNAME, Count(*) As Cnt FROM POLICIES Where "_s))
        << qPrintable(outcome.built);
    EXPECT_TRUE(outcome.sent.contains(u"DISTINCT AGENTNAME"_s)) << qPrintable(outcome.sent);
    EXPECT_EQ(outcome.records, 3); // a name, no name, an empty one
    EXPECT_NE(outcome.sent, connection->LastStatementSent());
}

TEST_F(LoadOutcomeTest, WithRefreshOnChangeFalseOnlyTheDictionaryIsRead) {
    fill();
    grid->refresh();
    grid->setRefreshOnChange(false);
    const LoadOutcome outcome = load();
    EXPECT_EQ(outcome.result, ZKPLoadKeptRows);
    EXPECT_EQ(outcome.built, QString());
    EXPECT_EQ(outcome.sent, QString());
    EXPECT_FALSE(outcome.failure);
}

TEST_F(LoadOutcomeTest, AStatementThatTheDatabaseRefusesHasFailedAndWasSent) {
    fill(u"select NOTHING from POLICIES"_s);
    const LoadOutcome outcome = load();
    EXPECT_EQ(outcome.result, ZKPLoadFailed);
    ASSERT_TRUE(outcome.failure);
    EXPECT_EQ(outcome.failure->number(), kErrBadStatement);
    EXPECT_EQ(outcome.failure->description(), host->messages.at(0).text);
    EXPECT_EQ(outcome.built, u"select NOTHING from POLICIES"_s);
    EXPECT_EQ(outcome.sent, outcome.built);
    EXPECT_EQ(outcome.records, 0);
    EXPECT_EQ(outcome.firstRecordMs, 0);
}

TEST_F(LoadOutcomeTest, AStatementThatNeverReachedTheDatabaseWasNotSent) {
    fill();
    grid->refresh();
    fill(u"select 1; select 2"_s);
    const LoadOutcome outcome = load();
    EXPECT_EQ(outcome.result, ZKPLoadFailed);
    EXPECT_EQ(outcome.built, u"select 1; select 2"_s);
    EXPECT_EQ(outcome.sent, QString());

    connection->Close();
    fill();
    const LoadOutcome closed = load();
    EXPECT_EQ(closed.result, ZKPLoadFailed);
    EXPECT_EQ(closed.failure->number(), kErrNoConnection);
    EXPECT_EQ(closed.sent, QString());
}

TEST_F(LoadOutcomeTest, TheHostsOwnProcedureSendsNothing) {
    connection->registerProcedure(u"Policies"_s, [](const QVariantList&) {
        return ado::Connection::ProcedureTable{{u"POLICYID"_s}, {{7}, {8}}};
    });
    fill(u"exec Policies"_s);
    const LoadOutcome outcome = load();
    EXPECT_EQ(outcome.result, ZKPLoaded);
    EXPECT_EQ(outcome.built, u"exec Policies"_s);
    EXPECT_EQ(outcome.sent, QString());
    EXPECT_EQ(outcome.records, 2);
}

TEST_F(LoadOutcomeTest, AFailureOfTheFetchHasFailed) {
    connection->setFetchProgress([](std::int64_t) { throw Error(7, u"enough"_s); });
    fill(u"with recursive n(i) as (select 1 union all select i+1 from n where i < 30000) "
         "select i as POLICYID from n"_s);
    const LoadOutcome outcome = load();
    EXPECT_EQ(outcome.result, ZKPLoadFailed);
    EXPECT_EQ(outcome.failure->number(), 7u);
    EXPECT_FALSE(outcome.sent.isEmpty());
}

TEST_F(LoadOutcomeTest, ABuilderThatFailsBehindABoxMakesTheLoadFailThoughItGoesOn) {
    makeDictionary();
    connection->Execute(
        u"insert into DICT (DTFLD, CPTN, VISBL, ISPUBLIC, SOURCEFIELDNAME, SOURCETABLENAME, WDTH) "
        "values ('POLICYID', 'No', 1, 1, 'POLICYID', 'POLICIES', 1000)"_s);
    connection->Execute(
        u"create table Reports (RecSource text, MasterTable text, RKeyname text, MasterFilter text)"_s);
    connection->Execute(u"insert into Reports values ('POLICIES', 'POLICIES', '', '')"_s);
    grid->setSqlOnRunTime(true);
    grid->setFilter(u"POLICYID > 0"_s);
    grid->Fill(connection, u"POLICIES"_s, ZKP_Table_QUERY);
    columns({u"POLICYID"_s});
    EXPECT_EQ(load().result, ZKPLoaded);

    columns({u"POLICYID"_s, u"O'K"_s}); // a key that breaks the question for it
    grid->setFilter(u"POLICYID > 0"_s);
    const LoadOutcome outcome = load();
    EXPECT_EQ(outcome.result, ZKPLoadFailed);
    ASSERT_TRUE(outcome.failure);
    EXPECT_EQ(outcome.failure->number(), kErrBadStatement);
    EXPECT_EQ(host->messages.size(), 1u);
    EXPECT_EQ(outcome.built, grid->SQLRun().toString());
    EXPECT_TRUE(outcome.built.startsWith(u"SELECT [POLICIES].[POLICYID] AS [POLICYID] FROM"_s));
    EXPECT_EQ(outcome.records, 3);
    EXPECT_EQ(report().size(), 3);
}

TEST_F(LoadOutcomeTest, AHandlerThatThrowsWhileRowsAreReadMakesTheLoadFail) {
    columns({u"POLICYID"_s});
    fill();
    QObject::connect(&grid->events(), &Events::RetrieveRow, [](RetrieveRowArgs& e) {
        if (e.rw == 2)
            throw Error(77, u"no"_s);
    });
    const LoadOutcome outcome = load();
    EXPECT_EQ(outcome.result, ZKPLoadFailed);
    EXPECT_EQ(outcome.failure->number(), 77u);
    EXPECT_EQ(outcome.records, 3);
}

TEST_F(LoadOutcomeTest, AHandlerOfThePaintThatThrowsMakesTheLoadFail) {
    columns({u"POLICYID"_s});
    fill();
    QObject::connect(&grid->events(), &Events::StartInterface, [] { throw Error(77, u"no"_s); });
    EXPECT_EQ(load().result, ZKPLoadFailed);
    EXPECT_EQ(host->messages.size(), 1u);
}

TEST_F(LoadOutcomeTest, AFailureIsOfItsOwnLoadAlone) {
    fill(u"select NOTHING from POLICIES"_s);
    grid->refresh();
    fill();
    EXPECT_EQ(load().result, ZKPLoaded);
    EXPECT_FALSE(grid->lastLoad().failure);
}

TEST_F(LoadOutcomeTest, ACheckThatFailsRefusesTheLoad) {
    grid->setCn(nullptr);
    grid->setSourceType(ZKP_Command);
    EXPECT_EQ(errorNumber([&] { grid->refresh(); }), kErrCommandNotSet);
    const LoadOutcome outcome = grid->lastLoad();
    EXPECT_EQ(outcome.result, ZKPLoadRefused);
    EXPECT_EQ(outcome.failure->number(), kErrCommandNotSet);
    EXPECT_EQ(outcome.built, QString());
}

TEST_F(LoadOutcomeTest, ALoadInsideALoadIsRefusedAndTheOuterOneIsTheLast) {
    columns({u"POLICYID"_s});
    fill();
    QStringList told;
    const Listening listening = listen(told);
    int inner = 0;
    QObject::connect(&grid->events(), &Events::RetrieveRow, [&](RetrieveRowArgs&) {
        EXPECT_TRUE(grid->isLoading());
        grid->refresh();
        inner = grid->lastLoad().result;
        EXPECT_EQ(grid->lastLoad().failure->number(), kErrIllegalOperation);
    });
    EXPECT_EQ(load().result, ZKPLoaded);
    EXPECT_EQ(inner, ZKPLoadRefused);
    EXPECT_EQ(told, (QStringList{u"begins"_s, u"3"_s, u"3"_s, u"3"_s, u"1"_s}));
    EXPECT_FALSE(grid->isLoading());
}

TEST_F(LoadOutcomeTest, AStepThatAHostCallsByItselfIsNoLoad) {
    fill();
    grid->refresh();
    const QString built = grid->lastLoad().built;
    fill(u"select NOTHING from POLICIES"_s);
    grid->OpenDetailRecordset();
    grid->setclmns(QString());
    grid->PrepareEmptyGrid();
    EXPECT_EQ(grid->lastLoad().result, ZKPLoaded);
    EXPECT_EQ(grid->lastLoad().built, built);
}

TEST_F(LoadOutcomeTest, AnyNumberListensAndNoneSilencesAnother) {
    QStringList first;
    QStringList second;
    const Listening one = listen(first);
    {
        const Listening other = listen(second);
        fill();
        grid->refresh();
    }
    fill(u"select NOTHING from POLICIES"_s);
    grid->FillGrid();
    grid->setCn(nullptr);
    EXPECT_NE(errorNumber([&] { grid->refresh(); }), 0u);
    EXPECT_EQ(second, (QStringList{u"begins"_s, u"1"_s}));
    EXPECT_EQ(first, (QStringList{u"begins"_s, u"1"_s, u"begins"_s, u"2"_s, u"3"_s}));
}

TEST_F(LoadOutcomeTest, WhoeverHearsOfTheEndMayLoadAgain) {
    columns({u"POLICYID"_s});
    fill();
    bool again = true;
    const Listening listening =
        grid->listenToLoads({.begins = {}, .ended = [&](const LoadOutcome&) {
                                 EXPECT_FALSE(grid->isLoading());
                                 EXPECT_TRUE(grid->Redraw());
                                 if (std::exchange(again, false)) {
                                     fill(u"select * from POLICIES where POLICYID=1"_s);
                                     grid->refresh();
                                 }
                             }});
    EXPECT_EQ(load().records, 1);
    EXPECT_EQ(report(), QStringList{u"1: 1"_s});
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(LoadOutcomeTest, AListenerThatThrowsShowsTheErrorBoxAndChangesNoOutcome) {
    fill();
    const Listening listening =
        grid->listenToLoads({.begins = {}, .ended = [](const LoadOutcome&) { throw Error(77, u"no"_s); }});
    EXPECT_EQ(load().result, ZKPLoaded);
    EXPECT_EQ(boxes(), QStringList{u"Παρουσιάστικε Εξαίρεση : \r\rNO\r\r"_s});
}

TEST_F(LoadOutcomeTest, AHandlerThatDestroysTheControlEndsItsLoadUntold) {
    columns({u"POLICYID"_s});
    fill();
    QStringList told;
    const Listening listening = listen(told);
    QObject::connect(&grid->events(), &Events::RetrieveRow, [&](RetrieveRowArgs&) { grid.reset(); });
    grid->refresh();
    EXPECT_EQ(grid, nullptr);
    EXPECT_EQ(told, QStringList{u"begins"_s});
}

TEST_F(LoadOutcomeTest, AListenerMayDestroyTheControl) {
    columns({u"POLICYID"_s});
    for (const bool atTheStart : {true, false}) {
        grid = std::make_unique<ZkpGrid>(host);
        fill();
        const auto destroy = [&] { grid.reset(); };
        QStringList told;
        const Listening first =
            grid->listenToLoads({.begins = atTheStart ? std::function<void()>(destroy) : nullptr,
                                 .ended = [&](const LoadOutcome&) { destroy(); }});
        const Listening second = listen(told);
        grid->refresh();
        EXPECT_EQ(grid, nullptr);
        EXPECT_EQ(told, atTheStart ? QStringList{} : QStringList{u"begins"_s});
    }
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(LoadOutcomeTest, ASortByColumnIsALoadOfItsOwn) {
    columns({u"POLICYID"_s});
    grid->Fill(connection, u"select POLICYID from POLICIES"_s, ZKP_SQLStatement);
    QStringList told;
    const Listening listening = listen(told);
    grid->SortByColumn(QString());
    EXPECT_EQ(told, (QStringList{u"begins"_s, u"1"_s}));
}

TEST_F(LoadOutcomeTest, ItIsReachedByItsName) {
    fill();
    grid->refresh();
    const QVariant outcome = grid->callMember(u"lastload"_s, QVariantList());
    EXPECT_EQ(outcome.value<LoadOutcome>().records, 3);
    EXPECT_EQ(grid->callMember(u"isLoading"_s, QVariantList()), QVariant(false));
}
