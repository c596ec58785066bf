#include "base/texts/filters.h"
#include "rights/report_fixture.h"

using namespace Qt::StringLiterals;

namespace zkp::rights {

namespace {

/// What `ZkpGrid::setUserFilter` makes of ordinary filters.
class UserFilterTest : public ReportTest {
protected:
    Report policies(bool runTime) const {
        return {.source = u"POLICIESDATA"_s,
                .dictionary = u"POLICIESCLMNS"_s,
                .columns = {u"POLICYNO"_s, u"BRANCH"_s, u"STATUS"_s, u"PREMIUM"_s},
                .runTime = runTime};
    }
    Report claims(bool totals) const {
        return {.source = u"CLAIMSDATA"_s,
                .dictionary = u"CLAIMSCLMNS"_s,
                .columns = totals ? QStringList{u"SUM_PAID"_s} : QStringList{u"CLAIMNO"_s, u"PAID"_s},
                .factors = totals ? QStringList{u"CATEGORY"_s} : QStringList(),
                .totals = totals,
                .runTime = true};
    }
    /// The records of a load as it stands; it must go without a box.
    Rows reload(const QStringList& fields) {
        host->messages.clear();
        grid->refresh();
        EXPECT_EQ(boxes(), QStringList());
        return sorted(rowsOf(recordset(), fields));
    }
    static Rows policiesWhere(const std::string& condition) {
        return sorted(
            byHand("SELECT POLICYNO, BRANCH, STATUS, PREMIUM FROM POLICIESDATA WHERE " + condition));
    }
};

} // namespace

TEST_F(UserFilterTest, ItStandsInFilterInBracketsAndIsReported) {
    EXPECT_EQ(keysOf([&] { EXPECT_EQ(grid->setUserFilter(u" A=1 or B=2 "_s), QString()); }),
              QStringList{u"Filter"_s});
    EXPECT_EQ(grid->Filter(), u"( A=1 or B=2 )"_s);
}

TEST_F(UserFilterTest, ARefusedOneLeavesFilterAndReportsNothing) {
    grid->setFilter(u"C=3"_s);
    EXPECT_EQ(keysOf([&] {
                  EXPECT_EQ(grid->setUserFilter(u"A=1 or (B=2"_s), texts::bracketLeftOpen(8));
                  EXPECT_EQ(grid->setUserFilter(u"A in (select 1)"_s),
                            texts::subselectInFilter(u"select"_s, 7));
              }),
              QStringList());
    EXPECT_EQ(grid->Filter(), u"C=3"_s);
}

TEST_F(UserFilterTest, FilterItselfTakesTheHostsTextAsItIs) {
    for (const QString& text : {u"A=1 or B=2"_s, u"0=0 --"_s, u"A in (select 1)"_s}) {
        grid->setFilter(text);
        EXPECT_EQ(grid->Filter(), text);
    }
}

TEST_F(UserFilterTest, QuestionsToOtherTablesAreTheHostsToAllow) {
    const QString text = u"BRANCH in (select BranchName from BRANCHES where Region='Αττική')"_s;
    const User& user = users().front();
    for (const bool runTime : {false, true}) {
        prepare(policies(runTime), QString::fromStdString(user.id));
        EXPECT_EQ(grid->setUserFilter(text), texts::subselectInFilter(u"select"_s, 12));
        grid->setAllowSubselects(true);
        EXPECT_EQ(grid->setUserFilter(text), QString());
        EXPECT_EQ(reload(policies(false).columns), policiesWhere("REGION = 'Αττική' AND " + rightsOf(user)));
        grid->setAllowSubselects(false);
        EXPECT_NE(grid->setUserFilter(text), QString());
    }
}

TEST_F(UserFilterTest, OrdinaryFiltersGiveTheirRowsOnEitherRoad) {
    const struct {
        QString typed;
        std::string byHand;
    } filters[] = {
        {u"PREMIUM>500"_s, "PREMIUM > 500"},
        {u"PREMIUM>500 or BRANCH='Βόλος'"_s, "PREMIUM > 500 OR BRANCH = 'Βόλος'"},
        {u"BRANCH='ΒΌΛΟΣ' and (PREMIUM<0 or PREMIUM>100)"_s,
         "BRANCH = 'Βόλος' AND (PREMIUM < 0 OR PREMIUM > 100)"},
        {u"BRANCH like 'Β%'"_s, "BRANCH LIKE 'Β%'"},
        {u"PREMIUM between 100 and 200"_s, "PREMIUM BETWEEN 100 AND 200"},
        {u"BRANCH in ('Βόλος','Πάτρα') and INSTALMENTS in (1, 2)"_s,
         "BRANCH IN ('Βόλος', 'Πάτρα') AND INSTALMENTS IN (1, 2)"},
        {u"BRANCH<>'Ο''Νιλ (Α) -- ;' and PREMIUM>900"_s, "PREMIUM > 900 AND BRANCH IS NOT NULL"},
        {u"\tPREMIUM>500\nand PREMIUM<600"_s, "PREMIUM > 500 AND PREMIUM < 600"},
        {u""_s, "1 = 1"},
        {u"  "_s, "1 = 1"},
    };
    for (const bool runTime : {false, true})
        for (const User& user : {users().front(), users()[4]})
            for (const auto& filter : filters) {
                prepare(policies(runTime), QString::fromStdString(user.id));
                EXPECT_EQ(grid->setUserFilter(filter.typed), QString());
                EXPECT_EQ(reload(policies(false).columns),
                          policiesWhere("(" + filter.byHand + ") AND " + rightsOf(user)))
                    << qPrintable(filter.typed);
            }
}

TEST_F(UserFilterTest, ABlankOneLetsEveryRowPassBehindAStandingCondition) {
    for (const bool totals : {false, true}) {
        prepare(claims(totals));
        EXPECT_EQ(grid->setUserFilter({}), QString());
        EXPECT_EQ(grid->Filter(), u" 0=0 "_s);
        const Rows rows = reload({totals ? u"SUM_PAID"_s : u"PAID"_s});
        EXPECT_EQ(rows, sorted(byHand(totals ? "SELECT sum(PAID) FROM CLAIMSDATA WHERE STATUS <> 'Άκυρη' "
                                               "GROUP BY CATEGORY"
                                             : "SELECT PAID FROM CLAIMSDATA WHERE STATUS <> 'Άκυρη'")));
    }
}

TEST_F(UserFilterTest, ABlankOneLeavesTheStatementAsWithoutAFilter) {
    prepare(policies(true));
    const QString without = grid->RunTimeSQL();
    EXPECT_EQ(grid->setUserFilter({}), QString());
    EXPECT_EQ(grid->RunTimeSQL(), without);
    EXPECT_TRUE(without.endsWith(u" Where  0=0 "_s)) << qPrintable(without);
}

TEST_F(UserFilterTest, EachLoadBeginsWithItAgain) {
    const std::string expected = "(PREMIUM > 500 OR BRANCH = 'Βόλος') AND " + rightsOf(users().front());
    for (const bool runTime : {false, true}) {
        prepare(policies(runTime), QString::fromStdString(users().front().id));
        grid->setUserFilter(u"PREMIUM>500 or BRANCH='Βόλος'"_s);
        const Rows first = reload(policies(false).columns);
        const QString filter = grid->Filter();
        EXPECT_EQ(first, policiesWhere(expected));
        EXPECT_EQ(reload(policies(false).columns), first);
        EXPECT_EQ(grid->Filter(), filter) << "it does not grow";
        if (runTime) // where the column's own expression is one of the statement's
            grid->SortByColumn({});
        EXPECT_EQ(sorted(rowsOf(recordset(), policies(false).columns)), first);
    }
}

TEST_F(UserFilterTest, AnotherFilterOfTheHostsTakesItsPlace) {
    prepare(policies(true));
    grid->setUserFilter(u"PREMIUM>500"_s);
    reload({u"POLICYNO"_s});
    grid->setFilter(u"PREMIUM<0"_s);
    EXPECT_EQ(reload(policies(true).columns), policiesWhere("PREMIUM < 0"));
}

// For a host's own filter a load leaves the standing condition out where the filter holds its text.
TEST_F(UserFilterTest, ItCanNotSwitchTheStandingConditionOff) {
    const QString typed = u"PAID>=0 or PAID<0 or STATUS<>'Άκυρη'"_s;
    const Rows alive = sorted(byHand("SELECT CLAIMNO, PAID FROM CLAIMSDATA WHERE STATUS <> 'Άκυρη'"));
    prepare(claims(false));
    EXPECT_EQ(grid->setUserFilter(typed), QString());
    EXPECT_EQ(reload(claims(false).columns), alive);
    EXPECT_EQ(reload(claims(false).columns), alive) << "nor the next time";
    grid->setFilter(typed);
    EXPECT_GT(reload(claims(false).columns).size(), alive.size());
}

TEST_F(UserFilterTest, AHostMayPutConditionsOfItsOwnInFront) {
    prepare(claims(false), QString::fromStdString(users().front().id));
    grid->setUserFilter(u"PAID>=0 or PAID<0 or STATUS<>'Άκυρη'"_s);
    grid->setFilter(u"(CATEGORY='ΖΩΉΣ' or CATEGORY='ΠΥΡΌΣ' or PAID>0) and "_s + grid->Filter());
    const Rows expected = sorted(
        byHand("SELECT CLAIMNO, PAID FROM CLAIMSDATA WHERE STATUS <> 'Άκυρη' AND (CATEGORY = 'Ζωής' OR "
               "CATEGORY = 'Πυρός' OR PAID > 0) AND " +
               rightsOf(users().front())));
    for (int load = 0; load < 3; ++load)
        EXPECT_EQ(reload(claims(false).columns), expected);
}

TEST_F(UserFilterTest, AKeyInAConstantIsRefusedWhereKeysAreTranslated) {
    const QString typed = u"CUSTOMER='Α BRANCH Β'"_s;
    prepare(policies(true));
    EXPECT_EQ(grid->setUserFilter(typed), texts::keyInConstant(13));
    EXPECT_EQ(grid->setUserFilter(u"CUSTOMER='BRANCH'"_s), QString());
    prepare(policies(false));
    EXPECT_EQ(grid->setUserFilter(typed), QString()) << "nothing is translated";
}

// Without a connection nothing can be looked up, so that the load has to refuse.
TEST_F(UserFilterTest, WhatWasSetBeforeFillIsLookedAtByTheLoad) {
    const User& user = users().front();
    setUp(*grid, policies(true));
    EXPECT_EQ(grid->setUserFilter(u"[ BRANCH or 1=1) or ([x]=1"_s), QString());
    fill(*grid, policies(true), connection, QString::fromStdString(user.id));
    grid->refresh();
    const QString box = u"Δεν μπορώ να μεταφράσω το Φίλτρο σε SQL"_s;
    EXPECT_EQ(boxes(), (QStringList{box, box})) << "the statement's and the count's";
    EXPECT_EQ(grid->RecCount(), 0);
    EXPECT_EQ(grid->setUserFilter(u"PREMIUM>500"_s), QString());
    EXPECT_EQ(reload(policies(true).columns), policiesWhere("PREMIUM > 500 AND " + rightsOf(user)));
}

TEST_F(UserFilterTest, ByItsNameItIsAMethodThatAnswers) {
    EXPECT_EQ(grid->callMember(u"setuserfilter"_s, {u"A=1)"_s}),
              QVariant(u"Μια παρένθεση κλείνει χωρίς να έχει ανοίξει (χαρακτήρας 4)."_s));
    EXPECT_EQ(grid->callMember(u"setUserFilter"_s, {u"A=1"_s}), QVariant(QString()));
    EXPECT_EQ(grid->getMember(u"Filter"_s), QVariant(u"( A=1 )"_s));
    grid->setMember(u"allowsubselects"_s, true);
    EXPECT_TRUE(grid->AllowSubselects());
}

} // namespace zkp::rights
