#include "ado/dialect/exec_call.h"
#include "ado/dialect/sqlite_rewrite.h"

#include "ado/ado_fixture.h"

namespace zkp::ado::test {

namespace {

QString rewritten(const char* statement) {
    return dialect::rewriteForSqlite(u(statement));
}

std::optional<dialect::ExecCall> parseExec(const char* statement) {
    return dialect::parseExec(u(statement), dialect::Dialect::Sqlite);
}

} // namespace

TEST(Dialect, AStatementWithoutTextConstantsIsSentUnchanged) {
    for (const char* sql :
         {"SELECT * FROM [POLICIES DATA] WHERE A=1 AND [B]>2.5 ORDER BY 1,2", "", "SELECT top FROM T",
          "SELECT TOP, 2 FROM T", "select 1/2, isgroup or isTot from x",
          "SELECT [it's], \"a'b\" FROM T -- it's\n WHERE 1=1 /* 'x'='y' */"})
        EXPECT_EQ(rewritten(sql), u(sql));
}

TEST(Dialect, TopBecomesALimitAtTheEndOfItsSelect) {
    EXPECT_EQ(rewritten("Select TOP 1 * From T Where A > 2"), u("Select * From T Where A > 2 LIMIT 1"));
    EXPECT_EQ(rewritten("SELECT DISTINCT TOP 3 A FROM T ORDER BY A;"),
              u("SELECT DISTINCT A FROM T ORDER BY A LIMIT 3;"));
    EXPECT_EQ(rewritten("SELECT TOP (5) A FROM T -- end"), u("SELECT A FROM T LIMIT 5 -- end"));
    EXPECT_EQ(rewritten("SELECT (SELECT TOP 1 B FROM U ORDER BY B) FROM T"),
              u("SELECT (SELECT B FROM U ORDER BY B LIMIT 1) FROM T"));
}

TEST(Dialect, TopInAUnionLimitsItsOwnSelectOnly) {
    EXPECT_EQ(rewritten("SELECT TOP 1 A FROM T UNION ALL SELECT TOP 2 B FROM U ORDER BY 1"),
              u("SELECT * FROM (SELECT A FROM T LIMIT 1) UNION ALL "
                "SELECT * FROM (SELECT B FROM U LIMIT 2) ORDER BY 1"));
}

// Whole amounts are stored as integers; on the servers their quotient keeps its decimals.
TEST(Dialect, WhatIsDividedByASumOrASubqueryIsReal) {
    EXPECT_EQ(rewritten("SELECT SUM(A) / SUM(B) FROM T"), u("SELECT SUM(A) * 1.0 / SUM(B) FROM T"));
    EXPECT_EQ(rewritten("SELECT (Sum(A) * 100) / (SELECT Sum(A) FROM T) FROM T"),
              u("SELECT (Sum(A) * 100) * 1.0 / (SELECT Sum(A) FROM T) FROM T"));
    EXPECT_EQ(rewritten("SELECT A/(B+1), A/sum, '/ SUM(' FROM T"),
              u("SELECT A/(B+1), A/sum, '/ SUM(' FROM T"));
}

TEST(Dialect, ConvertOfADateBecomesAnIsoConstant) {
    EXPECT_EQ(rewritten("SELECT 1 WHERE D>=Convert(Datetime,'11/20/2026',102)"),
              u("SELECT 1 WHERE D>='2026-11-20'"));
    EXPECT_EQ(rewritten("SELECT 1 WHERE D=CONVERT( datetime , '2026-11-20' , 102 ) AND X=1"),
              u("SELECT 1 WHERE D='2026-11-20' AND X=1"));
    EXPECT_EQ(rewritten("SELECT 'Convert(Datetime,''11/20/2026'',102)'"),
              u("SELECT 'Convert(Datetime,''11/20/2026'',102)'"));
}

TEST(Dialect, AComparisonWithATextConstantIgnoresCase) {
    EXPECT_EQ(rewritten("SELECT * FROM T WHERE A = 'x'"),
              u("SELECT * FROM T WHERE A = 'x' COLLATE ZKP_TEXT"));
    EXPECT_EQ(rewritten("SELECT * FROM T WHERE 'x'<>A"), u("SELECT * FROM T WHERE 'x' COLLATE ZKP_TEXT<>A"));
    EXPECT_EQ(rewritten("SELECT * FROM T WHERE (A)=('Ω')"),
              u("SELECT * FROM T WHERE (A)=('Ω' COLLATE ZKP_TEXT)"));
    EXPECT_EQ(rewritten("SELECT * FROM T WHERE A=N'it''s'"),
              u("SELECT * FROM T WHERE A='it''s' COLLATE ZKP_TEXT"));
    EXPECT_EQ(rewritten("SELECT * FROM T WHERE A NOT IN ('1','b')"),
              u("SELECT * FROM T WHERE A COLLATE ZKP_TEXT NOT IN ('1','b')"));
    EXPECT_EQ(rewritten("SELECT * FROM T WHERE A BETWEEN 'a' AND 'b'"),
              u("SELECT * FROM T WHERE A BETWEEN 'a' COLLATE ZKP_TEXT AND 'b' COLLATE ZKP_TEXT"));
}

TEST(Dialect, AConstantWithoutLettersKeepsItsIndex) {
    const char* sql = "SELECT * FROM T WHERE A='2026-11-20' AND B='' AND C IN ('1','2')";
    EXPECT_EQ(rewritten(sql), u(sql));
}

TEST(Dialect, WhatADatabaseStoresOrSetsIsLeftAlone) {
    for (const char* sql : {"CREATE VIEW V AS SELECT * FROM T WHERE A='x'", "PRAGMA encoding='UTF-8'",
                            "INSERT INTO T VALUES ('x', 'y')", "SELECT 'x', 'y' AS B FROM T"})
        EXPECT_EQ(rewritten(sql), u(sql));
}

TEST(Dialect, AConstantWithoutAnEndStaysAsItIs) {
    EXPECT_EQ(rewritten("SELECT * FROM T WHERE A='no end").left(31), u("SELECT * FROM T WHERE A='no end"));
}

TEST(Dialect, ExecIsReadWithItsArguments) {
    const auto call = parseExec(" exec dbo.[My Proc] 'a''b', -2, 1.5, NULL, N'Ω' ;");
    ASSERT_TRUE(call);
    EXPECT_EQ(call->name, u("My Proc"));
    EXPECT_EQ(call->arguments, QVariantList({u("a'b"), -2ll, 1.5, QVariant(), u("Ω")}));
    EXPECT_FALSE(parseExec("SELECT 'exec P'"));
    EXPECT_EQ(parseExec("EXEC P")->arguments.size(), 0);
    for (const char* bad : {"exec", "exec P 'a' 'b'", "exec P 'a',", "exec 'P'", "exec P -'a'"})
        EXPECT_EQ(errorNumber([&] { parseExec(bad); }), kErrBadStatement) << bad;
}

class DialectOnSqliteTest : public AdoTest {
protected:
    DialectOnSqliteTest() {
        run("CREATE TABLE NAMES (NAME NVARCHAR(50))");
        run("INSERT INTO NAMES VALUES ('Νίκος'), ('ΝΊΚΟΣ'), ('Νικος'), ('Άννα'), ('smith'), (NULL)");
    }
    qint64 count(const char* condition) {
        return one((std::string("SELECT count(*) FROM NAMES WHERE ") + condition).c_str()).toLongLong();
    }
};

TEST_F(DialectOnSqliteTest, TextsCompareWithoutCaseWithAccents) {
    EXPECT_EQ(count("NAME = 'νίκος'"), 2);
    EXPECT_EQ(count("NAME = 'ΝΙΚΟΣ'"), 1) << "accents count";
    EXPECT_EQ(count("NAME = 'ΝΊΚΟσ'"), 2) << "all sigmas are one";
    EXPECT_EQ(count("NAME <> 'νίκος'"), 3);
    EXPECT_EQ(count("NAME IN ('SMITH', 'άννα')"), 2);
    EXPECT_EQ(count("NAME = 'Smith' COLLATE BINARY"), 0);
}

TEST_F(DialectOnSqliteTest, TheStatementSentIsToldAndTheSourceStaysAsGiven) {
    const auto rs = open("SELECT TOP 1 * FROM NAMES WHERE NAME='smith'");
    EXPECT_EQ(rs->Source(), u("SELECT TOP 1 * FROM NAMES WHERE NAME='smith'"));
    EXPECT_EQ(cn->LastStatementSent(), u("SELECT * FROM NAMES WHERE NAME='smith' COLLATE ZKP_TEXT LIMIT 1"));
}

TEST_F(DialectOnSqliteTest, StatementsSentAreCountedAndQuestionsOfTheCatalogueAreNot) {
    const auto before = cn->StatementsSent();
    open("SELECT TOP 1 * FROM NAMES");
    open("SELECT TOP 1 * FROM NAMES");
    EXPECT_EQ(cn->StatementsSent(), before + 2);
    cn->OpenSchema(adSchemaColumns, {QVariant(), QVariant(), u("NAMES")});
    EXPECT_EQ(cn->StatementsSent(), before + 2);
    EXPECT_EQ(std::make_shared<Connection>()->StatementsSent(), 0u);
}

TEST_F(DialectOnSqliteTest, BareTrueIsTaken) {
    EXPECT_EQ(count(" TRUE "), 6);
}

TEST_F(DialectOnSqliteTest, AnIndexOverTheBuiltInCollationStaysRight) {
    run("CREATE INDEX N ON NAMES (NAME COLLATE NOCASE)");
    EXPECT_EQ(count("NAME = 'νίκος'"), 2);
    EXPECT_EQ(one("PRAGMA integrity_check").toString(), u("ok"));
}

TEST_F(DialectOnSqliteTest, ExecRunsTheStatementKeptUnderTheName) {
    run("CREATE TABLE procedures (name TEXT, statement TEXT)");
    run("INSERT INTO procedures VALUES ('Sec_Get', 'SELECT ?1 AS A, ?2 AS B'), "
        "('Two', 'SELECT NAME FROM NAMES WHERE NAME = ''SMITH''; SELECT ?1')");
    const auto rs = open(" exec sec_get 'it''s', 5");
    EXPECT_EQ(rs->Collect(u("A")).toString(), u("it's"));
    EXPECT_EQ(rs->Collect(u("B")).toLongLong(), 5);

    const auto first = open("exec Two 'x'");
    EXPECT_EQ(first->Fields().Item(0).Value().toString(), u("smith"));
    const auto second = first->NextRecordset();
    ASSERT_TRUE(second);
    EXPECT_EQ(second->Fields().Item(0).Value().toString(), u("x"));
    EXPECT_FALSE(second->NextRecordset());
}

TEST_F(DialectOnSqliteTest, ExecOfWhatIsNotThereSaysSo) {
    EXPECT_EQ(errorNumber([&] { open("exec Nope 'x'"); }), kErrBadStatement);
    EXPECT_TRUE(errorText([&] { open("exec Nope 'x'"); }).contains(u("Nope")));
    run("CREATE TABLE procedures (name TEXT, statement TEXT)");
    run("INSERT INTO procedures VALUES ('P', 'SELECT ?1, ?2')");
    EXPECT_EQ(errorNumber([&] { open("exec Nope"); }), kErrBadStatement);
    EXPECT_EQ(errorNumber([&] { open("exec P 'one'"); }), kErrBadStatement);
}

TEST_F(DialectOnSqliteTest, AHostRegistersAProcedureOfItsOwn) {
    cn->registerProcedure(u("Levels"), [](const QVariantList& arguments) {
        return Connection::ProcedureTable{{u("LEVEL"), u("WHO")}, {{2, arguments.value(0)}, {3, QVariant()}}};
    });
    const auto rs = open(" exec LEVELS 'P1'");
    EXPECT_EQ(rs->RecordCount(), 2);
    EXPECT_EQ(rs->Fields().Item(0).Type(), 3);
    EXPECT_EQ(rs->Collect(u("who")).toString(), u("P1"));
    rs->MoveNext();
    EXPECT_FALSE(rs->Collect(u("who")).isValid());
}

} // namespace zkp::ado::test
