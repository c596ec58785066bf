#include "ado/ado_fixture.h"

#include <QElapsedTimer>

#include <algorithm>
#include <chrono>
#include <thread>

namespace zkp::ado::test {

class FailureTest : public AdoTest {
protected:
    ConnectionPtr connectTo(const QString& file) {
        auto other = std::make_shared<Connection>();
        other->Open(u("sqlite:") + file);
        return other;
    }
};

TEST_F(FailureTest, AMissingFileIsNamedAndNotCreated) {
    const QString file = dir.filePath(u("missing.db"));
    EXPECT_EQ(errorNumber([&] { connectTo(file); }), kErrDatabase);
    EXPECT_TRUE(errorText([&] { connectTo(file); }).contains(u("missing.db")));
    EXPECT_FALSE(QFile::exists(file));
    const auto other = std::make_shared<Connection>();
    EXPECT_EQ(errorNumber([&] { other->Open(u("nonsense")); }), kErrDatabase);
    EXPECT_EQ(errorNumber([&] { other->Open(); }), kErrDatabase);
    EXPECT_EQ(other->State(), adStateClosed);
}

TEST_F(FailureTest, AFolderIsNoDatabase) {
    EXPECT_EQ(errorNumber([&] { connectTo(dir.path()); }), kErrDatabase);
}

TEST_F(FailureTest, AFileThatIsNoDatabaseIsRefusedAtOpen) {
    const QString path = newFile();
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(5000, 'x'));
    file.close();
    EXPECT_EQ(errorNumber([&] { connectTo(path); }), kErrDatabase);
    EXPECT_EQ(errorText([&] { connectTo(path); }), u("file is not a database"));
}

TEST_F(FailureTest, ADamagedFileFailsWithTheDatabasesWords) {
    const QString path = newFile();
    const auto other = connectTo(path);
    other->Execute(
        u("CREATE TABLE T AS WITH RECURSIVE i(n) AS (SELECT 0 UNION ALL SELECT n+1 FROM i WHERE n<5000) "
          "SELECT n, 'text number ' || n AS X FROM i"));
    other->Close();
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    for (qint64 place = 4096; place < file.size(); place += 4096) {
        file.seek(place);
        file.write(QByteArray(512, '\xee'));
    }
    file.close();
    const auto damaged = connectTo(path);
    const auto rs = std::make_shared<Recordset>();
    EXPECT_EQ(errorNumber([&] { rs->Open(u("SELECT * FROM T"), damaged); }), kErrDatabase);
    EXPECT_EQ(rs->State(), adStateClosed);
    rs->Open(u("SELECT 1"), damaged);
    EXPECT_EQ(rs->RecordCount(), 1) << "recordset and connection are usable afterwards";
}

TEST_F(FailureTest, ALockedFileFailsWithTheDatabasesWords) {
    const QString path = newFile();
    const auto owner = connectTo(path);
    owner->Execute(u("CREATE TABLE T (A)"));
    const auto reader = connectTo(path);
    owner->Execute(u("BEGIN EXCLUSIVE"));
    EXPECT_EQ(errorNumber([&] { reader->Execute(u("SELECT * FROM T")); }), kErrDatabase);
    EXPECT_EQ(errorText([&] { reader->Execute(u("SELECT * FROM T")); }), u("database is locked"));
    EXPECT_EQ(errorNumber([&] { connectTo(path); }), kErrDatabase);
    owner->Execute(u("COMMIT"));
    EXPECT_EQ(reader->Execute(u("SELECT * FROM T"))->RecordCount(), 0);
}

TEST_F(FailureTest, ACellOfAHundredMegabytesIsReadWhole) {
    const auto rs =
        open("SELECT 1 AS A, replace(hex(zeroblob(50000000)), '0', 'x') AS B, zeroblob(100000000) AS C, "
             "'y' AS D UNION ALL SELECT 2, 'small', x'01', 'z'");
    const auto& columns = rs->table().columns;
    ASSERT_EQ(columns[1]->bytes(0).size(), 100'000'000u);
    EXPECT_EQ(columns[1]->bytes(0).back(), 'x');
    EXPECT_EQ(columns[1]->bytes(1), "small");
    EXPECT_EQ(columns[2]->bytes(0).size(), 100'000'000u);
    EXPECT_EQ(columns[3]->bytes(1), "z");
}

TEST_F(FailureTest, TextThatIsNoUtf8IsKeptAndShownReplaced) {
    const auto rs = open("SELECT CAST(x'41ff42' AS TEXT) AS A UNION ALL SELECT CAST(x'ce' AS TEXT)");
    EXPECT_EQ(rs->table().columns[0]->bytes(0), "A\xff"
                                                "B");
    EXPECT_EQ(rs->Fields().Item(0).Value().toString(), u("A\uFFFDB"));
    rs->setFilter(u("A='a\uFFFDb'"));
    EXPECT_EQ(rs->RecordCount(), 1);
    rs->setSort(u("A"));
}

TEST_F(FailureTest, TextWithANulCharacterIsKeptWhole) {
    EXPECT_EQ(open("SELECT CAST(x'410042' AS TEXT) AS A")->Fields().Item(0).Value().toString().size(), 3);
}

class TimeoutTest : public AdoTest {
protected:
    TimeoutTest() {
        run("CREATE TABLE B AS WITH RECURSIVE i(n) AS (SELECT 0 UNION ALL SELECT n+1 FROM i WHERE n<199999) "
            "SELECT n, hex(n * 7919 % 200000) AS X, 'Κείμενο ' || n AS Y FROM i");
        cn->setCommandTimeout(1);
    }

    void expectTimeout(const char* sql) {
        QElapsedTimer timer;
        timer.start();
        EXPECT_EQ(errorNumber([&] { open(sql); }), kErrTimeout) << sql;
        EXPECT_GE(timer.elapsed(), 900) << sql;
        EXPECT_LT(timer.elapsed(), 10'000) << sql;
        EXPECT_EQ(open("SELECT count(*) FROM B")->Fields().Item(0).Value().toInt(), 200'000)
            << "usable afterwards";
    }
};

TEST_F(TimeoutTest, EndsACrossJoin) {
    expectTimeout("SELECT count(*) FROM B a, B b WHERE a.X || b.X = 'none'");
}

TEST_F(TimeoutTest, EndsASort) {
    expectTimeout("SELECT a.X FROM B a, (SELECT n FROM B LIMIT 500) b ORDER BY a.Y || b.n, a.X");
}

TEST_F(TimeoutTest, EndsASubquery) {
    expectTimeout("SELECT n, (SELECT count(*) FROM B b WHERE b.X > a.X || '1' AND b.Y LIKE '%9%') FROM B a "
                  "LIMIT 100000");
}

TEST_F(TimeoutTest, EndsALongFetch) {
    expectTimeout("WITH RECURSIVE i(n) AS (SELECT 0 UNION ALL SELECT n+1 FROM i) SELECT n FROM i");
}

TEST_F(TimeoutTest, EndsAStatementThatWrites) {
    EXPECT_EQ(errorNumber([&] { run("INSERT INTO B SELECT a.n, a.X, b.Y FROM B a, B b"); }), kErrTimeout);
    EXPECT_EQ(one("SELECT count(*) FROM B").toInt(), 200'000) << "and nothing of it stays";
}

TEST_F(TimeoutTest, AnotherStatementHasItsOwnTime) {
    open("SELECT 1");
    std::this_thread::sleep_for(std::chrono::milliseconds(1100));
    EXPECT_EQ(open("SELECT * FROM B LIMIT 5000")->RecordCount(), 5000)
        << "the former statement's time is over, not its own";
}

TEST_F(TimeoutTest, ZeroIsNoBoundAndNegativeIsRefused) {
    cn->setCommandTimeout(0);
    EXPECT_EQ(open("SELECT count(*) FROM B a, (SELECT n FROM B LIMIT 20) b")->RecordCount(), 1);
    EXPECT_EQ(errorNumber([&] { cn->setCommandTimeout(-1); }), kErrBadArgument);
    EXPECT_EQ(std::make_shared<Connection>()->CommandTimeout(), 30);
}

class ProgressTest : public AdoTest {
protected:
    ProgressTest() {
        run("CREATE TABLE B AS WITH RECURSIVE i(n) AS (SELECT 0 UNION ALL SELECT n+1 FROM i WHERE n<99999) "
            "SELECT n, 'x' || n AS X FROM i");
    }
};

TEST_F(ProgressTest, TellsTheRowsReadOnTheHostsThread) {
    std::vector<std::int64_t> told;
    const auto host = std::this_thread::get_id();
    cn->setFetchProgress([&](std::int64_t rows) {
        EXPECT_EQ(std::this_thread::get_id(), host);
        told.push_back(rows);
    });
    open("SELECT * FROM B");
    ASSERT_GE(told.size(), 8u);
    EXPECT_LE(told.size(), 10u);
    EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
    EXPECT_GE(told.front(), 10'000);
    EXPECT_LE(told.back(), 100'000);
}

TEST_F(ProgressTest, AnExceptionEndsTheFetchAndReachesTheCaller) {
    cn->setFetchProgress([](std::int64_t rows) {
        if (rows > 30'000)
            throw Error(12345, u("enough"));
    });
    const auto rs = std::make_shared<Recordset>();
    EXPECT_EQ(errorNumber([&] { rs->Open(u("SELECT * FROM B"), cn); }), 12345u);
    EXPECT_EQ(rs->State(), adStateClosed);
    cn->setFetchProgress({});
    rs->Open(u("SELECT * FROM B"), cn);
    EXPECT_EQ(rs->RecordCount(), 100'000);
}

TEST_F(ProgressTest, AnExceptionEndsAJoinThatWouldGoOnForLong) {
    cn->setFetchProgress([](std::int64_t) { throw 5; });
    QElapsedTimer timer;
    timer.start();
    EXPECT_THROW(open("SELECT a.n FROM B a, B b WHERE a.n < 1 OR b.n < 0 OR a.X || b.X = 'none'"), int);
    EXPECT_LT(timer.elapsed(), 10'000);
    cn->setFetchProgress({});
    EXPECT_EQ(one("SELECT count(*) FROM B").toInt(), 100'000);
}

TEST_F(ProgressTest, TheHostMayUseTheConnectionMeanwhile) {
    int answers = 0;
    cn->setFetchProgress([&](std::int64_t rows) {
        if (rows < 100'000)
            answers += open("SELECT count(*) FROM B")->Fields().Item(0).Value().toInt() == 100'000;
    });
    EXPECT_EQ(open("SELECT * FROM B ORDER BY X")->RecordCount(), 100'000);
    EXPECT_GE(answers, 8);
}

TEST_F(ProgressTest, TheHostMayCloseTheConnectionOrOpenTheSameRecordset) {
    auto rs = std::make_shared<Recordset>();
    std::uint32_t again = 0;
    cn->setFetchProgress([&](std::int64_t) {
        again = errorNumber([&] { rs->Open(u("SELECT 1"), cn); });
        EXPECT_EQ(rs->State(), adStateClosed);
        if (cn->State() == adStateOpen)
            cn->Close();
    });
    rs->Open(u("SELECT * FROM B"), cn);
    EXPECT_EQ(rs->RecordCount(), 100'000);
    EXPECT_EQ(again, kErrObjectOpen);
    EXPECT_EQ(cn->State(), adStateClosed);
}

TEST_F(ProgressTest, TheHostMayLetGoOfARecordsetThatIsRunAgain) {
    auto rs = open("SELECT * FROM B");
    rs->setFilter(u("n < 10"));
    const std::weak_ptr<Recordset> watched = rs;
    cn->setFetchProgress([&](std::int64_t) { rs.reset(); });
    rs->Requery();
    EXPECT_TRUE(watched.expired());
}

TEST_F(ProgressTest, LongResultsTakeFewBytesACell) {
    run("CREATE TABLE P (POLICYNO VARCHAR(20), CUSTOMER NVARCHAR(60), BRANCH NVARCHAR(40), PRODUCT "
        "NVARCHAR(40), "
        "CITY NVARCHAR(40), CODE VARCHAR(10), NET MONEY, TAX MONEY, GROSS MONEY, YEARS INTEGER)");
    run("INSERT INTO P SELECT 'POL-' || printf('%09d', n), 'Παπαδόπουλος Νικόλαος ' || (n * 7919 % 5000), "
        "'Κατάστημα ' || (n % 50), 'Κλάδος Αυτοκινήτων ' || (n % 20), 'Θεσσαλονίκη ' || (n % 300), 'C' || (n "
        "% 400), "
        "(n * 7919 % 10000000) / 100.0, (n % 100000) / 100.0, (n * 7919 % 10000000) / 100.0 + 17.25, n % 40 "
        "FROM B");
    const auto rs = open("SELECT * FROM P ORDER BY BRANCH, CUSTOMER");
    double bytes = 0;
    for (const auto& column : rs->table().columns)
        bytes += static_cast<double>(column->memoryUsed());
    EXPECT_LT(bytes / (100'000.0 * 10), 12.0);
}

} // namespace zkp::ado::test
