#include "ado/odbc/fetch/amount_text.h"
#include "ado/odbc/session/connection_text.h"
#include "ado/odbc/session/read_only.h"
#include "ado/odbc/session/wide_text.h"

#include "ado/ado_fixture.h"

namespace zkp::ado::test {

using namespace zkp::ado::odbc;

TEST(ConnectionText, TheDialectIsTakenOut) {
    const ConnectionText text =
        readConnectionText(u("Driver={A;Dialect=B};dialect = MariaDB ;PWD={x}};y};UID=z"));
    EXPECT_EQ(text.forDriver, u("Driver={A;Dialect=B};PWD={x}};y};UID=z"));
    EXPECT_EQ(text.dialect, Dialect::MariaDb);
    EXPECT_FALSE(readConnectionText(u("DSN=Office")).dialect);
    EXPECT_EQ(errorNumber([] { readConnectionText(u("DSN=a;Dialect=Other")); }), kErrDatabase);
}

TEST(ConnectionText, TheDialectIsKnownByTheServersName) {
    EXPECT_EQ(dialectOfServer(u("PostgreSQL")), Dialect::PostgreSql);
    EXPECT_EQ(dialectOfServer(u("MariaDB")), Dialect::MariaDb);
    EXPECT_EQ(dialectOfServer(u("MySQL")), Dialect::MariaDb);
    EXPECT_EQ(dialectOfServer(u("Microsoft SQL Server")), Dialect::SqlServer);
}

TEST(AmountText, DigitsBecomeAnExactAmount) {
    EXPECT_EQ(amountFromText("-12.5")->scaled, -125'000);
    EXPECT_EQ(amountFromText(".12345")->scaled, 1'235) << "half away from zero";
    EXPECT_EQ(amountFromText("-0.000049")->scaled, 0);
    EXPECT_EQ(amountFromText("922337203685477.5807")->scaled, 9'223'372'036'854'775'807);
    EXPECT_FALSE(amountFromText("922337203685477.5808"));
    EXPECT_FALSE(amountFromText("NaN"));
    EXPECT_FALSE(amountFromText("-"));
    EXPECT_EQ(wholeFromText("-42"), -42);
    EXPECT_FALSE(wholeFromText("4.2"));
}

TEST(WideText, Utf16BecomesUtf8) {
    std::string utf8;
    toUtf8(u"aΩ€😀", utf8);
    EXPECT_EQ(utf8, "aΩ€😀");
    const char16_t half[] = {u'a', 0xD83D, u'b'};
    toUtf8({half, 3}, utf8);
    EXPECT_EQ(utf8, "a\xEF\xBF\xBD"
                    "b");
}

TEST(ReadOnlyServer, OnlyTemplatesAndSettingsAreWritten) {
    for (const Dialect dialect : {Dialect::SqlServer, Dialect::PostgreSql, Dialect::MariaDb}) {
        for (const char* allowed :
             {"SELECT * FROM T", " exec P 'x'", "INSERT INTO frms (lstCode) VALUES (1)",
              "update dbo.QRN_Main set GenValue='insert'", "delete from [FRMS2] where 1=1", "DELETE frms2",
              "update frms set A=(select B from T)", "with a as (select 1 x) select * from a",
              "SELECT 'drop' AS [update] FROM T", "SELECT 1 -- it's\n",
              "SELECT 'e' /* it's */ AS [a] FROM T"})
            EXPECT_NE(readingOf(u(allowed), dialect), Reading::Refused) << allowed;
        for (const char* refused :
             {"INSERT INTO T VALUES (1)", "UPDATE T SET A=1", "delete T", "DROP TABLE frms",
              "SELECT * INTO X FROM T", "with a as (delete from T returning *) select * from a",
              "TRUNCATE TABLE frms", "create table X (a int)", "UPDATE frms, T SET T.A = 1",
              "UPDATE frms JOIN T SET T.A = 1", "DELETE frms, T FROM frms JOIN T",
              "DELETE FROM frms USING frms JOIN T", "exec ('DROP TABLE T')"})
            EXPECT_EQ(readingOf(u(refused), dialect), Reading::Refused) << refused;
    }
}

TEST(ReadOnlyServer, SqlServerTakesAnotherStatementWithoutASign) {
    for (const char* refused :
         {"SELECT 1 AS a DROP TABLE T", "UPDATE frms SET A=1 DROP TABLE T", "SELECT 1 EXEC P",
          "SELECT 1 ALTER TABLE T ADD B int", "SELECT 1 GRANT SELECT ON T TO x", "SELECT 1 USE master",
          "UPDATE frms SET A=1 FROM T frms", "SELECT 1 AS [a]]'] DROP TABLE T --'"})
        EXPECT_EQ(readingOf(u(refused), Dialect::SqlServer), Reading::Refused) << refused;
    EXPECT_EQ(readingOf(u("SELECT [use], [set] FROM #T"), Dialect::SqlServer), Reading::Reads);
    EXPECT_EQ(readingOf(u("SELECT backup FROM T"), Dialect::PostgreSql), Reading::Reads);
}

TEST(ReadOnlyServer, WordsCountWhereTheServerReadsThem) {
    for (const char* refused :
         {"SELECT $$'$$; DELETE FROM T; --'", "SELECT E'\\''; DELETE FROM T; --'",
          "SELECT E'a'\n'\\''; DELETE FROM T; --'", "SELECT 1 -- '\r; DELETE FROM T --'",
          "SELECT 1 /* /* */ ' */ DELETE FROM T --'", "SELECT 1INTO T", "DO $$BEGIN DELETE FROM T; END$$",
          "SELECT \u00A0$$; DELETE FROM T; --$$", "SELECT set_config('a','off',false)",
          "SELECT pg_catalog.\"set_config\"('a','off',false)",
          "SELECT U&\"\\0073et_config\"('a','off',false)",
          "SELECT U&\"!0073et_config\" UESCAPE '!' ('a','off',false)",
          "SELECT query_to_xml('SELECT set_config(''a'',''off'',false)',true,true,'')",
          "SELECT ts_stat('DELETE FROM T')", "SELECT [dblink]('a', 'DELETE FROM T')"})
        EXPECT_EQ(readingOf(u(refused), Dialect::PostgreSql), Reading::Refused) << refused;
    for (const char* read :
         {"SELECT a$b FROM T", "SELECT date'2026-01-01'", "SELECT 1 -- '\r\n", "SELECT $$it's; delete$$",
          "SELECT E'it\\'s; delete' AS [a]", "SELECT a[2], ARRAY[10,20] FROM T",
          "SELECT 1 /* delete /* it's */ ' */", "/*! it's */ SELECT 1"})
        EXPECT_EQ(readingOf(u(read), Dialect::PostgreSql), Reading::Reads) << read;
}

TEST(ReadOnlyServer, AlsoWhereOtherServersReadThem) {
    for (const char* refused : {"/*! SET SESSION tx_read_only = ( */ SELECT 0 /*! ) */", "SELECT 1 /*M! */",
                                "SELECT 1 --'-- '; DELETE FROM T", "SELECT 1 # '\n; DELETE FROM T # '\n",
                                "SELECT 1.5INTO OUTFILE 'x'"})
        EXPECT_EQ(readingOf(u(refused), Dialect::MariaDb), Reading::Refused) << refused;
    for (const char* read :
         {"SELECT 1 --1", "SELECT 1 --'\n; DELETE FROM T --'\n", "SELECT 1 # it's; delete [x]\n",
          "SELECT 1 /*m! delete */", "SELECT 1 /* /* */ ' */ delete'"})
        EXPECT_EQ(readingOf(u(read), Dialect::MariaDb), Reading::Reads) << read;
    for (const char* refused :
         {"SELECT 1 /* /* */ ' */ DELETE FROM T --'", "SELECT 1 -- '\r DELETE FROM T --'",
          "SELECT 1DROP TABLE T", "SELECT 1eDROP TABLE T"})
        EXPECT_EQ(readingOf(u(refused), Dialect::SqlServer), Reading::Refused) << refused;
    EXPECT_EQ(readingOf(u("SELECT [a]]'; delete] FROM T -- '\r\n"), Dialect::SqlServer), Reading::Reads);
}

class OdbcFailureTest : public testing::Test {};

TEST_F(OdbcFailureTest, AnUnknownDriverIsToldInTheManagersWords) {
    const auto cn = std::make_shared<Connection>();
    const QString text = u("Driver={No Such Driver};Server=nowhere");
    EXPECT_EQ(errorNumber([&] { cn->Open(text); }), kErrDatabase);
    EXPECT_TRUE(errorText([&] { cn->Open(text); }).contains(u("No Such Driver")) ||
                errorText([&] { cn->Open(text); }).contains(u("not found")));
    EXPECT_EQ(cn->State(), adStateClosed);
    cn->Open(u("sqlite:"));
    EXPECT_EQ(cn->State(), adStateOpen);
}

} // namespace zkp::ado::test
