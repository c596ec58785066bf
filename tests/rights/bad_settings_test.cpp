#include "base/texts/statements.h"
#include "rights/report_fixture.h"

#include <QElapsedTimer>

using namespace Qt::StringLiterals;

namespace zkp::rights {

namespace {

class BadSettingsTest : public SpoiltTest {
protected:
    Report totals() const {
        return {.source = u"POLICIESDATA"_s,
                .dictionary = u"POLICIESCLMNS"_s,
                .columns = {u"SUM_PREMIUM"_s},
                .factors = {u"BRANCH"_s},
                .totals = true};
    }
    std::uint32_t errorOfFill(const QString& user) {
        setUp(*grid, totals());
        return errorNumber([&] { fill(*grid, totals(), connection, user); });
    }
    void expectTotals() {
        EXPECT_EQ(load(totals(), {u"BRANCH"_s, u"SUM_PREMIUM"_s}),
                  byHand("SELECT BRANCH, sum(PREMIUM) FROM POLICIESDATA GROUP BY 1 ORDER BY 1"));
    }
};

} // namespace

TEST_F(BadSettingsTest, AMissingProcedureReachesTheCaller) {
    spoil(u"delete from procedures"_s);
    EXPECT_EQ(errorOfFill(u"P0001"_s), kErrBadStatement);
    spoil(u"drop table procedures"_s);
    EXPECT_EQ(errorOfFill(u"P0001"_s), kErrBadStatement);
    EXPECT_EQ(errorOfFill({}), 0u);
    EXPECT_EQ(errorOfFill(u"-1"_s), 0u); // no look-up
    EXPECT_EQ(boxes(), QStringList());
    expectAllIsWell();
}

TEST_F(BadSettingsTest, AProcedureOfOneFieldReachesTheCaller) {
    spoil(u"update procedures set statement = 'SELECT Ierarxia FROM SECUSERS WHERE UserID = ?1'"_s);
    EXPECT_EQ(errorOfFill(u"P0001"_s), kErrItemNotFound);
    expectAllIsWell();
}

TEST_F(BadSettingsTest, AUserThatNobodyKnowsReachesTheCaller) {
    EXPECT_EQ(errorOfFill(u"P9999"_s), kErrNoCurrentRecord);
    expectAllIsWell();
}

TEST_F(BadSettingsTest, AUserWithAnApostropheReachesTheCaller) {
    EXPECT_NE(errorOfFill(u"P'1"_s), 0u);
    EXPECT_NE(errorOfFill(u"P0001'; drop table POLICIES; --"_s), 0u);
    EXPECT_EQ(database->number("SELECT count(*) FROM POLICIES"), 2000);
    expectAllIsWell();
}

TEST_F(BadSettingsTest, WithoutTheLongTimeATotalsReportFailsAtOnce) {
    connection->setCommandTimeout(77);
    spoil(u"delete from QRN_Main where GenKey = 2 and GenSubKey = 7"_s);
    refresh(totals());
    EXPECT_TRUE(isErrorBox(kMsgBoxCritical));
    EXPECT_EQ(connection->CommandTimeout(), 77);
    expectAllIsWell();
}

TEST_F(BadSettingsTest, WithoutTheNormalTimeTheLongOneStays) {
    connection->setCommandTimeout(77);
    spoil(u"delete from QRN_Main where GenKey = 2 and GenSubKey = 6"_s);
    refresh(totals());
    EXPECT_TRUE(isErrorBox(kMsgBoxCritical));
    EXPECT_EQ(connection->CommandTimeout(), 300);
    expectAllIsWell();
}

TEST_F(BadSettingsTest, WithoutTheSettingsTableATotalsReportFails) {
    spoil(u"drop table QRN_Main"_s);
    refresh(totals());
    EXPECT_TRUE(isErrorBox(kMsgBoxCritical));
    expectAllIsWell();
}

TEST_F(BadSettingsTest, ASettingThatIsNoNumberFails) {
    for (const QString& value : {u"'πολύ'"_s, u"''"_s, u"null"_s, u"'99999999999999'"_s}) {
        spoil(u"update QRN_Main set GenValue = %1 where GenSubKey = 7"_s.arg(value));
        refresh(totals());
        EXPECT_TRUE(isErrorBox(kMsgBoxCritical)) << value.toStdString();
    }
    spoil(u"update QRN_Main set GenValue = '300' where GenSubKey = 7"_s);
    expectTotals();
}

TEST_F(BadSettingsTest, TheProductsCodeMustBeANumber) {
    const Report products{
        u"QRYPRODUCT"_s, u"PRODUCTCLMNS"_s, {u"PRODUCTNAME"_s, u"CATEGORY"_s, u"BRANCH"_s, u"PREMIUM"_s}};
    spoil(u"update QRN_Main set GenValue = 'Νικ' where GenSubKey = 18"_s);
    refresh(products);
    ASSERT_EQ(boxes().size(), 2); // the builder's, and that of opening the empty text
    EXPECT_EQ(boxes().first(), texts::normalFailed());
    spoil(u"delete from QRN_Main where GenSubKey = 18"_s);
    EXPECT_EQ(load(products, {u"PREMIUM"_s}).size(), 2000u);
}

TEST_F(BadSettingsTest, ALongTotalsStatementEndsAtItsTimeAndTheConnectionGoesOn) {
    spoil(u"create view ENDLESS as with recursive N(I) as (select 1 union all select I + 1 from N) "
          "select I % 7 as BRANCH, I as PREMIUM from N"_s);
    spoil(u"update QRN_Main set GenValue = '1' where GenSubKey = 7"_s);
    Report endless = totals();
    endless.source = u"ENDLESS"_s;
    QElapsedTimer clock;
    clock.start();
    refresh(endless);
    EXPECT_LT(clock.elapsed(), 30'000);
    EXPECT_TRUE(isErrorBox(kMsgBoxCritical));
    EXPECT_EQ(grid->RecCount(), 0);
    EXPECT_EQ(connection->CommandTimeout(), 1); // the long time stays, as wanted
    spoil(u"update QRN_Main set GenValue = '300' where GenSubKey = 7"_s);
    expectTotals();
    EXPECT_EQ(connection->CommandTimeout(), 30);
    expectAllIsWell();
}

TEST_F(BadSettingsTest, ALongPlainStatementEndsAtItsTimeAndGivesTheTimeBack) {
    spoil(u"create view ENDLESS as with recursive N(I) as (select 1 union all select I + 1 from N) "
          "select I as A, I as B, I as C, I as D from N"_s);
    connection->setCommandTimeout(77);
    prepare({u"ENDLESS"_s, {}, {u"A"_s, u"B"_s, u"C"_s, u"D"_s}});
    grid->setCommandTimeout(1);
    grid->refresh();
    EXPECT_EQ(boxes().size(), 1);
    EXPECT_EQ(host->messages.front().style, kMsgBoxCritical);
    EXPECT_EQ(connection->CommandTimeout(), 77);
    expectAllIsWell();
}

} // namespace zkp::rights
