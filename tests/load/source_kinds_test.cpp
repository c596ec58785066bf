#include "load_fixture.h"

using namespace Qt::StringLiterals;
using namespace zkp;

using SourceKindsTest = LoadTest;

TEST_F(SourceKindsTest, AStatementOfTheHosts) {
    columns({u"POLICYID"_s});
    fill(u"select POLICYID from POLICIES where POLICYID > 1 order by POLICYID desc"_s);
    grid->refresh();
    EXPECT_EQ(report(), (QStringList{u"1: 3"_s, u"1: 2"_s}));
}

TEST_F(SourceKindsTest, ARecordsetIsOpenedAnewFromItsText) {
    columns({u"POLICYID"_s});
    auto records = std::make_shared<ado::Recordset>();
    records->Open(u"select POLICYID from POLICIES where POLICYID < 3"_s, connection);
    grid->Fill(connection, QVariant::fromValue(records), ZKP_RecordSet);
    connection->Execute(u"insert into POLICIES (POLICYID) values (0)"_s);
    grid->refresh();
    EXPECT_EQ(report(), (QStringList{u"1: 1"_s, u"1: 2"_s, u"1: 0"_s}));
    EXPECT_EQ(grid->RecordSource().value<ado::RecordsetPtr>(), records);
    EXPECT_EQ(grid->RecordsourceSTR(), u"select POLICYID from POLICIES where POLICYID < 3"_s);
}

TEST_F(SourceKindsTest, AFailedRecordsetLoadMakesTheNextRefreshFailItsCheck) {
    auto records = std::make_shared<ado::Recordset>();
    records->Open(u"select POLICYID from POLICIES"_s, connection);
    grid->Fill(connection, QVariant::fromValue(records), ZKP_RecordSet);
    connection->Execute(u"drop table POLICIES"_s);
    grid->refresh();
    EXPECT_EQ(host->messages.size(), 1u);
    EXPECT_EQ(errorNumber([&] { grid->refresh(); }), kErrPropertyNotSet);
}

TEST_F(SourceKindsTest, ARecordsetWithoutTextIsAskedForOverNoName) {
    grid->Fill(connection, QVariant::fromValue(std::make_shared<ado::Recordset>()), ZKP_RecordSet);
    grid->refresh();
    EXPECT_EQ(host->messages.size(), 1u);
    EXPECT_EQ(grid->RecordSource().value<ado::RecordsetPtr>(), nullptr);
}

TEST_F(SourceKindsTest, ACommandWithSeveralResultsKeepsTheLast) {
    columns({u"N"_s});
    auto command = std::make_shared<ado::Command>();
    command->CommandText = u"select 1 as N; select 2 as N union all select 3 as N"_s;
    grid->Fill(connection, QVariant::fromValue(command), ZKP_Command);
    grid->refresh();
    EXPECT_EQ(report(), (QStringList{u"1: 2"_s, u"1: 3"_s}));
    EXPECT_EQ(command->ActiveConnection, connection);
    EXPECT_EQ(grid->RecordsourceSTR(), command->CommandText);
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(SourceKindsTest, ACommandWithOneResultKeepsIt) {
    columns({u"N"_s});
    auto command = std::make_shared<ado::Command>();
    command->CommandText = u"select 7 as N"_s;
    grid->Fill(connection, QVariant::fromValue(command), ZKP_Command);
    grid->refresh();
    EXPECT_EQ(report(), QStringList{u"1: 7"_s});
    grid->refresh();
    EXPECT_EQ(report(), QStringList{u"1: 7"_s});
}

TEST_F(SourceKindsTest, ACommandThatGivesNoRecordsLeavesNoRecordSource) {
    auto command = std::make_shared<ado::Command>();
    command->CommandText = u"create table T (A integer)"_s;
    grid->Fill(connection, QVariant::fromValue(command), ZKP_Command);
    grid->refresh();
    EXPECT_EQ(grid->RecordSource().value<ado::RecordsetPtr>(), nullptr);
    EXPECT_EQ(grid->RecCount(), 0);
}

TEST_F(SourceKindsTest, FillGridWithoutACommandShowsABoxOfItsOwn) {
    grid->setSourceType(ZKP_Command);
    grid->FillGrid();
    ASSERT_EQ(host->messages.size(), 1u);
    EXPECT_EQ(host->messages[0].title, u""_s);
    EXPECT_EQ(grid->RecordSource().value<ado::RecordsetPtr>(), nullptr);
}

TEST_F(SourceKindsTest, ACommandsRecordsAreRestrictedToTheUsersRows) {
    connection->Execute(u"create table procedures (name text, statement text)"_s);
    connection->Execute(u"insert into procedures values ('Sec_GetUserIerarxiaID', "
                        "'select Level, Id from USERS where Name = ?1')"_s);
    connection->Execute(u"create table USERS (Name text, Level text, Id text)"_s);
    connection->Execute(u"insert into USERS values ('P1', '1', 'G1')"_s);
    connection->Execute(u"create table R (N integer, ProductIdentity text, AgencyIdentity text)"_s);
    connection->Execute(u"insert into R values (1,'P1','G9'),(2,'P2','G1'),(3,'P3','G3')"_s);
    columns({u"N"_s});
    auto command = std::make_shared<ado::Command>();
    command->CommandText = u"select * from R order by N"_s;
    grid->Fill(connection, QVariant::fromValue(command), ZKP_Command, u"P1"_s);
    grid->refresh();
    EXPECT_EQ(report(), (QStringList{u"1: 1"_s, u"1: 2"_s}));
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(SourceKindsTest, ATableIsReadByTheNormalStatement) {
    columns({u"POLICYID"_s, u"AGENTNAME"_s, u"PREMIUM"_s, u"RATE"_s});
    grid->setFilter(u"POLICYID < 3"_s);
    grid->Fill(connection, u"POLICIES"_s, ZKP_Table_QUERY);
    grid->refresh();
    EXPECT_EQ(report(), (QStringList{u"1: 1 | Ελένη Ζαφειρίου | 1.234,50 | 0,25"_s, u"1: 2 |  | 0,00 | "_s}));
    EXPECT_TRUE(host->messages.empty());
}
