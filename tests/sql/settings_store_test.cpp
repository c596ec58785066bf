#include "sql/settings_store.h"

#include "support_fixture.h"

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

class Settings : public test::DatabaseTest {
protected:
    Settings() {
        run(u"create table QRN_Main (GenKey SMALLINT, GenSubKey SMALLINT, GenValue TEXT)"_s);
        run(u"insert into QRN_Main values (2, 6, '30'), (2, 7, '600'), (2, 8, ''), (2, 9, null), (-3, -4, 'αρνητικό')"_s);
    }

    QString get(int key, int subKey) {
        QString description = u"before"_s;
        const QString result = store.GETGeneral(key, subKey, description);
        last = description;
        return result;
    }
    QString stored(int key, int subKey) {
        const auto rows = open(
            u"select GenValue from QRN_Main where GenKey = %1 and GenSubKey = %2"_s.arg(key).arg(subKey));
        return rows->RecordCount() == 1 ? rows->Collect(u"GenValue"_s).toString()
                                        : u"%1 rows"_s.arg(rows->RecordCount());
    }

    SettingsStore store{cn};
    QString last;
};

} // namespace

TEST_F(Settings, AValueComesBackTwice) {
    EXPECT_EQ(get(2, 7), u"600"_s);
    EXPECT_EQ(last, u"600"_s);
}

TEST_F(Settings, AMissingPairReadsAsTheFourLettersNULL) {
    EXPECT_EQ(get(2, 99), u"NULL"_s);
    EXPECT_EQ(last, u"NULL"_s);
    EXPECT_EQ(get(6, 2), u"NULL"_s); // the two numbers are not exchangeable
}

TEST_F(Settings, AnEmptyValueReadsAsTheEmptyText) {
    EXPECT_EQ(get(2, 8), u""_s);
    EXPECT_EQ(last, u""_s);
}

TEST_F(Settings, ANullIsAFailureThatLeavesTheDescription) {
    EXPECT_EQ(get(2, 9), u""_s);
    EXPECT_EQ(last, u"before"_s);
}

TEST_F(Settings, NegativeKeysAreWrittenWithTheirSign) {
    EXPECT_EQ(get(-3, -4), u"αρνητικό"_s);
    EXPECT_TRUE(cn->LastStatementSent().contains(u"GenKey=-3"_s));
}

TEST_F(Settings, ANewPairIsOneNewRow) {
    EXPECT_TRUE(store.SETGeneral(2, 18, u"151"_s));
    EXPECT_EQ(stored(2, 18), u"151"_s);
    EXPECT_EQ(get(2, 18), u"151"_s);
    EXPECT_EQ(open(u"select * from QRN_Main"_s)->RecordCount(), 6);
}

TEST_F(Settings, ASecondWriteToAPairLeavesOneRow) {
    EXPECT_TRUE(store.SETGeneral(2, 18, u"151"_s));
    EXPECT_TRUE(store.SETGeneral(2, 18, u"O'Neil; drop table QRN_Main"_s));
    EXPECT_EQ(stored(2, 18), u"O'Neil; drop table QRN_Main"_s);
    EXPECT_EQ(open(u"select * from QRN_Main"_s)->RecordCount(), 6);
}

TEST_F(Settings, WritingAPairLeavesTheOthersAlone) {
    EXPECT_TRUE(store.SETGeneral(2, 7, u"900"_s));
    EXPECT_EQ(stored(2, 7), u"900"_s);
    EXPECT_EQ(stored(2, 6), u"30"_s);
    EXPECT_EQ(stored(-3, -4), u"αρνητικό"_s);
}

TEST_F(Settings, AnEmptyTextAndNegativeKeysCanBeStored) {
    EXPECT_TRUE(store.SETGeneral(-32768, -1, u""_s));
    EXPECT_EQ(get(-32768, -1), u""_s);
    EXPECT_EQ(last, u""_s);
}

TEST_F(Settings, ANumberInTheTableReadsAsItsText) {
    run(u"create table other as select * from QRN_Main"_s);
    run(u"drop table QRN_Main"_s);
    run(u"create table QRN_Main (GenKey SMALLINT, GenSubKey SMALLINT, GenValue INTEGER)"_s);
    run(u"insert into QRN_Main values (2, 6, 45)"_s);
    EXPECT_EQ(get(2, 6), u"45"_s);
}

TEST_F(Settings, AMissingTableIsAFailureWithoutAMessage) {
    run(u"drop table QRN_Main"_s);
    EXPECT_EQ(get(2, 6), u""_s);
    EXPECT_EQ(last, u"before"_s);
    EXPECT_FALSE(store.SETGeneral(2, 6, u"1"_s));
}

TEST_F(Settings, ATableWithoutAKeyColumnCannotBeWritten) {
    run(u"drop table QRN_Main"_s);
    run(u"create table QRN_Main (GenKey SMALLINT, GenValue TEXT)"_s);
    EXPECT_FALSE(store.SETGeneral(2, 6, u"1"_s));
    EXPECT_EQ(open(u"select * from QRN_Main"_s)->RecordCount(), 0);
}

TEST_F(Settings, AClosedOrMissingConnectionIsAFailure) {
    cn->Close();
    EXPECT_EQ(get(2, 6), u""_s);
    EXPECT_FALSE(store.SETGeneral(2, 6, u"1"_s));
    cn.reset();
    EXPECT_EQ(get(2, 6), u""_s);
    EXPECT_EQ(last, u"before"_s);
    EXPECT_FALSE(store.SETGeneral(2, 6, u"1"_s));
}

TEST_F(Settings, AnotherConnectionInTheVariableIsUsedFromThenOn) {
    cn = std::make_shared<ado::Connection>();
    cn->Open(u"sqlite:"_s);
    cn->Execute(u"create table QRN_Main (GenKey SMALLINT, GenSubKey SMALLINT, GenValue TEXT)"_s);
    EXPECT_EQ(get(2, 6), u"NULL"_s);
}
