#include "server_fixture.h"

#include <QProcess>
#include <QThread>

#include <thread>

namespace zkp::servers {

using namespace zkp::ado;

/// Servers that are killed and started again.
class ServerRestartTest : public ServerTest {
protected:
    void restart() const {
        const QByteArray script = qgetenv((QByteArray(GetParam().variable) + "_RESTART").constData());
        ASSERT_EQ(QProcess::execute(QString::fromUtf8(script), QStringList()), 0);
    }
    /// Opens the same connection again, once the server is back.
    void openAgain() {
        for (int i = 0; i < 300; ++i) {
            if (errorNumber([&] { cn->Open(); }) == 0)
                return;
            QThread::msleep(100);
        }
        FAIL() << "the server does not come back";
    }
};
INSTANTIATE_TEST_SUITE_P(Servers, ServerRestartTest, testing::Values(kPostgres, kMariaDb),
                         [](const auto& server) { return std::string(server.param.name); });

TEST_P(ServerRestartTest, AServerThatDiesInAStatementIsAnErrorAndTheConnectionOpensAgain) {
    std::thread killer([this] {
        QThread::msleep(300);
        restart();
    });
    const Error error = errorOf([&] { open(isPostgres() ? "SELECT pg_sleep(20)" : "SELECT SLEEP(20)"); });
    killer.join();
    EXPECT_EQ(error.number(), kErrDatabase) << error.description().toStdString();
    EXPECT_FALSE(error.description().isEmpty());
    openAgain();
    EXPECT_EQ(one("SELECT 1").toInt(), 1);
}

TEST_P(ServerRestartTest, AServerThatDiesInAFetchLeavesAWholeResultOrAnError) {
    make("ZT_FETCH", "N INTEGER, T VARCHAR(40)");
    run(isPostgres() ? "INSERT INTO ZT_FETCH SELECT n, 'Πελάτης ' || n FROM generate_series(1, 60000) n"
                     : "INSERT INTO ZT_FETCH SELECT seq, CONCAT('Πελάτης ', seq) FROM seq_1_to_60000");
    bool killed = false;
    cn->setFetchProgress([&](std::int64_t) {
        if (!std::exchange(killed, true))
            restart();
    });
    std::int64_t records = 0;
    const Error error = errorOf([&] { records = open("SELECT * FROM ZT_FETCH")->RecordCount(); });
    EXPECT_TRUE(killed);
    EXPECT_TRUE(error.number() == kErrDatabase || records == 60'000) << records;
    cn->setFetchProgress({});
    EXPECT_EQ(errorNumber([&] { open("SELECT 1"); }), kErrDatabase);
    openAgain();
    EXPECT_EQ(one("SELECT Count(*) FROM ZT_FETCH").toInt(), 60'000);
}

TEST_P(ServerRestartTest, AServerThatDiesWhileARecordIsWrittenKeepsNothingOfIt) {
    make("ZT_SAVE", "lstCode VARCHAR(50), ZKP_ BYTES");
    run("INSERT INTO ZT_SAVE VALUES ('before', NULL)");
    cn->BeginTrans();
    const auto rs = open("SELECT * FROM ZT_SAVE", adLockOptimistic);
    rs->AddNew();
    rs->setCollect(u("lstCode"), u("new"));
    rs->setCollect(u("ZKP_"), QByteArray(100'000, 'x'));
    rs->Update();
    restart();
    EXPECT_NE(errorNumber([&] { cn->CommitTrans(); }), 0u);
    openAgain();
    EXPECT_EQ(firstField(open("SELECT lstCode FROM ZT_SAVE")), QStringList({u("before")}));
    EXPECT_EQ(rs->Collect(u("lstCode")).toString(), u("new")) << "what was fetched stays readable";
}

} // namespace zkp::servers
