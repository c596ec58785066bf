#include "rights/report_fixture.h"

using namespace Qt::StringLiterals;

namespace zkp::rights {

namespace {

using TotalsTest = ReportTest;

/// Percentages of the parent group by hand; a parent with nothing in it counts as 1.
const std::string kSharesOfTheParent =
    "SELECT G.REGION, G.CATEGORY, G.n, G.s, G.n * 100.0 / CASE WHEN coalesce(P.n, 0) = 0 THEN 1 ELSE P.n END,"
    " G.s * 100.0 / CASE WHEN P.s > 0 THEN P.s ELSE 1 END "
    "FROM (SELECT REGION, CATEGORY, count(*) AS n, sum(PREMIUM) AS s FROM POLICIESDATA GROUP BY 1, 2) G "
    "LEFT JOIN (SELECT REGION, count(*) AS n, sum(PREMIUM) AS s FROM POLICIESDATA GROUP BY 1) P "
    "ON P.REGION = G.REGION ORDER BY 1, 2";

Report shares(const QStringList& factors) {
    return {.source = u"POLICIESDATA"_s,
            .dictionary = u"POLICIESCLMNS"_s,
            .columns = {u"POS_CNT"_s, u"POS_PREMIUM"_s},
            .factors = factors,
            .totals = true,
            .filter = u"0=0"_s};
}

} // namespace

TEST_F(TotalsTest, PercentagesAreOfTheGroupOneLevelUp) {
    const QStringList factors{u"REGION"_s, u"CATEGORY"_s};
    EXPECT_EQ(load(shares(factors),
                   factors + QStringList{u"Cnt"_s, u"SUM_PREMIUM"_s, u"POS_CNT"_s, u"POS_PREMIUM"_s}),
              byHand(kSharesOfTheParent));
}

TEST_F(TotalsTest, PercentagesOfOneFactorAreOfTheWhole) {
    EXPECT_EQ(load(shares({u"REGION"_s}), {u"REGION"_s, u"POS_CNT"_s, u"POS_PREMIUM"_s}),
              byHand("SELECT REGION, count(*) * 100.0 / (SELECT count(*) FROM POLICIESDATA), "
                     "sum(PREMIUM) * 100.0 / (SELECT sum(PREMIUM) FROM POLICIESDATA) FROM POLICIESDATA "
                     "GROUP BY 1 ORDER BY 1"));
}

TEST_F(TotalsTest, PercentagesOfThreeFactorsAreOfTheFirstTwo) {
    const QStringList factors{u"REGION"_s, u"CATEGORY"_s, u"STATUS"_s};
    const Rows rows = load(shares(factors), factors + QStringList{u"POS_CNT"_s, u"POS_PREMIUM"_s});
    EXPECT_EQ(rows,
              byHand("SELECT G.REGION, G.CATEGORY, G.STATUS, "
                     "G.n * 100.0 / CASE WHEN coalesce(P.n, 0) = 0 THEN 1 ELSE P.n END, "
                     "G.s * 100.0 / CASE WHEN P.s > 0 THEN P.s ELSE 1 END "
                     "FROM (SELECT REGION, CATEGORY, STATUS, count(*) AS n, sum(PREMIUM) AS s "
                     "FROM POLICIESDATA GROUP BY 1, 2, 3) G "
                     "LEFT JOIN (SELECT REGION, CATEGORY, count(*) AS n, sum(PREMIUM) AS s FROM POLICIESDATA "
                     "GROUP BY 1, 2) P ON P.REGION = G.REGION AND P.CATEGORY = G.CATEGORY ORDER BY 1, 2, 3"));
}

TEST_F(TotalsTest, PercentagesOfAFilteredReportAreOfWhatTheFilterLeaves) {
    Report report = shares({u"REGION"_s});
    report.filter = u"PREMIUM>500"_s;
    EXPECT_EQ(load(report, {u"REGION"_s, u"POS_PREMIUM"_s}),
              byHand("SELECT REGION, sum(PREMIUM) * 100.0 / (SELECT sum(PREMIUM) FROM POLICIESDATA WHERE "
                     "PREMIUM > 500) FROM POLICIESDATA WHERE PREMIUM > 500 GROUP BY 1 ORDER BY 1"));
}

// The database refuses it, since " and " follows " Where " at once; the text stays so.
TEST_F(TotalsTest, CountPercentagesOfTwoFactorsNeedAFilter) {
    Report report = shares({u"REGION"_s, u"CATEGORY"_s});
    report.filter.clear();
    refresh(report);
    EXPECT_EQ(boxes().size(), 1);
}

TEST_F(TotalsTest, AtRunTimeAPercentageComesBackAsItsBase) {
    Report report = shares({u"REGION"_s, u"CATEGORY"_s});
    report.runTime = true;
    EXPECT_EQ(
        sorted(load(report, {u"REGION"_s, u"CATEGORY"_s, u"Cnt"_s, u"SUM_PREMIUM"_s})),
        sorted(byHand("SELECT REGION, CATEGORY, count(*), sum(PREMIUM) FROM POLICIESDATA GROUP BY 1, 2")));
    EXPECT_EQ(recordset()->Fields().indexOf(u"POS_PREMIUM"), -1);
}

TEST_F(TotalsTest, LossRatiosOfBothBuilders) {
    for (const bool runTime : {false, true}) {
        const QStringList ratios{u"LR"_s, u"LR1"_s, u"LR2"_s, u"LR3"_s};
        const Rows rows = load({.source = u"LOSSRATIODATA"_s,
                                .dictionary = u"LOSSRATIOCLMNS"_s,
                                .columns = ratios,
                                .factors = {u"CATEGORY"_s},
                                .totals = true,
                                .runTime = runTime,
                                .lossRatio = true},
                               QStringList{u"CATEGORY"_s, u"Cnt"_s} + ratios);
        EXPECT_EQ(rows, byHand("SELECT CATEGORY, count(*), "
                               "CASE WHEN sum(PosonLR) > 0 THEN sum(Poson) * 1.0 / sum(PosonLR) ELSE 0 END, "
                               "CASE WHEN sum(Poson) > 0 THEN sum(PosonLR) * 1.0 / sum(Poson) ELSE 0 END, "
                               "sum(Poson) - sum(PosonLR), "
                               "CASE WHEN sum(Poson) > 0 THEN sum(PosonLR) * 100.0 / sum(Poson) ELSE 100 END "
                               "FROM LOSSRATIODATA GROUP BY 1 ORDER BY 1"))
            << runTime;
    }
}

TEST_F(TotalsTest, TheTimeLimitIsTheNormalOneAfterwards) {
    connection->setCommandTimeout(77);
    refresh(shares({u"REGION"_s}));
    EXPECT_EQ(connection->CommandTimeout(), 30); // the general setting
}

} // namespace zkp::rights
