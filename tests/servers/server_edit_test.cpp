#include "server_fixture.h"

#include "base/currency.h"

#include <QDateTime>

namespace zkp::servers {

using namespace zkp::ado;

class ServerEditTest : public ServerTest {};
INSTANTIATE_TEST_SUITE_P(Servers, ServerEditTest, testing::Values(kPostgres, kMariaDb),
                         [](const auto& server) { return std::string(server.param.name); });

TEST_P(ServerEditTest, AnAddedRecordIsWrittenAndBecomesTheCurrentOne) {
    make("ZT_EDIT", isPostgres()
                        ? "lstCode VARCHAR(50), ZKP_ BYTES, datein DATE, amount DECIMAL(19,4), flag BOOLEAN"
                        : "lstCode VARCHAR(50), ZKP_ BYTES, datein DATE, amount DECIMAL(19,4), flag BIT(1)");
    const auto rs = open("select * from ZT_EDIT where lstCode = 'new'", adLockOptimistic);
    ASSERT_TRUE(rs->Eof());
    const QByteArray bytes("\0\x01\xff'x", 5);
    rs->AddNew();
    rs->Fields().Item(u"lstCode").setValue(u("New"));
    rs->Fields().Item(u"ZKP_").setValue(bytes);
    rs->Fields().Item(u"datein").setValue(QDateTime(QDate(2026, 11, 20), QTime(13, 5, 9)));
    rs->Fields().Item(u"amount").setValue(QVariant::fromValue(Currency{125'000}));
    rs->Fields().Item(u"flag").setValue(true);
    rs->Update();
    EXPECT_EQ(rs->RecordCount(), 1);
    EXPECT_EQ(rs->Collect(u("ZKP_")).toByteArray(), bytes);
    EXPECT_EQ(rs->Collect(u("datein")).toDateTime(), QDateTime(QDate(2026, 11, 20), QTime(0, 0)));
    EXPECT_EQ(rs->Collect(u("amount")).value<Currency>().scaled, 125'000);
    EXPECT_EQ(rs->Collect(u("flag")).toBool(), true);
    EXPECT_EQ(open("select * from ZT_EDIT where lstCode = 'NEW'")->RecordCount(), 1);
}

TEST_P(ServerEditTest, ARecordOfATableWithoutAKeyIsChangedInPlace) {
    make("ZT_NOKEY", "lstCode INTEGER, ZKP_ BYTES");
    run("INSERT INTO ZT_NOKEY VALUES (1, NULL), (2, NULL), (NULL, NULL)");
    const auto rs = open("select * from ZT_NOKEY where lstCode = 2", adLockOptimistic);
    for (const char* bytes : {"first", "second"}) {
        rs->setCollect(u("ZKP_"), QByteArray(bytes));
        rs->Update();
        EXPECT_EQ(rs->Collect(u("ZKP_")).toByteArray(), QByteArray(bytes));
    }
    EXPECT_EQ(one("SELECT Count(*) FROM ZT_NOKEY WHERE ZKP_ IS NULL").toInt(), 2);
    EXPECT_EQ(one("SELECT ZKP_ FROM ZT_NOKEY WHERE lstCode = 2").toByteArray(), QByteArray("second"));
}

TEST_P(ServerEditTest, ARecordIsFoundByItsPrimaryKeyThoughOthersLookTheSame) {
    make("ZT_KEY", "A INTEGER, B VARCHAR(20), V VARCHAR(20), PRIMARY KEY (A, B)");
    run("INSERT INTO ZT_KEY VALUES (1, 'x', 'same'), (1, 'y', 'same'), (2, 'x', 'same')");
    const auto rs = open("SELECT B, V FROM ZT_KEY WHERE A = 1 ORDER BY B", adLockOptimistic);
    rs->MoveLast();
    rs->setCollect(u("V"), u("changed"));
    rs->setCollect(u("B"), u("z"));
    rs->Update();
    rs->setCollect(u("V"), u("again"));
    rs->Update();
    EXPECT_EQ(firstField(open("SELECT V FROM ZT_KEY ORDER BY A, B")),
              QStringList({u("same"), u("again"), u("same")}));
}

// Another schema, or on MariaDB another database, may have a table of the same name.
TEST_P(ServerEditTest, TheTableOfTheStatementIsWrittenAndNoOther) {
    const char* kind = isPostgres() ? "SCHEMA" : "DATABASE";
    run(u("DROP %1 IF EXISTS aaa").arg(u(kind)) + (isPostgres() ? u(" CASCADE") : QString()));
    run(u("CREATE %1 aaa").arg(u(kind)));
    make("ZT_TWICE", "A INTEGER, V VARCHAR(20)");
    run("CREATE TABLE aaa.ZT_TWICE (W INTEGER, A INTEGER, V VARCHAR(20))");
    run("INSERT INTO ZT_TWICE VALUES (1, 'own')");
    run("INSERT INTO aaa.ZT_TWICE VALUES (9, 1, 'other')");
    const auto write = [&](const char* table, const char* changed, const char* added) {
        const auto rs = open(u("SELECT A, V FROM ") + u(table), adLockOptimistic);
        rs->setCollect(u("V"), u(changed));
        rs->Update();
        rs->AddNew();
        rs->setCollect(u("A"), 2);
        rs->setCollect(u("V"), u(added));
        rs->Update();
        EXPECT_EQ(rs->Collect(u("V")).toString(), u(added));
    };
    write("ZT_TWICE", "own changed", "own added");
    write("aaa.ZT_TWICE", "other changed", "other added");
    EXPECT_EQ(firstField(open("SELECT V FROM ZT_TWICE ORDER BY A")),
              QStringList({u("own changed"), u("own added")}));
    EXPECT_EQ(firstField(open("SELECT V FROM aaa.ZT_TWICE ORDER BY A")),
              QStringList({u("other changed"), u("other added")}));
    run(u("DROP %1 aaa").arg(u(kind)) + (isPostgres() ? u(" CASCADE") : QString()));
}

// A row's place on the server may be another row's by now, so that alone it tells nothing.
TEST_P(ServerEditTest, ARowThatSomebodyElseWroteMeanwhileIsNotOverwritten) {
    make("ZT_MEAN", "A INTEGER, V VARCHAR(20)");
    run("INSERT INTO ZT_MEAN VALUES (1, 'a'), (2, 'b')");
    const auto rs = open("SELECT * FROM ZT_MEAN ORDER BY A", adLockOptimistic);
    rs->setCollect(u("V"), u("mine"));
    rs->Update();
    rs->MoveNext();
    const auto other = std::make_shared<Connection>();
    other->Open(connectionString());
    other->Execute(u("DELETE FROM ZT_MEAN WHERE A = 2"));
    if (isPostgres())
        other->Execute(u("VACUUM ZT_MEAN"));
    other->Execute(u("INSERT INTO ZT_MEAN VALUES (3, 'innocent'), (4, 'innocent')"));
    rs->setCollect(u("V"), u("lost"));
    const Error error = errorOf([&] { rs->Update(); });
    EXPECT_EQ(error.number(), kErrDatabase);
    EXPECT_TRUE(error.description().startsWith(isPostgres() ? u("The row is no longer there.")
                                                            : u("Row cannot be located for updating.")))
        << error.description().toStdString();
    EXPECT_EQ(firstField(open("SELECT V FROM ZT_MEAN ORDER BY A")),
              QStringList({u("mine"), u("innocent"), u("innocent")}));
}

TEST_P(ServerEditTest, RowsThatDifferInLongTextsOnlyAreNotTakenForEachOther) {
    make("ZT_LONG", "A INTEGER, T LONGTEXT");
    run("INSERT INTO ZT_LONG VALUES (1, 'one'), (1, 'two')");
    const auto rs = open("SELECT * FROM ZT_LONG", adLockOptimistic);
    rs->MoveLast();
    rs->setCollect(u("A"), 2);
    const Error error = errorOf([&] { rs->Update(); });
    // PostgreSQL knows a row by its place; others refuse.
    const bool isWritten = isPostgres();
    EXPECT_EQ(error.description().section(u'.', 0, 0),
              isWritten ? QString() : u("Row cannot be located for updating"));
    rs->CancelUpdate();
    EXPECT_EQ(one("SELECT Count(*) FROM ZT_LONG WHERE A = 2").toInt(), isWritten ? 1 : 0);
    EXPECT_EQ(rs->Collect(u("T")).toString(), u("two"));
    EXPECT_EQ(one("SELECT Count(*) FROM ZT_LONG WHERE A = 1 AND T = 'one'").toInt(), 1);
}

TEST_P(ServerEditTest, RowsThatDifferInCaseOnlyAreTwoRows) {
    make("ZT_CASE", "N VARCHAR(20), V INTEGER");
    run("INSERT INTO ZT_CASE VALUES ('Άλφα', 1), ('άλφα', 1)");
    const auto rs = open("SELECT * FROM ZT_CASE", adLockOptimistic);
    rs->MoveLast();
    const QString name = rs->Collect(u("N")).toString();
    rs->setCollect(u("V"), 2);
    rs->Update();
    EXPECT_EQ(rs->Collect(u("N")).toString(), name);
    EXPECT_EQ(one("SELECT N FROM ZT_CASE WHERE V = 2").toString(), name);
    EXPECT_EQ(one("SELECT Count(*) FROM ZT_CASE WHERE V = 1").toInt(), 1);
}

TEST_P(ServerEditTest, WhatCannotBeReadBackIsNotWritten) {
    make("ZT_BACK", "A INTEGER PRIMARY KEY, V INTEGER");
    run("INSERT INTO ZT_BACK VALUES (1, 1)");
    const auto rs =
        open(isPostgres() ? "SELECT A, V, 10 / V AS W FROM ZT_BACK"
                          : "SELECT A, V, (SELECT A FROM ZT_BACK B WHERE B.A <= V) AS W FROM ZT_BACK",
             adLockOptimistic);
    rs->AddNew();
    rs->setCollect(u("A"), 2);
    rs->setCollect(u("V"), isPostgres() ? 0 : 2);
    EXPECT_NE(errorNumber([&] { rs->Update(); }), 0);
    rs->CancelUpdate();
    EXPECT_EQ(one("SELECT Count(*) FROM ZT_BACK").toInt(), 1);
}

TEST_P(ServerEditTest, ValuesThatAServerMakesComeBack) {
    make("ZT_AUTO", isPostgres() ? "ID SERIAL PRIMARY KEY, V VARCHAR(20)"
                                 : "ID INTEGER AUTO_INCREMENT PRIMARY KEY, V VARCHAR(20)");
    const auto rs = open("SELECT * FROM ZT_AUTO", adLockOptimistic);
    for (int i = 1; i <= 2; ++i) {
        rs->AddNew();
        rs->setCollect(u("V"), u("v"));
        rs->Update();
        EXPECT_EQ(rs->Collect(u("ID")).toInt(), i);
    }
}

TEST_P(ServerEditTest, WhatFailsWritesNothing) {
    make("ZT_FAIL", "A INTEGER PRIMARY KEY, V VARCHAR(3)");
    run("INSERT INTO ZT_FAIL VALUES (1, 'a')");
    const auto rs = open("SELECT * FROM ZT_FAIL", adLockOptimistic);
    rs->AddNew();
    rs->setCollect(u("A"), 1);
    EXPECT_EQ(errorNumber([&] { rs->Update(); }), kErrDatabase) << "the key is there already";
    rs->CancelUpdate();
    EXPECT_EQ(one("SELECT Count(*) FROM ZT_FAIL").toInt(), 1);
}

TEST_P(ServerEditTest, ATransactionIsKeptOrUndoneAsAWhole) {
    make("ZT_TRANS", "A INTEGER PRIMARY KEY");
    cn->BeginTrans();
    run("INSERT INTO ZT_TRANS VALUES (1)");
    const auto rs = open("SELECT * FROM ZT_TRANS", adLockOptimistic);
    rs->AddNew();
    rs->setCollect(u("A"), 2);
    rs->Update();
    EXPECT_EQ(errorNumber([&] { cn->BeginTrans(); }), kErrDatabase);
    cn->RollbackTrans();
    EXPECT_EQ(one("SELECT Count(*) FROM ZT_TRANS").toInt(), 0);
    cn->BeginTrans();
    run("INSERT INTO ZT_TRANS VALUES (3)");
    cn->CommitTrans();
    EXPECT_EQ(one("SELECT A FROM ZT_TRANS").toInt(), 3);
    EXPECT_EQ(errorNumber([&] { cn->CommitTrans(); }), kErrDatabase);
}

// The comparison's means may be made for the session, inside a transaction or before it.
TEST_P(ServerEditTest, ComparisonsIgnoreCaseAfterATransactionIsUndone) {
    for (int i = 0; i < 2; ++i) {
        cn->BeginTrans();
        EXPECT_EQ(one("SELECT Count(*) FROM (SELECT 'Α' AS A) B WHERE A = 'α'").toInt(), 1);
        cn->RollbackTrans();
        EXPECT_EQ(one("SELECT Count(*) FROM (SELECT 'Α' AS A) B WHERE A = 'α'").toInt(), 1);
    }
}

TEST_P(ServerEditTest, FiftyMegabytesComeBackByteForByte) {
    make("ZT_HUGE", "lstCode INTEGER PRIMARY KEY, ZKP_ BYTES");
    QByteArray bytes(50 * 1024 * 1024, '\0');
    for (qsizetype i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<char>(i * 31 + i / 65'521);
    const auto rs = open("SELECT * FROM ZT_HUGE", adLockOptimistic);
    rs->AddNew();
    rs->setCollect(u("lstCode"), 1);
    rs->setCollect(u("ZKP_"), bytes);
    rs->Update();
    EXPECT_TRUE(one("SELECT ZKP_ FROM ZT_HUGE").toByteArray() == bytes);
    make("ZT_HUGE", "A INTEGER");
}

TEST_P(ServerEditTest, AConnectionForReadingRunsNoProcedureThatWrites) {
    make("ZT_READ", "A INTEGER");
    if (isPostgres()) {
        run("DROP FUNCTION IF EXISTS Writes()");
        run("CREATE FUNCTION Writes() RETURNS INTEGER LANGUAGE sql AS 'INSERT INTO ZT_READ VALUES (1); "
            "SELECT 1'");
    } else {
        run("DROP PROCEDURE IF EXISTS Writes");
        run("CREATE PROCEDURE Writes() INSERT INTO ZT_READ VALUES (1)");
    }
    const auto reader = std::make_shared<Connection>();
    reader->setMode(adModeRead);
    reader->Open(connectionString());
    EXPECT_EQ(errorNumber([&] { reader->Execute(u("exec Writes")); }), kErrDatabase);
    EXPECT_EQ(one("SELECT Count(*) FROM ZT_READ").toInt(), 0);
    EXPECT_EQ(reader->Execute(u("SELECT 'Α' AS A WHERE 'Α' = 'α'"))->RecordCount(), 1);
}

TEST_P(ServerEditTest, AConnectionForReadingWritesTemplatesAndSettingsOnly) {
    make("frms2", "lstCode VARCHAR(50), ZKP_ BYTES, datein DATE");
    make("ZT_READ", "A INTEGER");
    const auto reader = std::make_shared<Connection>();
    reader->setMode(adModeRead);
    reader->Open(connectionString());
    EXPECT_EQ(errorNumber([&] { reader->Execute(u("INSERT INTO ZT_READ VALUES (1)")); }), kErrDatabase);
    EXPECT_EQ(errorNumber([&] { reader->Execute(u("DROP TABLE ZT_READ")); }), kErrDatabase);
    reader->Execute(u("DELETE FROM frms2"));
    const auto rs = std::make_shared<Recordset>();
    rs->Open(u("select * from frms2 where lstCode = 'x'"), reader, adOpenDynamic, adLockOptimistic);
    rs->AddNew();
    rs->setCollect(u("lstCode"), u("x"));
    rs->Update();
    const auto other = std::make_shared<Recordset>();
    other->Open(u("select * from ZT_READ"), reader, adOpenDynamic, adLockOptimistic);
    other->AddNew();
    other->setCollect(u("A"), 1);
    EXPECT_EQ(errorNumber([&] { other->Update(); }), kErrDatabase);
    EXPECT_EQ(one("SELECT Count(*) FROM frms2").toInt(), 1);
    EXPECT_EQ(one("SELECT Count(*) FROM ZT_READ").toInt(), 0);
}

} // namespace zkp::servers
