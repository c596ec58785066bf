#include "server_fixture.h"

#include <QScopeGuard>

namespace zkp::servers {

using namespace zkp::ado;

/// What a session may be made to read or write by its settings, and what it must not.
class ServerReadingTest : public ServerTest {
protected:
    static ConnectionPtr connect(const char* settings, int mode = adModeReadWrite) {
        const auto connection = std::make_shared<Connection>();
        connection->setMode(mode);
        connection->Open(connectionString() + u(settings));
        return connection;
    }
};
INSTANTIATE_TEST_SUITE_P(Servers, ServerReadingTest, testing::Values(kPostgres, kMariaDb),
                         [](const auto& server) { return std::string(server.param.name); });

/// What only this server has.
class PostgresReadingTest : public ServerReadingTest {};
INSTANTIATE_TEST_SUITE_P(Servers, PostgresReadingTest, testing::Values(kPostgres),
                         [](const auto& server) { return std::string(server.param.name); });

TEST_P(ServerReadingTest, ABackslashOpensNothing) {
    const auto connection =
        isPostgres() ? connect(";ConnSettings=SET standard_conforming_strings%3Doff") : connect("");
    const auto rs = connection->Execute(u("SELECT 'a\\nb' AS A, '\\''; SELECT 1; --' AS B"));
    EXPECT_EQ(rs->Fields().Item(0).Value().toString(), u("a\\nb"));
    EXPECT_EQ(rs->Fields().Item(1).Value().toString(), u("\\'; SELECT 1; --"));
}

TEST_P(PostgresReadingTest, AUserWhoOnlyReadsComparesWithoutCase) {
    const auto reader = connect(";ConnSettings=SET default_transaction_read_only%3Don");
    EXPECT_EQ(reader->Execute(u("SELECT 1 AS A WHERE 'ωμέγα' = 'ΩΜΈΓΑ'"))->RecordCount(), 1);
    make("ZT_READ", "A INTEGER");
    EXPECT_NE(errorNumber([&] { reader->Execute(u("INSERT INTO ZT_READ VALUES (1)")); }), 0);
}

TEST_P(PostgresReadingTest, AUserWhoOnlyReadsComparesWithoutCaseInsideATransactionToo) {
    const auto reader = connect(";ConnSettings=SET default_transaction_read_only%3Don");
    const auto found = [&] {
        return reader->Execute(u("SELECT 1 AS A WHERE 'ωμέγα' = 'ΩΜΈΓΑ'"))->RecordCount();
    };
    make("ZT_READ", "A INTEGER");
    reader->BeginTrans();
    EXPECT_EQ(found(), 1);
    EXPECT_NE(errorNumber([&] { reader->Execute(u("INSERT INTO ZT_READ VALUES (1)")); }), 0);
    reader->RollbackTrans();
    EXPECT_EQ(found(), 1);
}

// A transaction that is not ours takes the collation with it, and the next one is made then.
TEST_P(PostgresReadingTest, ATransactionOfTheHostsOwnWordsLeavesNoCollationBehind) {
    const auto found = [&] { return open("SELECT 1 AS A WHERE 'ωμέγα' = 'ΩΜΈΓΑ'")->RecordCount(); };
    run("BEGIN");
    EXPECT_EQ(found(), 1);
    run("ROLLBACK");
    EXPECT_NE(errorNumber([&] { found(); }), 0u);
    EXPECT_EQ(found(), 1);
}

TEST_P(PostgresReadingTest, ACollationThatCannotBeMadeIsTold) {
    if (one("SELECT Count(*) FROM pg_roles WHERE rolname = 'zkp_bare'").toInt() == 0)
        run("CREATE ROLE zkp_bare LOGIN PASSWORD 'zkp'");
    run("REVOKE TEMPORARY ON DATABASE zkp FROM PUBLIC");
    const auto back = qScopeGuard([this] { run("GRANT TEMPORARY ON DATABASE zkp TO PUBLIC"); });
    const auto bare = std::make_shared<Connection>();
    bare->Open(connectionString().replace(u("UID=zkp"), u("UID=zkp_bare")));
    const Error error = errorOf([&] { bare->Execute(u("SELECT 1 AS A WHERE 'α' = 'Α'")); });
    EXPECT_EQ(error.number(), kErrDatabase);
    EXPECT_TRUE(error.description().contains(u("zkp_text"))) << error.description().toStdString();
    EXPECT_EQ(bare->Execute(u("SELECT 1 AS A WHERE 1 = 1"))->RecordCount(), 1);
    bare->BeginTrans();
    EXPECT_EQ(bare->Execute(u("SELECT 1 AS A WHERE 1 = 1"))->RecordCount(), 1);
    bare->CommitTrans();
}

TEST_P(PostgresReadingTest, ACommitThatFailsLeavesAConnectionForReadingReading) {
    make("ZT_READ", "A INTEGER");
    make("QRN_Main", "GenName VARCHAR(50) UNIQUE DEFERRABLE INITIALLY DEFERRED");
    run("CREATE OR REPLACE FUNCTION Writes() RETURNS INTEGER LANGUAGE sql AS 'INSERT INTO ZT_READ VALUES "
        "(1); SELECT 1'");
    const auto reader = connect("", adModeRead);
    reader->BeginTrans();
    reader->Execute(u("INSERT INTO QRN_Main VALUES ('a')"));
    reader->Execute(u("INSERT INTO QRN_Main VALUES ('a')"));
    EXPECT_NE(errorNumber([&] { reader->CommitTrans(); }), 0);
    EXPECT_NE(errorNumber([&] { reader->Execute(u("exec Writes")); }), 0);
    EXPECT_EQ(one("SELECT Count(*) FROM ZT_READ").toInt(), 0);
    EXPECT_EQ(one("SELECT Count(*) FROM QRN_Main").toInt(), 0);
    run("DROP TABLE QRN_Main");
}

TEST_P(ServerReadingTest, WordsForAnotherTableAreRefused) {
    make("frms2", "lstCode VARCHAR(50), ZKP_ BYTES, datein DATE");
    make("ZT_READ", "A INTEGER");
    run("INSERT INTO ZT_READ VALUES (1)");
    const auto reader = connect("", adModeRead);
    QStringList statements{u("UPDATE frms2, ZT_READ SET ZT_READ.A = 77"),
                           u("DELETE frms2, ZT_READ FROM frms2 JOIN ZT_READ")};
    if (!isPostgres())
        statements << u("/*! SET SESSION tx_read_only = ( */ SELECT 0 /*! ) */");
    for (const QString& statement : statements) {
        const Error error = errorOf([&] { reader->Execute(statement); });
        EXPECT_EQ(error.description(), u("The connection is open for reading only"))
            << statement.toStdString();
    }
    EXPECT_EQ(one("SELECT A FROM ZT_READ").toInt(), 1);
    run("DROP TABLE frms2");
}

} // namespace zkp::servers
