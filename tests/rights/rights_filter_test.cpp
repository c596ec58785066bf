#include "rights/report_fixture.h"

using namespace Qt::StringLiterals;

namespace zkp::rights {

namespace {

const QString kEither = u"PREMIUM>=0 or PREMIUM<0"_s;

class RightsFilterTest : public ReportTest {
protected:
    Report report(bool totals, bool runTime, const QString& filter) const {
        return {.source = u"POLICIESDATA"_s,
                .dictionary = u"POLICIESCLMNS"_s,
                .columns = totals ? QStringList{u"SUM_PREMIUM"_s}
                                  : QStringList{u"BRANCH"_s, u"STATUS"_s, u"PREMIUM"_s},
                .factors = {u"CATEGORY"_s},
                .totals = totals,
                .runTime = runTime,
                .filter = filter};
    }
    /// How many policies a user sees or has in his totals.
    long long seen(bool totals, bool runTime, const QString& filter, const User& user) {
        const Rows rows = load(report(totals, runTime, filter), {totals ? u"Cnt"_s : u"PREMIUM"_s}, &user);
        if (!totals)
            return static_cast<long long>(rows.size());
        long long policies = 0;
        for (const auto& row : rows)
            policies += row.at(0).number.value_or(0) / 10'000;
        return policies;
    }
    static long long allowed(const User& user) {
        return madeDatabase().number("SELECT count(*) FROM POLICIESDATA WHERE " + rightsOf(user));
    }
};

} // namespace

// The condition stands behind the filter as it was given, and "and" binds closer than "or".
TEST_F(RightsFilterTest, AFilterOfAlternativesWithoutBracketsLetsRowsPast) {
    const User& user = users().front();
    for (const bool totals : {false, true})
        for (const bool runTime : {false, true})
            EXPECT_GT(seen(totals, runTime, kEither, user), allowed(user));
}

TEST_F(RightsFilterTest, TheSameFilterPaddedAndInBracketsShowsNoRowMore) {
    for (const User& user : users())
        for (const bool totals : {false, true})
            for (const bool runTime : {false, true})
                EXPECT_EQ(seen(totals, runTime, u" ( "_s + kEither + u" ) "_s, user), allowed(user))
                    << user.id << totals << runTime;
}

// A comment cuts the condition off; hosts keep comments out of what users type.
TEST_F(RightsFilterTest, ACommentLetsRowsPast) {
    const User& user = users().front();
    for (const bool runTime : {false, true})
        EXPECT_GT(seen(false, runTime, u"0=0 -- "_s, user), allowed(user));
}

TEST_F(RightsFilterTest, ACommentInBracketsIsRefused) {
    const QString user = QString::fromStdString(users().front().id);
    for (const bool totals : {false, true})
        for (const bool runTime : {false, true}) {
            refresh(report(totals, runTime, u" ( 0=0 -- ) "_s), user);
            EXPECT_EQ(boxes().size(), 1);
            EXPECT_EQ(grid->RecCount(), 0);
        }
}

} // namespace zkp::rights
