#include "ado/ado_fixture.h"

#include <QDirIterator>

namespace zkp::ado::test {

/// What is left of recordsets when their connection is closed, on a database file.
class CloseTest : public AdoTest {
protected:
    CloseTest() {
        cn->Close();
        cn->Open(u("sqlite:") + file);
        run("CREATE TABLE T (A INTEGER PRIMARY KEY, V TEXT)");
        run("INSERT INTO T VALUES (1, 'one'), (2, 'two'), (3, 'three')");
    }

    void openAgain() { cn->Open(u("sqlite:") + file); }
    QStringList written() {
        const auto other = std::make_shared<Connection>();
        other->Open(u("sqlite:") + file);
        return firstField(other->Execute(u("SELECT V FROM T ORDER BY A")));
    }
    /// How often this process has the file open.
    int handles() const {
        int count = 0;
        for (QDirIterator each(u("/proc/self/fd"), QDir::Files | QDir::System); each.hasNext();) {
            each.next();
            count += each.fileInfo().symLinkTarget() == file;
        }
        return count;
    }

    const QString file = newFile();
    const QStringList untouched{u("one"), u("two"), u("three")};
};

TEST_F(CloseTest, TheFileIsLetGoThoughRecordsetsLive) {
    const auto edited = open("SELECT A, V FROM T");
    edited->setCollect(u("V"), u("changed"));
    edited->Update();
    const auto command = std::make_shared<Command>();
    command->CommandText = u("SELECT 1; SELECT 2");
    command->ActiveConnection = cn;
    const auto first = std::make_shared<Recordset>();
    first->Open(command);
    const auto schema = cn->OpenSchema(adSchemaTables);
    ASSERT_GT(handles(), 0);
    cn->Close();
    EXPECT_EQ(handles(), 0);
}

TEST_F(CloseTest, ATransactionIsUndoneAndItsLockIsFree) {
    cn->BeginTrans();
    run("UPDATE T SET V = 'lost'");
    const auto rs = open("SELECT V FROM T");
    cn->Close();
    EXPECT_EQ(rs->Collect(u("V")).toString(), u("lost")) << "it keeps what it read";
    const auto other = std::make_shared<Connection>();
    other->Open(u("sqlite:") + file);
    other->Execute(u("UPDATE T SET V = 'mine' WHERE A = 1"));
    EXPECT_EQ(written(), QStringList({u("mine"), u("two"), u("three")}));
}

TEST_F(CloseTest, RecordsStayWhole) {
    const auto rs = open("SELECT A, V FROM T ORDER BY A");
    const auto left = open("SELECT A, V FROM T");
    left->AddNew();
    cn->Close();
    rs->MoveLast();
    EXPECT_EQ(rs->Collect(u("V")).toString(), u("three"));
    rs->setSort(u("A DESC"));
    EXPECT_EQ(firstField(rs), QStringList({u("3"), u("2"), u("1")}));
    rs->setFilter(u("A > 1"));
    EXPECT_EQ(rs->RecordCount(), 2);
    EXPECT_EQ(rs->Clone()->RecordCount(), 3);
    EXPECT_FALSE(rs->NextRecordset()) << "nothing would have followed";
    left->CancelUpdate();
    left->MoveNext();
    EXPECT_EQ(left->Collect(u("V")).toString(), u("two"));
}

TEST_F(CloseTest, NothingIsWrittenAnyMoreByTheNextSessionEither) {
    const auto edited = open("SELECT A, V FROM T ORDER BY A");
    edited->setCollect(u("V"), u("one"));
    edited->Update();
    const auto half = open("SELECT A, V FROM T ORDER BY A");
    half->setCollect(u("V"), u("half"));
    const auto added = open("SELECT A, V FROM T");
    added->AddNew();
    added->setCollect(u("V"), u("added"));
    const auto fresh = open("SELECT A, V FROM T");
    const auto clone = fresh->Clone();
    cn->Close();
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(errorNumber([&] { edited->setCollect(u("V"), u("x")); }), kErrObjectClosed);
        EXPECT_EQ(errorNumber([&] { edited->AddNew(); }), kErrObjectClosed);
        EXPECT_EQ(errorNumber([&] { fresh->setCollect(u("V"), u("x")); }), kErrObjectClosed);
        EXPECT_EQ(errorNumber([&] { clone->AddNew(); }), kErrObjectClosed);
        EXPECT_EQ(errorNumber([&] { half->Update(); }), kErrObjectClosed);
        EXPECT_EQ(errorNumber([&] { half->MoveNext(); }), kErrObjectClosed) << "leaving would write";
        EXPECT_EQ(errorNumber([&] { added->Update(); }), kErrObjectClosed);
        if (i == 0)
            openAgain();
    }
    EXPECT_EQ(errorText([&] { half->Update(); }), u("Operation is not allowed when the object is closed."));
    EXPECT_EQ(written(), untouched);
}

TEST_F(CloseTest, RequeryGoesByTheConnectionAsItIs) {
    const auto rs = open("SELECT A, V FROM T ORDER BY A");
    cn->Close();
    EXPECT_EQ(errorNumber([&] { rs->Requery(); }), kErrNoConnection);
    EXPECT_EQ(rs->RecordCount(), 3);
    openAgain();
    rs->Requery();
    rs->setCollect(u("V"), u("again"));
    rs->Update();
    EXPECT_EQ(written(), QStringList({u("again"), u("two"), u("three")}));
}

TEST_F(CloseTest, ResultsThatWereToComeDoNot) {
    const auto command = std::make_shared<Command>();
    command->CommandText = u("SELECT 1; DELETE FROM T");
    command->ActiveConnection = cn;
    const auto rs = std::make_shared<Recordset>();
    rs->Open(command);
    cn->Close();
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(errorNumber([&] { rs->NextRecordset(); }), kErrObjectClosed);
        EXPECT_EQ(rs->State(), adStateOpen);
        if (i == 0)
            openAgain();
    }
    EXPECT_EQ(written(), untouched);
}

// The host closes while it is told of the progress: that fetch ends whole, and nothing else begins.
TEST_F(CloseTest, AFetchThatRunsEndsFirst) {
    const auto edited = open("SELECT A, V FROM T");
    edited->setCollect(u("V"), u("late"));
    std::uint32_t refused = 0;
    cn->setFetchProgress([&](std::int64_t) {
        if (cn->State() != adStateOpen)
            return;
        cn->Close();
        refused = errorNumber([&] { edited->Update(); });
    });
    const auto rs = open("WITH RECURSIVE i(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM i WHERE n < 30000) "
                         "SELECT n FROM i");
    EXPECT_EQ(refused, kErrObjectClosed);
    EXPECT_EQ(rs->RecordCount(), 30'000);
    EXPECT_EQ(handles(), 0);
    EXPECT_EQ(written(), untouched);
}

} // namespace zkp::ado::test
