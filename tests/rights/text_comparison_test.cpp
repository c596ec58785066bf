#include "rights/report_fixture.h"

using namespace Qt::StringLiterals;

namespace zkp::rights {

namespace {

/// The same filter on each road of a report; the run-time ones put it into capitals.
class TextComparisonTest : public ReportTest {
protected:
    Rows plain(bool runTime, const QString& filter) {
        return sorted(load({.source = u"POLICIESDATA"_s,
                            .dictionary = u"POLICIESCLMNS"_s,
                            .columns = {u"POLICYNO"_s, u"BRANCH"_s, u"CATEGORY"_s, u"PREMIUM"_s},
                            .runTime = runTime,
                            .filter = filter},
                           {u"POLICYNO"_s, u"PREMIUM"_s}));
    }
    Rows totals(bool runTime, const QString& filter) {
        return sorted(load({.source = u"POLICIESDATA"_s,
                            .dictionary = u"POLICIESCLMNS"_s,
                            .columns = {u"SUM_PREMIUM"_s},
                            .factors = {u"CATEGORY"_s},
                            .totals = true,
                            .runTime = runTime,
                            .filter = filter},
                           {u"CATEGORY"_s, u"Cnt"_s, u"SUM_PREMIUM"_s}));
    }
    /// All four roads show the rows of a condition written by hand.
    void expectRows(const QString& filter, const std::string& condition) {
        const auto expectedRows =
            sorted(byHand("SELECT POLICYNO, PREMIUM FROM POLICIESDATA WHERE " + condition));
        const auto expectedTotals = sorted(byHand("SELECT CATEGORY, count(*), sum(PREMIUM) FROM POLICIESDATA "
                                                  "WHERE " +
                                                  condition + " GROUP BY 1"));
        for (const bool runTime : {false, true}) {
            SCOPED_TRACE(filter.toStdString() + (runTime ? " at run time" : ""));
            EXPECT_EQ(plain(runTime, filter), expectedRows);
            EXPECT_EQ(totals(runTime, filter), expectedTotals);
        }
    }
};

} // namespace

TEST_F(TextComparisonTest, SmallAndCapitalLettersAreTheSame) {
    ASSERT_FALSE(byHand("SELECT 1 FROM POLICIESDATA WHERE BRANCH = 'Βόλος'").empty());
    expectRows(u"branch='Βόλος'"_s, "BRANCH = 'Βόλος'");
    expectRows(u"branch='ΒΌΛΟΣ'"_s, "BRANCH = 'Βόλος'");
    expectRows(u"branch='βόλος'"_s, "BRANCH = 'Βόλος'");
}

TEST_F(TextComparisonTest, TheFinalSigmaIsASigma) {
    expectRows(u"branch='Βόλοσ'"_s, "BRANCH = 'Βόλος'");
}

TEST_F(TextComparisonTest, AccentsCount) {
    expectRows(u"branch='Βολος'"_s, "1 = 0");
    expectRows(u"branch='ΒΟΛΟΣ'"_s, "1 = 0");
}

TEST_F(TextComparisonTest, OtherComparisonsAndListsFollowTheSameRule) {
    expectRows(u"branch<>'βόλος'"_s, "BRANCH <> 'Βόλος'");
    expectRows(u"branch in ('βόλος','ΛΆΡΙΣΑ')"_s, "BRANCH IN ('Βόλος', 'Λάρισα')");
    expectRows(u"( branch='βόλος' and category<>'ΖΩΉΣ' )"_s, "BRANCH = 'Βόλος' AND CATEGORY <> 'Ζωής'");
}

TEST_F(TextComparisonTest, NumbersAndDatesCompareAsTheyAre) {
    expectRows(u"PREMIUM>=1000 and STARTDATE<Convert(Datetime,'07/01/2023',102)"_s,
               "PREMIUM >= 1000 AND STARTDATE < '2023-07-01'");
}

TEST_F(TextComparisonTest, AReportsStandingConditionComparesThatWayToo) {
    // It is kept as 'Άκυρη' and reaches the database as 'ΆΚΥΡΗ'.
    ASSERT_FALSE(byHand("SELECT 1 FROM CLAIMSDATA WHERE STATUS = 'Άκυρη'").empty());
    const Rows rows = load({.source = u"CLAIMSDATA"_s,
                            .dictionary = u"CLAIMSCLMNS"_s,
                            .columns = {u"CLAIMNO"_s, u"STATUS"_s},
                            .runTime = true,
                            .filter = u"TRUE"_s},
                           {u"CLAIMNO"_s});
    EXPECT_EQ(sorted(rows), sorted(byHand("SELECT CLAIMNO FROM CLAIMSDATA WHERE STATUS <> 'Άκυρη'")));
}

TEST_F(TextComparisonTest, TheStatementStaysAsItWasBuilt) {
    plain(true, u"branch='Βόλος'"_s);
    EXPECT_TRUE(grid->SQLRun().toString().contains(u"[BRANCHES].[BRANCHNAME]='ΒΌΛΟΣ'"_s));
    EXPECT_FALSE(grid->SQLRun().toString().contains(u"COLLATE"_s));
    EXPECT_EQ(recordset()->Source(), grid->SQLRun().toString());
}

} // namespace zkp::rights
