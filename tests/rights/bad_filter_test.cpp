#include "base/text.h"
#include "rights/report_fixture.h"

using namespace Qt::StringLiterals;

namespace zkp::rights {

namespace {

/// The four roads of a report, each with a filter that no report should have.
class BadFilterTest : public SpoiltTest {
protected:
    Report report(bool totals, bool runTime, const QString& filter) const {
        return {.source = u"POLICIESDATA"_s,
                .dictionary = u"POLICIESCLMNS"_s,
                .columns = totals ? QStringList{u"SUM_PREMIUM"_s}
                                  : QStringList{u"POLICYNO"_s, u"STATUS"_s, u"PREMIUM"_s},
                .factors = {u"BRANCH"_s},
                .totals = totals,
                .runTime = runTime,
                .filter = filter};
    }
    /// Each road shows one box and no row, and works afterwards: a plain report shows the database's own
    /// words, a totals report the common box.
    void expectRefused(const QString& filter, const QString& user = {}) {
        for (const bool totals : {false, true})
            for (const bool runTime : {false, true}) {
                SCOPED_TRACE(std::string(totals ? "totals" : "plain") + (runTime ? " at run time" : ""));
                refresh(report(totals, runTime, filter), user);
                ASSERT_EQ(boxes().size(), 1);
                EXPECT_EQ(isErrorBox(kMsgBoxExclamation), totals) << boxes().first().toStdString();
                EXPECT_EQ(host->messages.front().style, totals ? kMsgBoxExclamation : kMsgBoxCritical);
                EXPECT_EQ(grid->RecCount(), 0);
                expectAllIsWell();
            }
    }
};

} // namespace

TEST_F(BadFilterTest, AStatementBehindTheFilterIsNotRun) {
    for (const QString& filter :
         {u"0=0; drop table POLICIES"_s, u"0=0; drop table POLICIES --"_s,
          u"0=0; delete from POLICIES; select 1"_s, u"0=0 ); drop table POLICIES; select ( 1"_s,
          u"premium>0;drop view POLICIESDATA"_s})
        expectRefused(filter);
    EXPECT_EQ(database->number("SELECT count(*) FROM POLICIES"), 2000);
}

TEST_F(BadFilterTest, AnOpenQuoteIsRefused) {
    expectRefused(u"branch='Βόλος"_s);
    for (const User& user : users())
        expectRefused(u"branch='Βόλος"_s, QString::fromStdString(user.id));
}

TEST_F(BadFilterTest, OpenBracketsAreRefused) {
    expectRefused(u"( premium>0"_s);
    expectRefused(u"[premium>0"_s);
    expectRefused(u"premium>0 )"_s);
}

TEST_F(BadFilterTest, AConstantOfAHundredKilobytesIsAsGoodAsAnother) {
    const QString filter = u"branch<>'"_s + QString(100'000, u'Ω') + u'\'';
    const auto expected = madeDatabase().number("SELECT count(*) FROM POLICIESDATA WHERE BRANCH <> 'Ω'");
    for (const bool runTime : {false, true}) {
        load(report(false, runTime, filter), {u"POLICYNO"_s});
        EXPECT_EQ(recordset()->RecordCount(), expected);
        load(report(true, runTime, filter), {u"BRANCH"_s});
    }
    expectAllIsWell();
}

TEST_F(BadFilterTest, AListOfAHundredKilobytesIsAsGoodAsAnother) {
    QStringList numbers;
    for (int i = 0; i < 17'000; ++i)
        numbers << QString::number(100'000 + i);
    const QString filter = u"branch='ΒΌΛΟΣ' and PREMIUM not in ("_s + numbers.join(u","_s) + u")"_s;
    for (const bool runTime : {false, true})
        EXPECT_EQ(sorted(load(report(false, runTime, filter), {u"POLICYNO"_s})),
                  sorted(byHand("SELECT POLICYNO FROM POLICIESDATA WHERE BRANCH = 'Βόλος'")));
}

// Deeper than the database reads; no road may fall over it.
TEST_F(BadFilterTest, ConditionsOfAHundredKilobytesAreReadOrRefused) {
    const QString filter = u"premium>=0 or "_s.repeated(8'000) + u"premium<0"_s;
    ASSERT_GT(filter.size(), 100'000);
    for (const QString& deep : {filter, QString(50'000, u'(') + u"0=0"_s + QString(50'000, u')')})
        for (const bool totals : {false, true})
            for (const bool runTime : {false, true}) {
                refresh(report(totals, runTime, deep));
                EXPECT_EQ(boxes().size(), 1);
                expectAllIsWell();
            }
}

TEST_F(BadFilterTest, AFailedFilterIsNotLost) {
    refresh(report(false, true, u"branch='Βόλος"_s));
    EXPECT_EQ(grid->Filter(), u"[BRANCHES].[BRANCHNAME]='ΒΌΛΟΣ"_s.prepend(u' '));
    EXPECT_EQ(grid->MousePointer(), kPointerDefault);
    EXPECT_TRUE(grid->Redraw());
}

} // namespace zkp::rights
