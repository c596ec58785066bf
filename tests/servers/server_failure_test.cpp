#include "server_fixture.h"

#include <QElapsedTimer>
#include <QRegularExpression>

namespace zkp::servers {

using namespace zkp::ado;

class ServerFailureTest : public ServerTest {
protected:
    const char* sleepSql() const { return isPostgres() ? "SELECT pg_sleep(20)" : "SELECT SLEEP(20)"; }
    /// A statement that works on for long without sleeping.
    const char* longSql() const {
        return isPostgres()
                   ? "SELECT Count(*) FROM generate_series(1,20000) a, generate_series(1,200000) b "
                     "WHERE a % 7 = b % 11"
                   : "SELECT Count(*) FROM seq_1_to_20000 a, seq_1_to_200000 b WHERE a.seq % 7 = b.seq % 11";
    }
    /// Ends this session's connection from another one.
    void cutOff() {
        const QString id =
            one(isPostgres() ? "SELECT pg_backend_pid()" : "SELECT CONNECTION_ID()").toString();
        const auto other = std::make_shared<Connection>();
        other->Open(connectionString());
        other->Execute(isPostgres() ? u("SELECT pg_terminate_backend(%1)").arg(id) : u("KILL %1").arg(id));
    }
};
INSTANTIATE_TEST_SUITE_P(Servers, ServerFailureTest, testing::Values(kPostgres, kMariaDb),
                         [](const auto& server) { return std::string(server.param.name); });

TEST_P(ServerFailureTest, AStatementThatTheServerCannotTakeIsTold) {
    for (const char* sql :
         {"SELEC 1", "SELECT * FROM ZT_NOT_THERE", "SELECT NOT_THERE FROM (SELECT 1 AS A) B"}) {
        const Error error = errorOf([&] { open(sql); });
        EXPECT_EQ(error.number(), kErrBadStatement) << sql << ": " << error.description().toStdString();
        EXPECT_FALSE(error.description().isEmpty());
    }
    EXPECT_EQ(one("SELECT 1").toInt(), 1);
}

TEST_P(ServerFailureTest, AWrongPasswordAndAServerThatIsDownAreTold) {
    const auto other = std::make_shared<Connection>();
    const Error wrong = errorOf([&] { other->Open(connectionString().replace(u("PWD=zkp"), u("PWD=no"))); });
    EXPECT_EQ(wrong.number(), kErrDatabase);
    EXPECT_TRUE(wrong.description().contains(u("password"), Qt::CaseInsensitive))
        << wrong.description().toStdString();
    QString down = connectionString();
    down.replace(QRegularExpression(u("Port=\\d+")), u("Port=9"));
    EXPECT_EQ(errorNumber([&] { other->Open(down); }), kErrDatabase);
    other->Open(connectionString());
    EXPECT_EQ(other->State(), adStateOpen);
}

TEST_P(ServerFailureTest, ATimeoutEndsTheStatementAndTheConnectionWorksOn) {
    cn->setCommandTimeout(1);
    for (const char* sql : {sleepSql(), longSql()}) {
        QElapsedTimer timer;
        timer.start();
        const Error error = errorOf([&] { open(sql); });
        EXPECT_EQ(error.number(), kErrTimeout) << sql << ": " << error.description().toStdString();
        EXPECT_LT(timer.elapsed(), 8'000) << sql;
        EXPECT_EQ(one("SELECT 1").toInt(), 1);
    }
}

TEST_P(ServerFailureTest, AConnectionThatIsCutOffCanBeOpenedAgain) {
    cutOff();
    const Error error = errorOf([&] { open("SELECT 1"); });
    EXPECT_EQ(error.number(), kErrDatabase) << error.description().toStdString();
    cn->Open();
    EXPECT_EQ(one("SELECT 1").toInt(), 1);
}

TEST_P(ServerFailureTest, ACutInsideATransactionLeavesNothingHalfWritten) {
    make("ZT_CUT", "A INTEGER");
    cn->BeginTrans();
    run("INSERT INTO ZT_CUT VALUES (1)");
    cutOff();
    EXPECT_NE(errorOf([&] {
                  run("INSERT INTO ZT_CUT VALUES (2)");
                  cn->CommitTrans();
              }).number(),
              0u);
    cn->Open();
    EXPECT_EQ(one("SELECT Count(*) FROM ZT_CUT").toInt(), 0);
}

TEST_P(ServerFailureTest, AProgressCallbackCanEndAFetch) {
    make("ZT_PROGRESS", "N INTEGER");
    run(isPostgres() ? "INSERT INTO ZT_PROGRESS SELECT n FROM generate_series(1, 50000) n"
                     : "INSERT INTO ZT_PROGRESS SELECT seq FROM seq_1_to_50000");
    std::int64_t told = 0;
    cn->setFetchProgress([&](std::int64_t rows) { told = rows; });
    EXPECT_EQ(open("SELECT * FROM ZT_PROGRESS")->RecordCount(), 50'000);
    EXPECT_GE(told, 40'000);
    cn->setFetchProgress([](std::int64_t) { throw Error(kErrInvalidCall, u("enough")); });
    EXPECT_EQ(errorText([&] { open("SELECT * FROM ZT_PROGRESS"); }), u("enough"));
    cn->setFetchProgress({});
    EXPECT_EQ(one("SELECT Count(*) FROM ZT_PROGRESS").toInt(), 50'000);
}

// PostgreSQL keeps 63 bytes of it, MariaDB refuses it.
TEST_P(ServerFailureTest, AColumnNameOfManyLettersIsTakenOrRefusedInTheServersWords) {
    const QString name = u("Ω").repeated(128);
    const QString sql = u("SELECT 1 AS [") + name + u("] FROM (SELECT 1 AS A) B");
    const Error error = errorOf([&] {
        const auto rs = open(sql);
        EXPECT_EQ(rs->Fields().Item(0).Name(), name);
        EXPECT_EQ(rs->Collect(name).toInt(), 1);
    });
    EXPECT_TRUE(error.number() == 0 || !error.description().isEmpty());
    EXPECT_EQ(one("SELECT 1").toInt(), 1);
}

} // namespace zkp::servers
