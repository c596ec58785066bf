#include "ado/ado_fixture.h"

namespace zkp::ado::test {

class StatementTest : public AdoTest {
protected:
    StatementTest() { run("CREATE TABLE T (A INTEGER)"); }

    RecordsetPtr openCommand(const char* text) {
        const auto command = std::make_shared<Command>();
        command->CommandText = u(text);
        command->ActiveConnection = cn;
        auto rs = std::make_shared<Recordset>();
        rs->Open(command);
        return rs;
    }
};

TEST_F(StatementTest, TextAfterTheStatementIsRefusedBeforeAnythingRuns) {
    EXPECT_EQ(errorNumber([&] { open("INSERT INTO T VALUES (1); INSERT INTO T VALUES (2)"); }),
              kErrBadStatement);
    EXPECT_EQ(errorNumber([&] { cn->Execute(u("INSERT INTO T VALUES (1); x")); }), kErrBadStatement);
    EXPECT_EQ(one("SELECT count(*) FROM T").toInt(), 0);
}

TEST_F(StatementTest, BlanksAndCommentsMayFollow) {
    EXPECT_EQ(open("SELECT 1 ; ; -- done\n /* really */ ")->RecordCount(), 1);
    EXPECT_EQ(open("SELECT 'a;b' -- ; SELECT 2")->RecordCount(), 1);
}

TEST_F(StatementTest, ACommandGivesOneResultPerStatement) {
    const auto first = openCommand("SELECT 1 AS A; SELECT 2 AS B, 3 AS C;");
    EXPECT_EQ(first->Collect(u("A")).toInt(), 1);
    EXPECT_EQ(first->Source(), u("SELECT 1 AS A; SELECT 2 AS B, 3 AS C;"));
    ASSERT_TRUE(first->ActiveCommand());
    const auto second = first->NextRecordset();
    EXPECT_EQ(first->State(), adStateClosed);
    ASSERT_TRUE(second);
    EXPECT_EQ(second->Fields().Count(), 2);
    EXPECT_EQ(second->ActiveCommand(), first->ActiveCommand());
    EXPECT_FALSE(second->NextRecordset());
    EXPECT_EQ(second->State(), adStateOpen) << "the last result stays";
}

TEST_F(StatementTest, AStatementOfACommandWithoutColumnsIsAClosedResult) {
    const auto first = openCommand("INSERT INTO T VALUES (5); SELECT A FROM T");
    EXPECT_EQ(first->State(), adStateClosed);
    const auto second = first->NextRecordset();
    ASSERT_TRUE(second);
    EXPECT_EQ(second->Collect(u("A")).toInt(), 5);
}

TEST_F(StatementTest, ACommandNeedsTextAndConnection) {
    EXPECT_EQ(errorNumber([&] { openCommand(""); }), kErrBadStatement);
    EXPECT_EQ(errorNumber([&] { openCommand(" -- nothing"); }), kErrBadStatement);
    const auto command = std::make_shared<Command>();
    command->CommandText = u("SELECT 1");
    EXPECT_EQ(errorNumber([&] { std::make_shared<Recordset>()->Open(command); }), kErrNoConnection);
    EXPECT_EQ(errorNumber([&] { std::make_shared<Recordset>()->Open(CommandPtr()); }), kErrBadArgument);
}

TEST_F(StatementTest, TheDatabasesWordsComeWithABadStatement) {
    EXPECT_EQ(errorNumber([&] { open(""); }), kErrBadStatement);
    EXPECT_EQ(errorNumber([&] { open("SELEC 1"); }), kErrBadStatement);
    EXPECT_EQ(errorText([&] { open("SELECT * FROM NOPE"); }), u("no such table: NOPE"));
    EXPECT_EQ(errorNumber([&] { open("SELECT * FROM NOPE"); }), kErrBadStatement);
    EXPECT_EQ(errorText([&] { open("SELECT NOPE FROM T"); }), u("no such column: NOPE"));
    EXPECT_EQ(open("SELECT 1")->RecordCount(), 1) << "the connection works afterwards";
}

TEST_F(StatementTest, ATableOrProcedureIsOpenedByItsName) {
    run("INSERT INTO T VALUES (7)");
    const auto rs = std::make_shared<Recordset>();
    rs->Open(u("T"), cn, adOpenStatic, adLockReadOnly, adCmdTable);
    EXPECT_EQ(rs->Collect(u("A")).toInt(), 7);
    EXPECT_EQ(rs->Source(), u("T"));
}

TEST_F(StatementTest, TransactionsHoldAndRollBack) {
    cn->BeginTrans();
    run("INSERT INTO T VALUES (1)");
    cn->RollbackTrans();
    EXPECT_EQ(one("SELECT count(*) FROM T").toInt(), 0);
    cn->BeginTrans();
    run("INSERT INTO T VALUES (1)");
    cn->CommitTrans();
    EXPECT_EQ(one("SELECT count(*) FROM T").toInt(), 1);
    EXPECT_NE(errorNumber([&] { cn->CommitTrans(); }), 0u);
}

TEST_F(StatementTest, SchemaTellsTheColumnsOfATable) {
    run("CREATE TABLE POLICIES (ID INTEGER, NAME NVARCHAR(50), PREMIUM MONEY)");
    run("CREATE VIEW VI_POL AS SELECT NAME, PREMIUM FROM POLICIES");
    auto rs = cn->OpenSchema(adSchemaColumns, {u("OrtolFunds"), u("dbo"), u("policies")});
    EXPECT_EQ(rs->RecordCount(), 3);
    rs->MoveLast();
    EXPECT_EQ(rs->Collect(u("COLUMN_NAME")).toString(), u("PREMIUM"));
    EXPECT_EQ(rs->Collect(u("TABLE_NAME")).toString(), u("POLICIES"));
    EXPECT_EQ(rs->Collect(u("ORDINAL_POSITION")).toInt(), 3);
    EXPECT_EQ(rs->Collect(u("DATA_TYPE")).toInt(), 6);
    rs = cn->OpenSchema(adSchemaColumns, {QVariant(), QVariant(), u("VI_POL")});
    EXPECT_EQ(rs->RecordCount(), 2);
    EXPECT_EQ(rs->Collect(u("DATA_TYPE")).toInt(), 202);
    EXPECT_EQ(cn->OpenSchema(adSchemaColumns, {QVariant(), QVariant(), u("NOPE")})->RecordCount(), 0);
    EXPECT_EQ(cn->OpenSchema(adSchemaTables)->RecordCount(), 3);
    rs = cn->OpenSchema(adSchemaViews);
    EXPECT_EQ(rs->RecordCount(), 1);
    EXPECT_EQ(rs->Collect(u("TABLE_TYPE")).toString(), u("VIEW"));
    EXPECT_EQ(errorNumber([&] { cn->OpenSchema(99); }), kErrNotSupported);
    EXPECT_EQ(errorNumber([&] { rs->Requery(); }), kErrNotSupported);
}

} // namespace zkp::ado::test
