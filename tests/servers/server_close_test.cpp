#include "server_fixture.h"

#include <QElapsedTimer>
#include <QThread>

namespace zkp::servers {

using namespace zkp::ado;

/// Sessions end with their connection, whatever is kept of it.
class ServerCloseTest : public ServerTest {
protected:
    static ConnectionPtr connect() {
        const auto connection = std::make_shared<Connection>();
        connection->Open(connectionString());
        return connection;
    }
    /// The session's number on the server, as a recordset of it.
    RecordsetPtr numberOf(const ConnectionPtr& connection) const {
        return connection->Execute(isPostgres() ? u("SELECT pg_backend_pid()") : u("SELECT CONNECTION_ID()"));
    }
    /// How many of the sessions live; a server takes a moment to see one off.
    int living(const QStringList& numbers) {
        const QString sql =
            (isPostgres() ? u("SELECT Count(*) FROM pg_stat_activity WHERE pid IN (%1)")
                          : u("SELECT Count(*) FROM information_schema.PROCESSLIST WHERE ID IN (%1)"))
                .arg(numbers.join(u','));
        return open(sql)->Fields().Item(0).Value().toInt();
    }
    int left(const QStringList& numbers) {
        QElapsedTimer timer;
        timer.start();
        while (living(numbers) > 0 && timer.elapsed() < 5'000)
            QThread::msleep(20);
        return living(numbers);
    }
};
INSTANTIATE_TEST_SUITE_P(Servers, ServerCloseTest, testing::Values(kPostgres, kMariaDb),
                         [](const auto& server) { return std::string(server.param.name); });

TEST_P(ServerCloseTest, NoSessionIsKeptByRecordsets) {
    std::vector<RecordsetPtr> kept;
    QStringList numbers;
    const auto connection = std::make_shared<Connection>();
    for (int i = 0; i < 20; ++i) {
        connection->Open(connectionString());
        kept.push_back(numberOf(connection));
        numbers << kept.back()->Fields().Item(0).Value().toString();
        EXPECT_EQ(living({numbers.back()}), 1);
        connection->Close();
    }
    EXPECT_EQ(left(numbers), 0);
    EXPECT_EQ(kept.front()->Fields().Item(0).Value().toString(), numbers.front());
}

TEST_P(ServerCloseTest, ATransactionIsUndoneAndItsLocksAreFree) {
    make("ZT_CLOSE", "A INTEGER PRIMARY KEY, V VARCHAR(20)");
    run("INSERT INTO ZT_CLOSE VALUES (1, 'one'), (2, 'two')");
    const auto other = connect();
    other->BeginTrans();
    const auto rs = std::make_shared<Recordset>();
    rs->Open(u("SELECT * FROM ZT_CLOSE ORDER BY A"), other, adOpenStatic, adLockOptimistic);
    rs->setCollect(u("V"), u("lost"));
    rs->Update();
    other->Execute(u("UPDATE ZT_CLOSE SET V = 'lost' WHERE A = 2"));
    cn->setCommandTimeout(3);
    EXPECT_EQ(errorNumber([&] { run("UPDATE ZT_CLOSE SET V = 'mine' WHERE A = 1"); }), kErrTimeout);
    other->Close();
    run("UPDATE ZT_CLOSE SET V = 'mine' WHERE A = 1");
    EXPECT_EQ(firstField(open("SELECT V FROM ZT_CLOSE ORDER BY A")), QStringList({u("mine"), u("two")}));
    EXPECT_EQ(rs->Collect(u("V")).toString(), u("lost")) << "it keeps what it read";
    EXPECT_EQ(errorNumber([&] { rs->setCollect(u("V"), u("x")); }), kErrObjectClosed);
}

TEST_P(ServerCloseTest, NothingIsWrittenAnyMoreByTheNextSessionEither) {
    make("ZT_CLOSE", "A INTEGER, V VARCHAR(20)");
    run("INSERT INTO ZT_CLOSE VALUES (1, 'one')");
    const auto other = connect();
    const auto openOther = [&] {
        const auto rs = std::make_shared<Recordset>();
        rs->Open(u("SELECT * FROM ZT_CLOSE"), other, adOpenStatic, adLockOptimistic);
        return rs;
    };
    const auto edited = openOther();
    edited->setCollect(u("V"), u("two"));
    edited->Update();
    edited->setCollect(u("V"), u("lost"));
    const auto fresh = openOther();
    other->Close();
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(errorNumber([&] { edited->Update(); }), kErrObjectClosed);
        EXPECT_EQ(errorNumber([&] { fresh->AddNew(); }), kErrObjectClosed);
        if (i == 0)
            other->Open();
    }
    EXPECT_EQ(firstField(open("SELECT V FROM ZT_CLOSE")), QStringList({u("two")}));
    fresh->Requery();
    fresh->setCollect(u("V"), u("three"));
    fresh->Update();
    EXPECT_EQ(firstField(open("SELECT V FROM ZT_CLOSE")), QStringList({u("three")}));
}

/// What only this server has.
class MariaDbCloseTest : public ServerCloseTest {};
INSTANTIATE_TEST_SUITE_P(Servers, MariaDbCloseTest, testing::Values(kMariaDb),
                         [](const auto& server) { return std::string(server.param.name); });

TEST_P(MariaDbCloseTest, AProceduresResultsThatWereToComeDoNot) {
    run("DROP PROCEDURE IF EXISTS Two");
    run("CREATE PROCEDURE Two() BEGIN SELECT CONNECTION_ID(); SELECT 2; END");
    const auto other = connect();
    const auto first = other->Execute(u("exec Two"));
    const QString number = first->Fields().Item(0).Value().toString();
    EXPECT_EQ(living({number}), 1);
    other->Close();
    EXPECT_EQ(left({number}), 0);
    EXPECT_EQ(errorNumber([&] { first->NextRecordset(); }), kErrObjectClosed);
    EXPECT_EQ(first->Fields().Item(0).Value().toString(), number);
    // A run anew is not in the way of the results that the one before had left.
    const auto again = open("exec Two");
    again->Requery();
    ASSERT_TRUE(again->NextRecordset());
    EXPECT_EQ(one("SELECT 1").toInt(), 1);
}

} // namespace zkp::servers
