#include "rights/report_fixture.h"

using namespace Qt::StringLiterals;

namespace zkp::rights {

namespace {

using RightsTotalsTest = ReportTest;

const QStringList kFactors{u"CATEGORY"_s, u"STATUS"_s};

Report policies(bool runTime, const QString& filter = {}) {
    return {.source = u"POLICIESDATA"_s,
            .dictionary = u"POLICIESCLMNS"_s,
            .columns = {u"SUM_PREMIUM"_s, u"AVG_PREMIUM"_s, u"MIN_PREMIUM"_s, u"MAX_PREMIUM"_s},
            .factors = kFactors,
            .totals = true,
            .runTime = runTime,
            .filter = filter};
}

Rows policiesByHand(const User& user, const std::string& standing = "1 = 1") {
    return sorted(byHand("SELECT CATEGORY, STATUS, count(*), sum(PREMIUM), avg(PREMIUM), min(PREMIUM), "
                         "max(PREMIUM) FROM POLICIESDATA WHERE (" +
                         standing + ") AND " + rightsOf(user) + " GROUP BY 1, 2"));
}

} // namespace

TEST_F(RightsTotalsTest, EveryUsersTotalsAreOfHisRows) {
    for (const bool runTime : {false, true})
        for (const User& user : users()) {
            SCOPED_TRACE(user.id + " of level " + user.level + (runTime ? " at run time" : ""));
            const Report report = policies(runTime);
            const QStringList fields = kFactors + QStringList{u"Cnt"_s} + report.columns;
            EXPECT_EQ(sorted(load(report, fields, &user)), policiesByHand(user));
            EXPECT_EQ(sorted(load(policies(runTime, u"( PREMIUM>500 or PREMIUM<0 )"_s), fields, &user)),
                      policiesByHand(user, "PREMIUM > 500 OR PREMIUM < 0"));
        }
}

TEST_F(RightsTotalsTest, EveryUsersTotalsOfTheOtherSources) {
    for (const bool runTime : {false, true})
        for (const User& user : users()) {
            SCOPED_TRACE(user.id + " of level " + user.level + (runTime ? " at run time" : ""));
            const Rows claims = load({.source = u"CLAIMSDATA"_s,
                                      .dictionary = u"CLAIMSCLMNS"_s,
                                      .columns = {u"SUM_PAID"_s},
                                      .factors = {u"REGION"_s},
                                      .totals = true,
                                      .runTime = runTime,
                                      .filter = u"TRUE"_s},
                                     {u"REGION"_s, u"Cnt"_s, u"SUM_PAID"_s}, &user);
            EXPECT_EQ(sorted(claims),
                      sorted(byHand("SELECT REGION, count(*), sum(PAID) FROM CLAIMSDATA WHERE " +
                                    std::string(runTime ? "STATUS <> 'Άκυρη'" : "1 = 1") + " AND " +
                                    rightsOf(user) + " GROUP BY 1")));
            const Rows products = load({.source = u"QRYPRODUCT"_s,
                                        .dictionary = u"PRODUCTCLMNS"_s,
                                        .columns = {u"SUM_PREMIUM"_s},
                                        .factors = {u"COVERCODE"_s},
                                        .totals = true,
                                        .runTime = runTime},
                                       {u"COVERCODE"_s, u"Cnt"_s, u"SUM_PREMIUM"_s}, &user);
            EXPECT_EQ(products, byHand("SELECT COVERCODE, count(*), sum(PREMIUM) FROM QRYPRODUCT WHERE " +
                                       rightsOf(user) + " GROUP BY 1 ORDER BY 1"));
        }
}

TEST_F(RightsTotalsTest, EveryUsersLossRatiosAreOfHisRows) {
    for (const bool runTime : {false, true})
        for (const User& user : users()) {
            const Rows rows = load({.source = u"LOSSRATIODATA"_s,
                                    .dictionary = u"LOSSRATIOCLMNS"_s,
                                    .columns = {u"LR"_s, u"LR1"_s, u"LR2"_s, u"LR3"_s},
                                    .factors = {u"CATEGORY"_s},
                                    .totals = true,
                                    .runTime = runTime,
                                    .lossRatio = true},
                                   {u"CATEGORY"_s, u"Cnt"_s, u"LR2"_s, u"LR3"_s}, &user);
            EXPECT_EQ(sorted(rows),
                      sorted(byHand("SELECT CATEGORY, count(*), sum(Poson) - sum(PosonLR), CASE WHEN "
                                    "sum(Poson) > 0 THEN sum(PosonLR) * 100.0 / sum(Poson) ELSE 100 END FROM "
                                    "LOSSRATIODATA WHERE " +
                                    rightsOf(user) + " GROUP BY 1")))
                << user.id << (runTime ? " at run time" : "");
        }
}

// What a percentage is of are all rows of the parent group, seen by the user or not.
TEST_F(RightsTotalsTest, PercentagesAreOfTheUsersRowsInAllRows) {
    const Report report{.source = u"POLICIESDATA"_s,
                        .dictionary = u"POLICIESCLMNS"_s,
                        .columns = {u"POS_CNT"_s, u"POS_PREMIUM"_s},
                        .factors = kFactors,
                        .totals = true,
                        .filter = u"0=0"_s};
    for (const User& user : users()) {
        const Rows rows = load(report, kFactors + QStringList{u"Cnt"_s} + report.columns, &user);
        EXPECT_EQ(rows, byHand("SELECT G.CATEGORY, G.STATUS, G.n, G.n * 100.0 / P.n, "
                               "G.s * 100.0 / CASE WHEN P.s > 0 THEN P.s ELSE 1 END "
                               "FROM (SELECT CATEGORY, STATUS, count(*) AS n, sum(PREMIUM) AS s FROM "
                               "POLICIESDATA WHERE " +
                               rightsOf(user) +
                               " GROUP BY 1, 2) G JOIN (SELECT CATEGORY, count(*) AS n, sum(PREMIUM) AS s "
                               "FROM POLICIESDATA GROUP BY 1) P ON P.CATEGORY = G.CATEGORY ORDER BY 1, 2"))
            << user.id;
    }
}

TEST_F(RightsTotalsTest, TheBasesOfThePercentagesAreOfTheUsersRows) {
    const Report report{.source = u"POLICIESDATA"_s,
                        .dictionary = u"POLICIESCLMNS"_s,
                        .columns = {u"POS_PREMIUM"_s, u"POS_CNT"_s},
                        .factors = {u"CATEGORY"_s},
                        .totals = true};
    for (const User& user : users()) {
        prepare(report, QString::fromStdString(user.id));
        grid->MakeFixedForGroup();
        const auto bases = connection->Execute(grid->RunTimePosSql());
        EXPECT_EQ(sorted(rowsOf(bases, {u"CATEGORY"_s, u"SUM_PREMIUM"_s, u"CNT"_s})),
                  sorted(byHand("SELECT CATEGORY, sum(PREMIUM), count(*) FROM POLICIESDATA WHERE " +
                                rightsOf(user) + " GROUP BY 1")))
            << user.id;
        EXPECT_EQ(boxes(), QStringList());
    }
}

} // namespace zkp::rights
