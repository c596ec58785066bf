#include "ado/ado_fixture.h"

#include "base/currency.h"

#include <QDateTime>

#include <limits>

namespace zkp::ado::test {

class EditTest : public AdoTest {
protected:
    EditTest() {
        run("CREATE TABLE QRN_Main (GenKey SMALLINT, GenSubKey SMALLINT, GenValue TEXT)");
        run("INSERT INTO QRN_Main VALUES (2, 6, '30'), (2, 7, '120'), (2, 18, '0')");
        run("CREATE TABLE frms2 (lstCode TEXT, ZKP_ BLOB, datein DATETIME, day DATE, amount MONEY, flag "
            "BIT)");
    }
};

TEST_F(EditTest, AnAddedRecordIsWrittenAndBecomesTheCurrentOne) {
    const auto rs = open("select * from frms2 where lstCode = 'new'", adLockOptimistic);
    ASSERT_TRUE(rs->Eof());
    const QByteArray bytes("\0\x01\xff'x", 5);
    rs->AddNew();
    rs->Fields().Item(u"lstCode").setValue(u("new"));
    rs->Fields().Item(u"ZKP_").setValue(bytes);
    rs->Fields().Item(u"datein").setValue(QDateTime(QDate(2026, 11, 20), QTime(13, 5, 9)));
    rs->Fields().Item(u"day").setValue(QDateTime(QDate(2026, 11, 20), QTime(13, 5, 9)));
    rs->Fields().Item(u"amount").setValue(QVariant::fromValue(Currency{125'000}));
    rs->Fields().Item(u"flag").setValue(true);
    EXPECT_EQ(rs->Collect(u("lstCode")).toString(), u("new"))
        << "what is set reads back before it is written";
    rs->Update();

    EXPECT_EQ(rs->RecordCount(), 1);
    EXPECT_EQ(rs->AbsolutePosition(), 1);
    EXPECT_EQ(rs->Collect(u("ZKP_")).toByteArray(), bytes);
    EXPECT_EQ(rs->Collect(u("datein")).toDateTime(), QDateTime(QDate(2026, 11, 20), QTime(13, 5, 9)));
    EXPECT_EQ(rs->Collect(u("day")).toDateTime(), QDateTime(QDate(2026, 11, 20), QTime(0, 0)));
    EXPECT_EQ(rs->Collect(u("amount")).value<Currency>().scaled, 125'000);
    EXPECT_EQ(one("SELECT hex(ZKP_) FROM frms2").toString(), u("0001FF2778"));
    EXPECT_EQ(one("SELECT datein FROM frms2").toDateTime(), QDateTime(QDate(2026, 11, 20), QTime(13, 5, 9)));
    EXPECT_EQ(one("SELECT typeof(flag) || flag FROM frms2").toString(), u("integer1"));
}

TEST_F(EditTest, ColumnsThatWereNotSelectedAreWrittenThroughCollect) {
    const auto rs = open("SELECT GenValue FROM QRN_Main where GenKey=9 and GenSubKey =1", adLockOptimistic);
    rs->AddNew();
    rs->setCollect(u("GenKey"), 9);
    rs->setCollect(u("GENSUBKEY"), 1);
    rs->setCollect(u("GenValue"), u("five"));
    EXPECT_EQ(rs->Collect(u("GenKey")).toInt(), 9);
    rs->Update();
    EXPECT_EQ(
        one("SELECT GenKey || '/' || GenSubKey || '/' || GenValue FROM QRN_Main WHERE GenKey=9").toString(),
        u("9/1/five"));
    EXPECT_EQ(rs->Collect(u("GenValue")).toString(), u("five"));
    EXPECT_EQ(errorNumber([&] { rs->Collect(u("GenKey")); }), kErrItemNotFound);
    EXPECT_EQ(errorNumber([&] { rs->setCollect(u("Nope"), 1); }), kErrItemNotFound);
}

TEST_F(EditTest, TheCurrentRecordIsEditedInPlace) {
    const auto rs = open("SELECT GenValue FROM QRN_MAIN where GenKey=2 order by GenSubKey", adLockOptimistic);
    rs->MoveNext();
    const auto revision = rs->revision();
    rs->setCollect(u("GenKey"), 2);
    rs->setCollect(u("GenSubKey"), 7);
    rs->setCollect(u("GenValue"), u(""));
    rs->Update();
    EXPECT_GT(rs->revision(), revision);
    EXPECT_EQ(rs->RecordCount(), 3);
    EXPECT_EQ(rs->AbsolutePosition(), 2);
    EXPECT_EQ(firstField(rs), QStringList({u("30"), u(""), u("0")}));
    EXPECT_EQ(firstField(open("SELECT GenValue FROM QRN_Main ORDER BY GenSubKey")),
              QStringList({u("30"), u(""), u("0")}));
    EXPECT_EQ(one("SELECT count(*) FROM QRN_Main").toInt(), 3);
    EXPECT_EQ(one("SELECT typeof(GenValue) FROM QRN_Main WHERE GenSubKey=7").toString(), u("text"));

    rs->Fields().Item(u"GenValue").setValue(QVariant());
    rs->Update();
    EXPECT_EQ(one("SELECT typeof(GenValue) FROM QRN_Main WHERE GenSubKey=7").toString(), u("null"));
    rs->MoveFirst();
    rs->Fields().Item(u"GenValue").setValue(u("31"));
    rs->MoveNext();
    EXPECT_EQ(one("SELECT GenValue FROM QRN_Main WHERE GenSubKey=6").toString(), u("31"))
        << "leaving a record writes it";
}

TEST_F(EditTest, RecordsOfTheSameValuesAreKeptApart) {
    run("INSERT INTO QRN_Main VALUES (5, 1, 'x'), (5, 2, 'x'), (5, 3, 'x')");
    const auto rs = open("SELECT GenValue FROM QRN_Main WHERE GenKey=5 ORDER BY GenSubKey");
    rs->MoveNext();
    rs->Fields().Item(0).setValue(u("y"));
    rs->Update();
    EXPECT_EQ(one("SELECT GenSubKey FROM QRN_Main WHERE GenValue='y'").toInt(), 2);
}

TEST_F(EditTest, ARecordThatOthersChangedIsNotOverwritten) {
    const auto rs = open("SELECT GenValue FROM QRN_Main WHERE GenSubKey=6");
    run("UPDATE QRN_Main SET GenValue='99' WHERE GenSubKey=6");
    rs->Fields().Item(0).setValue(u("1"));
    EXPECT_EQ(errorNumber([&] { rs->Update(); }), kErrDatabase);
    rs->CancelUpdate();
    EXPECT_EQ(one("SELECT GenValue FROM QRN_Main WHERE GenSubKey=6").toString(), u("99"));
}

TEST_F(EditTest, CancelUpdateForgetsWhatWasSet) {
    const auto rs = open("SELECT GenValue FROM QRN_Main ORDER BY GenSubKey");
    rs->Fields().Item(0).setValue(u("1"));
    rs->CancelUpdate();
    EXPECT_EQ(rs->Fields().Item(0).Value().toString(), u("30"));
    rs->AddNew();
    rs->CancelUpdate();
    rs->Update();
    EXPECT_EQ(one("SELECT count(*) FROM QRN_Main").toInt(), 3);
}

TEST_F(EditTest, ClonesSeeAnEditAndTheGridsColumnsDoNot) {
    const auto rs = open("SELECT GenValue FROM QRN_Main ORDER BY GenSubKey");
    const auto clone = rs->Clone();
    const auto held = rs->table().columns[0];
    rs->Fields().Item(0).setValue(u("77"));
    rs->Update();
    EXPECT_EQ(clone->Fields().Item(0).Value().toString(), u("77"));
    EXPECT_EQ(held->value(0).toString(), u("30"));
}

TEST_F(EditTest, WhatIsNoPlainSelectOfOneTableIsNotUpdatable) {
    run("CREATE VIEW V AS SELECT * FROM QRN_Main");
    for (const char* sql :
         {"SELECT a.GenValue FROM QRN_Main a, QRN_Main b", "SELECT GenKey, count(*) FROM QRN_Main GROUP BY 1",
          "SELECT DISTINCT GenValue FROM QRN_Main", "SELECT max(GenValue) FROM QRN_Main", "SELECT * FROM V",
          "SELECT GenValue FROM QRN_Main UNION SELECT 'x'", "SELECT 1"}) {
        const auto rs = open(sql);
        EXPECT_EQ(errorNumber([&] { rs->AddNew(); }), kErrNotSupported) << sql;
        EXPECT_EQ(errorNumber([&] { rs->Fields().Item(0).setValue(1); }), kErrNotSupported) << sql;
    }
    const auto locked = open("SELECT GenValue FROM QRN_Main", adLockReadOnly);
    EXPECT_EQ(errorNumber([&] { locked->AddNew(); }), kErrNotSupported);
    const auto expression = open("SELECT GenValue || 'x' AS E FROM QRN_Main");
    EXPECT_EQ(errorNumber([&] { expression->Fields().Item(0).setValue(1); }), kErrNotSupported);
}

TEST_F(EditTest, ATableOfAnAttachedFileIsNotTakenForTheFilesOwn) {
    run("ATTACH ':memory:' AS side");
    run("CREATE TABLE side.frms2 (lstCode TEXT)");
    const auto own = open("SELECT lstCode FROM main.frms2");
    own->AddNew();
    own->setCollect(u("lstCode"), u("own"));
    own->Update();
    const auto others = open("SELECT lstCode FROM side.frms2");
    EXPECT_EQ(errorNumber([&] { others->AddNew(); }), kErrNotSupported);
    EXPECT_EQ(one("SELECT count(*) FROM main.frms2").toInt(), 1);
}

TEST_F(EditTest, WhatCannotBeReadBackIsNotWritten) {
    run("CREATE TABLE K (A INTEGER PRIMARY KEY, B INTEGER)");
    run("INSERT INTO K VALUES (1, 1)");
    const auto rs = open("SELECT A, B, abs(B) AS C FROM K");
    const auto lowest = QVariant::fromValue<qlonglong>(std::numeric_limits<qlonglong>::min());
    rs->setCollect(u("B"), lowest);
    EXPECT_NE(errorNumber([&] { rs->Update(); }), 0) << "it has no absolute value";
    rs->CancelUpdate();
    rs->AddNew();
    rs->setCollect(u("B"), lowest);
    EXPECT_NE(errorNumber([&] { rs->Update(); }), 0);
    rs->CancelUpdate();
    EXPECT_EQ(one("SELECT sum(B) FROM K").toInt(), 1);
}

TEST_F(EditTest, AFailedWriteLeavesNothingBehind) {
    run("CREATE TABLE K (A INTEGER PRIMARY KEY, B TEXT NOT NULL)");
    run("INSERT INTO K VALUES (1, 'x')");
    const auto rs = open("SELECT * FROM K");
    rs->AddNew();
    rs->setCollect(u("A"), 1);
    rs->setCollect(u("B"), u("y"));
    EXPECT_EQ(errorNumber([&] { rs->Update(); }), kErrDatabase);
    rs->CancelUpdate();
    EXPECT_EQ(one("SELECT count(*) FROM K").toInt(), 1);
    EXPECT_EQ(rs->RecordCount(), 1);
    cn->BeginTrans();
    cn->RollbackTrans();
}

TEST_F(EditTest, AnEditInsideATransactionRollsBackWithIt) {
    cn->BeginTrans();
    const auto rs = open("SELECT GenValue FROM QRN_Main WHERE GenSubKey=6");
    rs->Fields().Item(0).setValue(u("1"));
    rs->Update();
    cn->RollbackTrans();
    EXPECT_EQ(one("SELECT GenValue FROM QRN_Main WHERE GenSubKey=6").toString(), u("30"));
}

TEST_F(EditTest, AStatementWithTopAliasAndOrderIsEditedToo) {
    const auto rs =
        open("SELECT TOP 1 m.[GenValue] AS V FROM [QRN_Main] m WHERE m.GenValue='120' ORDER BY 1");
    rs->Fields().Item(u"V").setValue(u("121"));
    rs->Update();
    EXPECT_EQ(one("SELECT GenValue FROM QRN_Main WHERE GenSubKey=7").toString(), u("121"));
}

TEST_F(EditTest, ReadOnlyConnectionsWriteTemplatesAndSettingsOnly) {
    const QString file = newFile();
    cn->Close();
    cn->Open(u("sqlite:") + file);
    run("CREATE TABLE QRN_Main (GenKey SMALLINT, GenSubKey SMALLINT, GenValue TEXT)");
    run("CREATE TABLE frms (lstCode INTEGER, ZKP_ BLOB)");
    run("CREATE TABLE T (A INTEGER)");
    run("CREATE INDEX T_A ON T (A)");
    cn->Close();
    cn->setMode(adModeRead);
    cn->Open(u("sqlite:") + file);
    for (const char* sql :
         {"INSERT INTO T VALUES (1)", "UPDATE T SET A=1", "DELETE FROM T", "DROP TABLE T",
          "CREATE TABLE U (A)", "CREATE VIEW V AS SELECT 1", "ALTER TABLE T RENAME TO frms2",
          "PRAGMA user_version=5", "VACUUM", "REINDEX", "ATTACH ':memory:' AS x",
          "CREATE TEMP TABLE frms2 (A)", "DROP TABLE frms", "PRAGMA writable_schema=1"}) {
        EXPECT_EQ(errorNumber([&] { run(sql); }), kErrDatabase) << sql;
    }
    run("INSERT INTO FRMS VALUES (1, NULL)");
    const auto rs = open("SELECT GenValue FROM QRN_MAIN WHERE GenKey=2", adLockOptimistic);
    rs->AddNew();
    rs->setCollect(u("GenKey"), 2);
    rs->setCollect(u("GenValue"), u("x"));
    rs->Update();
    EXPECT_EQ(one("SELECT GenValue FROM QRN_Main").toString(), u("x"));
    const auto other = open("SELECT A FROM T", adLockOptimistic);
    other->AddNew();
    other->setCollect(u("A"), 1);
    EXPECT_EQ(errorNumber([&] { other->Update(); }), kErrDatabase);
    EXPECT_EQ(cn->OpenSchema(adSchemaColumns, {QVariant(), QVariant(), u("T")})->RecordCount(), 1);
    EXPECT_EQ(errorNumber([&] { cn->setMode(adModeReadWrite); }), kErrObjectOpen);
}

} // namespace zkp::ado::test
