#include "ado/ado_fixture.h"

#include "base/currency.h"

#include <QDateTime>

namespace zkp::ado::test {

class RecordsetTest : public AdoTest {
protected:
    RecordsetTest() {
        run("CREATE TABLE POLICIES (ID INTEGER, NAME NVARCHAR(50), CODE VARCHAR(8), PREMIUM MONEY, START "
            "DATE, "
            "CHANGED DATETIME, ACTIVE BIT, RATE DOUBLE, KIND SMALLINT, BIG BIGINT, PICTURE BLOB)");
        run("INSERT INTO POLICIES VALUES (1, 'Νίκος', 'A1', 12.5, '2026-11-20', '2026-11-20 13:05:09', 1, "
            "0.25, 7, "
            "5000000000, x'00ff')");
        run("INSERT INTO POLICIES VALUES (2, '', NULL, 100, NULL, '2026-01-02', 0, 3, -1, 1, NULL)");
    }
};

TEST_F(RecordsetTest, StandsOnTheFirstRecordAfterOpen) {
    const auto rs = open("SELECT * FROM POLICIES ORDER BY ID");
    EXPECT_EQ(rs->State(), adStateOpen);
    EXPECT_FALSE(rs->Bof());
    EXPECT_FALSE(rs->Eof());
    EXPECT_EQ(rs->RecordCount(), 2);
    EXPECT_EQ(rs->AbsolutePosition(), 1);
    EXPECT_EQ(rs->Fields().Item(u"id").Value(), QVariant(1));
}

TEST_F(RecordsetTest, MovesToBothEndsAndBeyond) {
    const auto rs = open("SELECT * FROM POLICIES ORDER BY ID");
    rs->MoveLast();
    EXPECT_EQ(rs->AbsolutePosition(), 2);
    rs->MoveNext();
    EXPECT_TRUE(rs->Eof());
    EXPECT_EQ(rs->AbsolutePosition(), -3);
    EXPECT_EQ(errorNumber([&] { rs->MoveNext(); }), kErrNoCurrentRecord);
    EXPECT_EQ(errorNumber([&] { rs->Fields().Item(0).Value(); }), kErrNoCurrentRecord);
    rs->MoveFirst();
    rs->MovePrevious();
    EXPECT_TRUE(rs->Bof());
    EXPECT_EQ(rs->AbsolutePosition(), -2);
    EXPECT_EQ(errorNumber([&] { rs->MovePrevious(); }), kErrNoCurrentRecord);
    rs->setAbsolutePosition(2);
    EXPECT_EQ(rs->Collect(u("ID")), QVariant(2));
    EXPECT_EQ(errorNumber([&] { rs->setAbsolutePosition(3); }), kErrBadArgument);
    EXPECT_EQ(errorNumber([&] { rs->setAbsolutePosition(0); }), kErrBadArgument);
}

TEST_F(RecordsetTest, AnEmptyResultIsAtBothEnds) {
    const auto rs = open("SELECT * FROM POLICIES WHERE ID > 100");
    EXPECT_TRUE(rs->Bof());
    EXPECT_TRUE(rs->Eof());
    EXPECT_EQ(rs->RecordCount(), 0);
    EXPECT_EQ(errorNumber([&] { rs->MoveFirst(); }), kErrNoCurrentRecord);
    EXPECT_EQ(rs->Fields().Count(), 11);
}

TEST_F(RecordsetTest, DeclaredColumnsHaveThePublishedTypes) {
    const auto rs = open("SELECT * FROM POLICIES");
    const int types[] = {3, 202, 200, 6, 133, 135, 11, 5, 2, 20, 205};
    for (int i = 0; i < 11; ++i)
        EXPECT_EQ(rs->Fields().Item(i).Type(), types[i]) << i;
    EXPECT_EQ(rs->Fields().Item(u"name").DefinedSize(), 50);
    EXPECT_EQ(rs->Fields().Item(u"id").DefinedSize(), 4);
}

TEST_F(RecordsetTest, DeclaredTypesSurviveAView) {
    run("CREATE VIEW V AS SELECT p.PREMIUM, p.START, p.NAME AS WHO, p.PREMIUM * 2 AS TWICE FROM POLICIES p");
    const auto rs = open("SELECT * FROM V");
    EXPECT_EQ(rs->Fields().Item(u"PREMIUM").Type(), 6);
    EXPECT_EQ(rs->Fields().Item(u"START").Type(), 133);
    EXPECT_EQ(rs->Fields().Item(u"WHO").Type(), 202);
    EXPECT_EQ(rs->Fields().Item(u"TWICE").Type(), 5);
}

TEST_F(RecordsetTest, AnExpressionTakesTheTypeOfItsValues) {
    EXPECT_EQ(open("SELECT count(*) FROM POLICIES")->Fields().Item(0).Type(), 3);
    EXPECT_EQ(open("SELECT 3000000000")->Fields().Item(0).Type(), 20);
    EXPECT_EQ(open("SELECT 1.5")->Fields().Item(0).Type(), 5);
    EXPECT_EQ(open("SELECT 'x'")->Fields().Item(0).Type(), 202);
    EXPECT_EQ(open("SELECT x'00'")->Fields().Item(0).Type(), 205);
    EXPECT_EQ(open("SELECT NULL")->Fields().Item(0).Type(), 202);
}

TEST_F(RecordsetTest, AnIntegerColumnThatPasses32BitsIsABigOne) {
    run("INSERT INTO POLICIES (ID) VALUES (4000000000)");
    EXPECT_EQ(open("SELECT ID FROM POLICIES")->Fields().Item(0).Type(), 20);
}

TEST_F(RecordsetTest, ValuesComeAsTheirKinds) {
    const auto rs = open("SELECT * FROM POLICIES ORDER BY ID");
    EXPECT_EQ(rs->Collect(u("NAME")).toString(), u("Νίκος"));
    EXPECT_EQ(rs->Collect(u("PREMIUM")).value<Currency>().scaled, 125'000);
    EXPECT_EQ(rs->Collect(u("START")).toDateTime(), QDateTime(QDate(2026, 11, 20), QTime(0, 0)));
    EXPECT_EQ(rs->Collect(u("CHANGED")).toDateTime(), QDateTime(QDate(2026, 11, 20), QTime(13, 5, 9)));
    EXPECT_EQ(rs->Collect(u("ACTIVE")), QVariant(true));
    EXPECT_EQ(rs->Collect(u("RATE")), QVariant(0.25));
    EXPECT_EQ(rs->Collect(u("BIG")).toLongLong(), 5'000'000'000);
    EXPECT_EQ(rs->Collect(u("PICTURE")).toByteArray(), QByteArray("\0\xff", 2));
    rs->MoveNext();
    EXPECT_EQ(rs->Collect(u("PREMIUM")).value<Currency>().scaled, 1'000'000);
    EXPECT_EQ(rs->Collect(u("ACTIVE")), QVariant(false));
    EXPECT_EQ(rs->Collect(u("CHANGED")).toDateTime(), QDateTime(QDate(2026, 1, 2), QTime(0, 0)));
}

TEST_F(RecordsetTest, NullAndEmptyTextStayApart) {
    const auto rs = open("SELECT NAME, CODE FROM POLICIES WHERE ID = 2");
    EXPECT_TRUE(rs->Fields().Item(u"NAME").Value().isValid());
    EXPECT_EQ(rs->Fields().Item(u"NAME").Value().toString(), QString());
    EXPECT_FALSE(rs->Fields().Item(u"CODE").Value().isValid());
}

TEST_F(RecordsetTest, AFieldThatIsNotThereIsItsOwnError) {
    const auto rs = open("SELECT ID FROM POLICIES");
    EXPECT_EQ(errorNumber([&] { rs->Fields().Item(u"NOPE"); }), kErrItemNotFound);
    EXPECT_EQ(errorNumber([&] { rs->Fields().Item(1); }), kErrItemNotFound);
    EXPECT_EQ(errorNumber([&] { rs->Collect(u("NOPE")); }), kErrItemNotFound);
    EXPECT_EQ(rs->Fields().indexOf(u"NOPE"), -1);
}

TEST_F(RecordsetTest, FieldNamesAreFoundWithoutRegardToCase) {
    const auto rs = open("SELECT 1 AS [Ασφάλιστρο], 2 AS other, 3 AS OTHER");
    EXPECT_EQ(rs->Fields().indexOf(u"ΑΣΦΆΛΙΣΤΡΟ"), 0);
    EXPECT_EQ(rs->Fields().indexOf(u" Other "), 1);
    EXPECT_EQ(rs->Fields().Item(0).Name(), u("Ασφάλιστρο"));
}

TEST_F(RecordsetTest, AClosedObjectRefuses) {
    Recordset closed;
    EXPECT_EQ(closed.State(), adStateClosed);
    EXPECT_EQ(errorNumber([&] { closed.RecordCount(); }), kErrObjectClosed);
    EXPECT_EQ(errorNumber([&] { closed.Fields(); }), kErrObjectClosed);
    EXPECT_EQ(errorNumber([&] { closed.Close(); }), kErrObjectClosed);
    EXPECT_EQ(errorNumber([&] { closed.Eof(); }), kErrObjectClosed);
    EXPECT_EQ(errorNumber([&] { closed.MoveFirst(); }), kErrObjectClosed);
    EXPECT_EQ(errorNumber([&] { closed.setFilter({}); }), kErrObjectClosed);
    EXPECT_EQ(errorNumber([&] { closed.Update(); }), kErrObjectClosed);
    EXPECT_EQ(errorNumber([&] { closed.Open(u("SELECT 1"), nullptr); }), kErrNoConnection);
    const auto unopened = std::make_shared<Connection>();
    EXPECT_EQ(errorNumber([&] { closed.Open(u("SELECT 1"), unopened); }), kErrNoConnection);
    const auto rs = open("SELECT 1");
    EXPECT_EQ(errorNumber([&] { rs->Open(u("SELECT 1"), cn); }), kErrObjectOpen);
}

TEST_F(RecordsetTest, StaysReadableWhenItsConnectionIsClosed) {
    const auto rs = open("SELECT NAME FROM POLICIES WHERE ID = 1");
    cn->Close();
    EXPECT_EQ(rs->Fields().Item(0).Value().toString(), u("Νίκος"));
    EXPECT_EQ(errorNumber([&] { rs->Requery(); }), kErrNoConnection);
    EXPECT_EQ(errorNumber([&] { cn->Close(); }), kErrObjectClosed);
}

TEST_F(RecordsetTest, RequeryReadsAnewAndStandsOnTheFirstRecord) {
    const auto rs = open("SELECT ID FROM POLICIES ORDER BY ID DESC");
    const auto revision = rs->revision();
    rs->MoveNext();
    run("INSERT INTO POLICIES (ID) VALUES (3)");
    rs->Requery();
    EXPECT_EQ(rs->RecordCount(), 3);
    EXPECT_EQ(rs->AbsolutePosition(), 1);
    EXPECT_EQ(rs->Collect(u("ID")), QVariant(3));
    EXPECT_GT(rs->revision(), revision);
}

TEST_F(RecordsetTest, AStatementWithoutColumnsGivesAClosedRecordset) {
    const auto rs = cn->Execute(u("UPDATE POLICIES SET KIND = 9"));
    EXPECT_EQ(rs->State(), adStateClosed);
    EXPECT_EQ(one("SELECT sum(KIND) FROM POLICIES"), QVariant(18));
}

TEST_F(RecordsetTest, CloneMovesFiltersAndSortsByItself) {
    const auto rs = open("SELECT ID FROM POLICIES ORDER BY ID");
    rs->MoveNext();
    const auto clone = rs->Clone();
    EXPECT_EQ(clone->AbsolutePosition(), 1);
    clone->setFilter(u("ID=1"));
    EXPECT_EQ(clone->RecordCount(), 1);
    EXPECT_EQ(rs->RecordCount(), 2);
    EXPECT_EQ(rs->AbsolutePosition(), 2);
    rs->setSort(u("ID DESC"));
    EXPECT_EQ(firstField(rs), QStringList({u("2"), u("1")}));
    EXPECT_EQ(firstField(clone), QStringList({u("1")}));
    EXPECT_EQ(clone->table().columns[0], rs->table().columns[0]) << "the data are shared, not copied";
    rs->Close();
    EXPECT_EQ(clone->Collect(u("ID")), QVariant(1));
}

TEST_F(RecordsetTest, CloneOfAFilteredRecordsetShowsAllRecords) {
    const auto rs = open("SELECT ID FROM POLICIES ORDER BY ID");
    rs->setFilter(u("ID=2"));
    EXPECT_EQ(rs->Clone()->RecordCount(), 2);
}

} // namespace zkp::ado::test
