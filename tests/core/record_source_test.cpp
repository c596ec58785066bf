#include "grid_fixture.h"

using namespace Qt::StringLiterals;
using namespace zkp;

using RecordSourceTest = GridTest;

TEST_F(RecordSourceTest, TextKindsStoreTheTextAndClearTheRecordset) {
    grid->setSourceType(ZKP_RecordSet);
    grid->setRecordSource(QVariant::fromValue(std::make_shared<ado::Recordset>()));
    EXPECT_NE(grid->RecordSource().value<ado::RecordsetPtr>(), nullptr);
    grid->setSourceType(ZKP_SQLStatement);
    grid->setRecordSource(u"select 1"_s);
    EXPECT_EQ(grid->RecordSource().value<ado::RecordsetPtr>(), nullptr);
    EXPECT_EQ(grid->RecordsourceSTR(), u"select 1"_s);
}

TEST_F(RecordSourceTest, TheKindOfTheStoredSourceDecidesItsText) {
    grid->setSourceType(ZKP_Table_QUERY);
    grid->setRecordSource(u"POLICIES"_s);
    grid->setSourceType(ZKP_Command); // set later: the text stays reachable
    EXPECT_EQ(grid->RecordsourceSTR(), u"POLICIES"_s);
}

TEST_F(RecordSourceTest, ACommandHasTextOnlyOnceItsRecordsetIsActive) {
    auto command = std::make_shared<ado::Command>();
    command->CommandText = u"select 1"_s;
    grid->setSourceType(ZKP_Command);
    grid->setRecordSource(QVariant::fromValue(command));
    EXPECT_EQ(grid->RecordsourceSTR(), u""_s);
}

TEST_F(RecordSourceTest, AKindOutsideGivesTheEmptyText) {
    grid->setSourceType(4);
    grid->setRecordSource(u"POLICIES"_s);
    EXPECT_EQ(grid->RecordsourceSTR(), u""_s);
}

TEST_F(RecordSourceTest, AValueOfAnotherKindIsATypeMismatch) {
    grid->setSourceType(ZKP_RecordSet);
    EXPECT_EQ(errorNumber([&] { grid->setRecordSource(u"select 1"_s); }), kErrTypeMismatch);
    grid->setSourceType(ZKP_Command);
    EXPECT_EQ(errorNumber([&] { grid->setRecordSource(5); }), kErrTypeMismatch);
}

TEST_F(RecordSourceTest, TheTextOfAMissingRecordsetIsAnError) {
    grid->setSourceType(ZKP_RecordSet);
    grid->setRecordSource(QVariant::fromValue(ado::RecordsetPtr()));
    EXPECT_EQ(errorNumber([&] { grid->RecordsourceSTR(); }), kErrObjectNotSet);
}
