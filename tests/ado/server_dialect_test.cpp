#include "ado/dialect/server_statement.h"

#include "ado/ado_fixture.h"
#include "ado/dialect/select_shape.h"

namespace zkp::ado::test {

namespace {

/// A server whose catalogue knows a table with odd spelling, and a dictionary with flags.
dialect::ServerFacts server() {
    return {[](const std::vector<dialect::Token>& tokens) {
                dialect::Catalogue catalogue;
                catalogue.addSpelling(u("Reports"));
                catalogue.addColumnSpelling(u("Reports"), u("RecSource"));
                catalogue.addFlag(u("dict"), u("isgroup"));
                catalogue.addFlag(u("dict"), u("Sum"));
                return catalogue.namesIn(tokens);
            },
            [] { return u("zkp"); }, [] { return true; }};
}

QString postgres(const char* statement) {
    return dialect::rewriteForPostgres(u(statement), server()).text;
}
QString mariaDb(const char* statement) {
    return dialect::rewriteForMariaDb(u(statement), server()).text;
}

} // namespace

TEST(PostgresDialect, NamesInBracketsAreFoldedAsBareOnesAre) {
    EXPECT_EQ(postgres("SELECT [AGENTS].[AgentName] AS [AGENTNAME] FROM  POLICIES  LEFT JOIN [AGENTS] ON "
                       "[POLICIES].[AGENTID] = [AGENTS].[AgentID] Where  0=0 "),
              u("SELECT \"agents\".\"agentname\" AS \"agentname\" FROM  POLICIES  LEFT JOIN \"agents\" ON "
                "\"policies\".\"agentid\" = \"agents\".\"agentid\" Where  0=0 "));
    EXPECT_EQ(postgres("SELECT [Ποσό], \"A\"\"B\" FROM T"), u("SELECT \"Ποσό\", \"a\"\"b\" FROM T"));
    EXPECT_EQ(postgres("SELECT '[A]' FROM T -- [B]"), u("SELECT '[A]' FROM T -- [B]"));
}

TEST(PostgresDialect, ANameThatTheCatalogueKeepsOtherwiseIsSpeltAsThere) {
    EXPECT_EQ(postgres("Select * From reports Where [RECSOURCE] = '1' and recsource<>'2'"),
              u("Select * From \"Reports\" Where \"RecSource\" = '1' and \"RecSource\"<>'2'"));
    EXPECT_EQ(postgres("SELECT recsource FROM other"), u("SELECT recsource FROM other"));
}

TEST(PostgresDialect, TopBecomesALimit) {
    EXPECT_EQ(postgres("Select TOP 1 * From DICT2 Where SourceTableName = '7'"),
              u("Select * From DICT2 Where SourceTableName = '7' LIMIT 1"));
    EXPECT_EQ(postgres("SELECT TOP 1 A FROM T UNION ALL SELECT TOP 2 B FROM U"),
              u("(SELECT A FROM T LIMIT 1) UNION ALL (SELECT B FROM U LIMIT 2)"));
}

TEST(PostgresDialect, ComparisonsWithConstantsIgnoreCase) {
    EXPECT_EQ(postgres("SELECT * FROM T WHERE A='x' AND B IN ('1','y') AND C='2026-11-20'"),
              u("SELECT * FROM T WHERE A='x' COLLATE zkp AND B IN ('1','y' COLLATE zkp) AND C='2026-11-20'"));
    EXPECT_EQ(postgres("SELECT A FROM T WHERE A BETWEEN 'a' AND 'b'"),
              u("SELECT A FROM T WHERE A BETWEEN ('a' COLLATE zkp) AND 'b' COLLATE zkp"));
    const char* key = "SELECT * FROM T WHERE K='6F9619FF-8B86-D011-B42D-00C04FC964FF'";
    EXPECT_EQ(postgres(key), u(key));
}

TEST(PostgresDialect, DatesAndQuotientsAndCalls) {
    EXPECT_EQ(postgres("SELECT 1 WHERE D>=Convert(Datetime,'11/20/2026',102)"),
              u("SELECT 1 WHERE D>='2026-11-20'"));
    EXPECT_EQ(postgres("SELECT SUM(A) / SUM(B), C/D FROM T"),
              u("SELECT SUM(A) * 1.0::float8 / SUM(B), C/D FROM T"));
    EXPECT_EQ(postgres(" exec Sec_GetUserIerarxiaID 'P''1', 2, null"),
              u("SELECT * FROM \"sec_getuserierarxiaid\"('P''1', 2, NULL)"));
}

TEST(PostgresDialect, FlagsCompareWithNumbersAndNumbersStandForFlags) {
    EXPECT_EQ(
        postgres("Select * from dict where visbl = 1 and (isGroup = 1 or [Sum] = 1 or [Avg] = 1)"),
        u("Select * from dict where visbl = 1 and (isGroup::int = 1 or \"sum\"::int = 1 or \"avg\" = 1)"));
    EXPECT_EQ(postgres("Select * from dict where visbl=1 and (isGroup or [Sum] or [Max])"),
              u("Select * from dict where visbl=1 and (isGroup or \"sum\" or \"max\"::text NOT IN ('0', "
                "'false'))"));
    EXPECT_EQ(postgres("Select * From dict Where isgroup or isTot"),
              u("Select * From dict Where isgroup or isTot::text NOT IN ('0', 'false')"));
    for (const char* sql :
         {"SELECT A FROM T WHERE TRUE ", "SELECT A FROM T WHERE A BETWEEN B AND C AND 0=0",
          "SELECT A FROM T WHERE (B) = 1 and (C+D) > 2", "SELECT Count(A) FROM T WHERE B IN (C)"})
        EXPECT_EQ(postgres(sql), u(sql));
}

TEST(PostgresDialect, WhatAnUpdateGivesIsNotCompared) {
    EXPECT_EQ(postgres("update dict set [Sum] = 0, cptn='x', A = (B = 'y') where isgroup = 1 and C='z'"),
              u("update dict set \"sum\" = '0', cptn='x', A = (B = 'y' COLLATE zkp) where isgroup::int = 1 "
                "and C='z' COLLATE zkp"));
    EXPECT_EQ(mariaDb("update T set A='x', B=1 where C='z'"),
              u("update T set A='x', B=1 where C='z' COLLATE zkp"));
}

TEST(PostgresDialect, NullsSortFirstAsElsewhere) {
    EXPECT_EQ(postgres("SELECT A FROM T order by  1,[B] desc, C asc"),
              u("SELECT A FROM T order by  1 NULLS FIRST,\"b\" desc NULLS LAST, C asc NULLS FIRST"));
    EXPECT_EQ(postgres("SELECT (SELECT TOP 1 A FROM U order by A) FROM T"),
              u("SELECT (SELECT A FROM U order by A NULLS FIRST LIMIT 1) FROM T"));
}

// SQL Server and SQLite sort for a Group By; reports rest on it.
TEST(PostgresDialect, GroupsComeSortedWhereNoOrderIsGiven) {
    EXPECT_EQ(
        postgres("SELECT DISTINCT [A].[B] AS [K], Count(*) as cnt  FROM  T  Where  0=0  Group By [A].[B]"),
        u("SELECT DISTINCT \"a\".\"b\" AS \"k\", Count(*) as cnt  FROM  T  Where  0=0  Group By \"a\".\"b\" "
          "ORDER BY \"a\".\"b\" NULLS FIRST"));
    EXPECT_EQ(postgres("SELECT Count(*) FROM T Group By A"), u("SELECT Count(*) FROM T Group By A"));
    EXPECT_EQ(
        postgres("SELECT DISTINCT A,B, Count(*) As Cnt FROM T Group By A,B order by A"),
        u("SELECT DISTINCT A,B, Count(*) As Cnt FROM T Group By A,B order by A NULLS FIRST, B NULLS FIRST"));
    EXPECT_EQ(
        mariaDb("SELECT A, YEAR(B) FROM T Group By A,YEAR(B) HAVING A>1 order by Count(*) desc,a asc"),
        u("SELECT A, YEAR(B) FROM T Group By A,YEAR(B) HAVING A>1 order by Count(*) desc,a asc, YEAR(B)"));
    const char* both = "SELECT A FROM T Group By A UNION SELECT B FROM U";
    EXPECT_EQ(postgres(both), u(both));
}

TEST(PostgresDialect, GroupsAreLeftUnsortedWhereMoreThanAnOrderFollows) {
    for (const char* sql :
         {"SELECT A,B FROM T GROUP BY A,B OFFSET 1", "SELECT A,B FROM T GROUP BY A,B FETCH FIRST 2 ROWS ONLY",
          "SELECT A,B FROM T GROUP BY A,B HAVING A>1 LIMIT 2", "SELECT A,B FROM T GROUP BY A,B FOR UPDATE",
          "SELECT A,B FROM T GROUP BY A,percent WINDOW w AS (PARTITION BY A)"})
        EXPECT_EQ(postgres(sql), u(sql));
    for (const char* sql :
         {"SELECT A,B FROM T GROUP BY A,B WITH ROLLUP", "SELECT A,B FROM T GROUP BY A,B LOCK IN SHARE MODE",
          "SELECT A,B FROM T GROUP BY A,B ORDER BY A DESC FOR UPDATE",
          "SELECT A,B FROM T GROUP BY A,B INTO OUTFILE 'x'", "SELECT A,B FROM T GROUP BY A,B PROCEDURE X()"})
        EXPECT_EQ(mariaDb(sql), u(sql));
    EXPECT_EQ(postgres("SELECT A,B FROM T GROUP BY A,B ORDER BY B DESC FETCH FIRST 2 ROWS ONLY"),
              u("SELECT A,B FROM T GROUP BY A,B ORDER BY B DESC NULLS LAST FETCH FIRST 2 ROWS ONLY"));
    EXPECT_EQ(mariaDb("SELECT offset,T.lock FROM T GROUP BY offset,T.lock"),
              u("SELECT offset,T.lock FROM T GROUP BY offset,T.lock ORDER BY offset, T.lock"))
        << "columns of these names";
}

TEST(PostgresDialect, CollationsAndTypesInQuotesKeepTheirCapitals) {
    EXPECT_EQ(postgres("SELECT A COLLATE \"C\", B::\"Colour\", [C], \"D\" FROM T ORDER BY A COLLATE "
                       "pg_catalog.\"POSIX\""),
              u("SELECT A COLLATE \"C\", B::\"Colour\", \"c\", \"d\" FROM T ORDER BY A COLLATE "
                "pg_catalog.\"POSIX\" NULLS FIRST"));
}

TEST(PostgresDialect, ConstantsOfATypeTakeNoCollation) {
    for (const char* sql :
         {"SELECT 1 WHERE interval '1 day' > interval '1 hour'",
          "SELECT 1 FROM T WHERE timestamp '2020-01-01T00:00:00' <= D AND date 'Jan 1 2020' < D"}) {
        EXPECT_EQ(postgres(sql), u(sql));
        EXPECT_EQ(mariaDb(sql), u(sql));
    }
    EXPECT_EQ(postgres("SELECT 1 FROM T WHERE N'x' = A AND NOT 'y' = A"),
              u("SELECT 1 FROM T WHERE 'x' COLLATE zkp = A AND NOT 'y' COLLATE zkp = A"));
}

TEST(PostgresDialect, FieldsKeepTheNamesThatTheStatementWrites) {
    const auto names = [](const char* sql) {
        return dialect::rewriteForPostgres(u(sql), server()).outputNames;
    };
    EXPECT_EQ(names("SELECT TOP 3 [A].[Name] AS [NAME], Count(*), case when 1=1 then 2 end, Sum(B) C FROM T"),
              QStringList({u("NAME"), u(""), u(""), u("C")}));
    EXPECT_EQ(names("SELECT *, A FROM T"), QStringList());
    EXPECT_EQ(names("UPDATE T SET A=1"), QStringList());
}

TEST(MariaDbDialect, NamesGetItsSignsAndTablesTheirSpelling) {
    EXPECT_EQ(mariaDb("SELECT [A], \"B\", '[C]' FROM REPORTS, [reports] AS [R]"),
              u("SELECT `A`, `B`, '[C]' FROM `Reports`, `Reports` AS `R`"));
    EXPECT_EQ(mariaDb("SELECT A FROM Reports"), u("SELECT A FROM Reports"));
}

TEST(MariaDbDialect, TheOtherWordsOfTheBuilders) {
    EXPECT_EQ(mariaDb("Select TOP 1 * From T Where A = 'X' and D<Convert(Datetime,'1/2/2026',102)"),
              u("Select * From T Where A = 'X' COLLATE zkp and D<'2026-01-02' LIMIT 1"));
    EXPECT_EQ(mariaDb("SELECT (Sum(A) * 100) / (SELECT Sum(A) FROM T) FROM T"),
              u("SELECT (Sum(A) * 100) * 1e0 / (SELECT Sum(A) FROM T) FROM T"));
    EXPECT_EQ(mariaDb(" exec [My Proc] 'a'"), u("CALL `My Proc`('a')"));
    EXPECT_EQ(mariaDb("SELECT A, Count(*) FROM T Group By A;"),
              u("SELECT A, Count(*) FROM T Group By A ORDER BY A;"));
    EXPECT_EQ(mariaDb("SELECT A FROM T WHERE isgroup or [Sum]"), u("SELECT A FROM T WHERE isgroup or `Sum`"));
}

TEST(SelectShape, ItemsTellTheirColumns) {
    EXPECT_EQ(dialect::sourceColumns(dialect::tokenize(u("SELECT *, T.A, B AS C, D+1, [E F] FROM T"),
                                                       dialect::Dialect::SqlServer)),
              QStringList({u("*"), u("A"), u("B"), u(""), u("E F")}));
}

} // namespace zkp::ado::test
