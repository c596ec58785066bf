#include "server_fixture.h"

#include "ado/command.h"

namespace zkp::servers {

using namespace zkp::ado;

/// Statements in words and signs that only one server has: they reach it as they are, and are cut as it
/// cuts them.
class ServerTokensTest : public ServerTest {
protected:
    ServerTokensTest() {
        make("ZT_TOKENS", "A INTEGER");
        run("INSERT INTO ZT_TOKENS VALUES (1)");
    }
    void refusesAsTwo(const char* sql) {
        const Error error = errorOf([&] { cn->Execute(u(sql)); });
        EXPECT_EQ(error.number(), kErrBadStatement) << sql;
        EXPECT_TRUE(error.description().startsWith(u("Text found after the end of the statement")))
            << error.description().toStdString();
        EXPECT_EQ(one("SELECT Count(*) FROM ZT_TOKENS").toInt(), 1) << sql;
    }
};
class PostgresTokensTest : public ServerTokensTest {};
INSTANTIATE_TEST_SUITE_P(Servers, PostgresTokensTest, testing::Values(kPostgres),
                         [](const auto& server) { return std::string(server.param.name); });
class MariaDbTokensTest : public ServerTokensTest {};
INSTANTIATE_TEST_SUITE_P(Servers, MariaDbTokensTest, testing::Values(kMariaDb),
                         [](const auto& server) { return std::string(server.param.name); });

TEST_P(PostgresTokensTest, ConstantsOfItsOwnFormsStayAsTheyAre) {
    EXPECT_EQ(one("SELECT $$[a] like 'X'$$ AS [B]").toString(), u("[a] like 'X'"));
    EXPECT_EQ(one("SELECT $t$it's; $$ [a] --$t$ AS [B]").toString(), u("it's; $$ [a] --"));
    EXPECT_EQ(one("SELECT E'it\\'s [x]' AS [B]").toString(), u("it's [x]"));
    EXPECT_EQ(one("SELECT E'it'\n'\\'s [x]' AS [B]").toString(), u("it's [x]"));
    EXPECT_EQ(one("SELECT 5 /* /* it's */ [x] */ AS [B]").toInt(), 5);
    EXPECT_EQ(one("SELECT 5 -- it's [x]\r AS [B]").toInt(), 5);
}

TEST_P(PostgresTokensTest, ATextIsCutAsTheServerCutsIt) {
    refusesAsTwo("SELECT E'\\'' AS A; DELETE FROM ZT_TOKENS; --'");
    refusesAsTwo("SELECT $$'$$ AS A; DELETE FROM ZT_TOKENS; --'");
    const auto command = std::make_shared<Command>();
    command->CommandText = u("SELECT $$;$$ AS A; SELECT E'\\';' AS B");
    command->ActiveConnection = cn;
    const auto first = std::make_shared<Recordset>();
    first->Open(command);
    EXPECT_EQ(first->Collect(u("A")).toString(), u(";"));
    const auto second = first->NextRecordset();
    ASSERT_TRUE(second);
    EXPECT_EQ(second->Collect(u("B")).toString(), u("';"));
    EXPECT_FALSE(second->NextRecordset());
    run("CREATE OR REPLACE FUNCTION Zt_Tokens_Add() RETURNS INTEGER LANGUAGE plpgsql AS $f$ BEGIN INSERT "
        "INTO "
        "ZT_TOKENS VALUES (2); RETURN 7; END; $f$");
    EXPECT_EQ(one("exec Zt_Tokens_Add").toInt(), 7);
}

TEST_P(PostgresTokensTest, ArraysAndSubscripts) {
    run("DROP TABLE IF EXISTS ZT_ARRAYS");
    run("CREATE TABLE ZT_ARRAYS (ID INTEGER, A INTEGER[], J JSONB)");
    run("INSERT INTO ZT_ARRAYS VALUES (1, ARRAY[10,20], '{\"k\":5}'), (2, ARRAY [30,40]::int[], NULL)");
    EXPECT_EQ(one("SELECT ARRAY[10,20] AS [B]").toString(), u("{10,20}"));
    EXPECT_EQ(one("SELECT ARRAY[[1,2],[3,[ID]]] AS [B] FROM ZT_ARRAYS WHERE [ID]=1").toString(),
              u("{{1,2},{3,1}}"));
    const auto rs = open("SELECT a[2] AS [Second], [ZT_ARRAYS].[A][1:1] AS [Part], (ARRAY[1,2])[2] AS Two, "
                         "A[(ID)] AS [At], j['k'] AS K FROM ZT_ARRAYS ORDER BY ARRAY[A[2],A[1]] DESC");
    ASSERT_EQ(rs->RecordCount(), 2);
    EXPECT_EQ(rs->Fields().Item(0).Name(), u("Second"));
    EXPECT_EQ(rs->Fields().Item(4).Name(), u("K"));
    EXPECT_EQ(rs->Collect(u("Second")).toInt(), 40);
    EXPECT_EQ(rs->Collect(u("Part")).toString(), u("{30}"));
    EXPECT_EQ(rs->Collect(u("Two")).toInt(), 2);
    EXPECT_EQ(rs->Collect(u("At")).toInt(), 40);
    rs->MoveNext();
    EXPECT_EQ(rs->Collect(u("At")).toInt(), 10);
    EXPECT_EQ(rs->Collect(u("K")).toString(), u("5"));
}

TEST_P(MariaDbTokensTest, CommentsAreThoseOfTheServer) {
    EXPECT_EQ(one("SELECT 5 AS [B] # it's [x]\n").toInt(), 5);
    EXPECT_EQ(one("SELECT 5--1 AS [B]").toInt(), 6);
    EXPECT_EQ(one("SELECT 5 /* /* it's */ AS [B]").toInt(), 5);
    EXPECT_EQ(one("SELECT 5 /*! + 1 */ AS [B]").toInt(), 6);
    EXPECT_EQ(one("SELECT 5 /*!999999 + [x] */ AS [B]").toInt(), 5);
    EXPECT_EQ(one("SELECT 5 -- it's [x]\r\n AS [B]").toInt(), 5);
    refusesAsTwo("SELECT 5 # '\n; DELETE FROM ZT_TOKENS # '");
    refusesAsTwo("SELECT 5--'-- '; DELETE FROM ZT_TOKENS");
}

TEST_P(MariaDbTokensTest, ANameMayBeginWithDigits) {
    run("DROP TABLE IF EXISTS 2026ZT");
    run("CREATE TABLE 2026ZT (A INTEGER)");
    run("INSERT INTO 2026zt VALUES (3)");
    EXPECT_EQ(one("SELECT 2026ZT.A FROM 2026zt").toInt(), 3);
    run("DROP TABLE 2026ZT");
}

/// What a connection for reading says to a text.
QString asRead(const QString& connectionString, const char* text) {
    const auto reader = std::make_shared<Connection>();
    reader->setMode(adModeRead);
    reader->Open(connectionString);
    const auto command = std::make_shared<Command>();
    command->CommandText = u(text);
    command->ActiveConnection = reader;
    QStringList said;
    const Error error = errorOf([&] {
        auto rs = std::make_shared<Recordset>();
        rs->Open(command);
        for (; rs; rs = rs->NextRecordset())
            said << rs->Fields().Item(0).Value().toString();
    });
    return (error.number() == 0 ? said : said << error.description()).join(u'|');
}

TEST_P(PostgresTokensTest, AConnectionForReadingTakesWhatWritesNothing) {
    const auto said = [](const char* text) { return asRead(connectionString(), text); };
    EXPECT_EQ(said("SELECT $$it's; delete$$"), u("it's; delete"));
    EXPECT_EQ(said("SELECT E'it\\'s; delete'"), u("it's; delete"));
    EXPECT_EQ(said("SELECT $$'$$; DELETE FROM ZT_TOKENS; --'"),
              u("'|The connection is open for reading only"));
    EXPECT_EQ(said("SELECT E'\\''; DELETE FROM ZT_TOKENS; --'"),
              u("'|The connection is open for reading only"));
    EXPECT_EQ(said("SELECT U&\"\\0073et_config\"('default_transaction_read_only','off',false)"),
              u("The connection is open for reading only"));
    EXPECT_EQ(one("SELECT Count(*) FROM ZT_TOKENS").toInt(), 1);
}

TEST_P(MariaDbTokensTest, AConnectionForReadingTakesWhatWritesNothing) {
    const auto said = [](const char* text) { return asRead(connectionString(), text); };
    EXPECT_EQ(said("SELECT 5 # it's [x]; delete\n"), u("5"));
    EXPECT_EQ(said("SELECT 5--1"), u("6"));
    EXPECT_EQ(said("SELECT 5 # '\n; DELETE FROM ZT_TOKENS # '"),
              u("5|The connection is open for reading only"));
    EXPECT_EQ(said("/*! DELETE FROM ZT_TOKENS */"), u("The connection is open for reading only"));
    EXPECT_EQ(one("SELECT Count(*) FROM ZT_TOKENS").toInt(), 1);
}

} // namespace zkp::servers
