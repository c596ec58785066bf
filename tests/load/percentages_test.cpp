#include "core/report_state.h"
#include "load/percentages.h"

#include "host/scripted_host.h"
#include "print_qt.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

/// Five groups of BRANCH and CITY with their sums, and grid rows that name some of them.
class PercentagesTest : public testing::Test {
protected:
    PercentagesTest() {
        connection->Open(u"sqlite:"_s);
        connection->Execute(u"create table GROUPED (BRANCH text, CITY text, YEARNO integer, STARTS date, "
                            "SUM_PREMIUM money, CNT integer)"_s);
        connection->Execute(
            u"insert into GROUPED values ('Νότος', 'Χανιά', 2025, '2025-01-05', 30, 1),"
            "('ΝΌΤΟΣ', 'Ρέθυμνο', 2025, '2025-01-06', 10, 2), ('Βορράς', 'Βόλος', 2026, "
            "'2025-01-05', 60, 3), ('', 'Κενό', 2026, null, 5, 4), (null, 'Τίποτα', null, null, "
            "7, null)"_s);
        surface.setLocale(ReportLocale(QLocale(u"el_GR"_s)));
        surface.setCols(3);
        surface.setRows(3);
        state.source.TotalsRecordset = std::make_shared<ado::Recordset>();
        state.source.TotalsRecordset->Open(u"select * from GROUPED"_s, connection);
        state.grouping.GroupFactorCount = 2;
        fields({u"BRANCH"_s, u"CITY"_s, u"SUM_PREMIUM"_s});
    }

    void fields(const QStringList& names) {
        while (columns.Count() < names.size())
            columns.Add();
        for (int c = 0; c < names.size(); ++c)
            columns.ofGridColumn(c).Datafield = names[c];
    }

    void keys(const QString& a, const QString& b) {
        surface.setTextMatrix(1, 0, a);
        surface.setTextMatrix(1, 1, b);
    }

    double sum(int level, const QString& name = u"SUM_PREMIUM"_s) {
        return percentages.GroupValueSum(level, name, 1);
    }

    QStringList boxes() const {
        QStringList texts;
        for (const auto& message : host.messages)
            texts << message.text;
        return texts;
    }

    std::shared_ptr<ado::Connection> connection = std::make_shared<ado::Connection>();
    ReportState state;
    ColumnList columns;
    GridSurface surface;
    ScriptedHost host;
    LoadNotes notes;
    Percentages percentages{state.source, state.grouping, columns, surface, host, notes};
};

} // namespace

TEST_F(PercentagesTest, SumsTheRecordsThatHaveTheKeysOfTheRow) {
    keys(u"Βορράς"_s, u"Βόλος"_s);
    EXPECT_EQ(sum(-1), 112); // no key: all records
    EXPECT_EQ(sum(0), 60);
    EXPECT_EQ(sum(1), 60);
    EXPECT_EQ(sum(0, u"CNT"_s), 3);
    keys(u"Βορράς"_s, u"Χανιά"_s);
    EXPECT_EQ(sum(1), 0);
}

TEST_F(PercentagesTest, TextsMatchWithoutCaseAndWithoutBlanksAround) {
    keys(u"  νότος "_s, u"χανιά"_s);
    EXPECT_EQ(sum(0), 40);
    EXPECT_EQ(sum(1), 30);
}

TEST_F(PercentagesTest, ABlankKeyMatchesTheEmptyTextAndNoNull) {
    keys(u""_s, u"Κενό"_s);
    EXPECT_EQ(sum(0), 5);
    keys(u"  "_s, u"Τίποτα"_s);
    EXPECT_EQ(sum(1), 0);
}

TEST_F(PercentagesTest, NumbersAndDatesMatchByValue) {
    fields({u"YEARNO"_s, u"STARTS"_s, u"SUM_PREMIUM"_s});
    keys(u"2.025,00"_s, u"5/1/2025"_s);
    EXPECT_EQ(sum(0), 40);
    EXPECT_EQ(sum(1), 30);
    keys(u""_s, u""_s);
    EXPECT_EQ(sum(0), 0); // a number is never blank
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(PercentagesTest, KeysEndAtAColumnWithoutAFieldAndAtTheMarkOfARepeatedValue) {
    keys(u"Βορράς"_s, u"----"_s);
    EXPECT_EQ(sum(1), 60);
    fields({u" "_s, u"CITY"_s, u"SUM_PREMIUM"_s});
    EXPECT_EQ(sum(1), 112);
}

TEST_F(PercentagesTest, ANullValueCountsAsZero) {
    keys(u"Βορράς"_s, u"Βόλος"_s);
    EXPECT_EQ(sum(-1, u"CNT"_s), 10);
}

// A record's level is that of its parent: the number of factors less 2.
TEST_F(PercentagesTest, TheShareOfARecordInItsParent) {
    keys(u"Νότος"_s, u"Χανιά"_s);
    EXPECT_EQ(percentages.PercentOfParent(u"PREMIUM"_s, 1), u"75,00"_s);     // 30 of 40
    EXPECT_EQ(percentages.PercentOfParent(u"CNT"_s, 1), u"33,33"_s);         // 1 of 3
    EXPECT_EQ(percentages.PercentOfParent(u"PREMIUM"_s, 1, -1), u"35,71"_s); // 40 of 112
}

// With a point in every locale, unlike other percentages; wanted.
TEST_F(PercentagesTest, NothingOfAPartOrAWholeIsALiteralZero) {
    keys(u"Νότος"_s, u"Πουθενά"_s);
    EXPECT_EQ(percentages.PercentOfParent(u"PREMIUM"_s, 1), u"0.00"_s);
    keys(u"Δύση"_s, u"Χανιά"_s);
    EXPECT_EQ(percentages.PercentOfParent(u"PREMIUM"_s, 1), u"0.00"_s);
}

TEST_F(PercentagesTest, AFieldThatIsNotThereIsToldOnceUntilAskedAnew) {
    keys(u"Νότος"_s, u"Χανιά"_s);
    EXPECT_EQ(percentages.PercentOfParent(u"RATE"_s, 1), u"0.00"_s);
    EXPECT_EQ(sum(0, u"SUM_RATE"_s), 0);
    EXPECT_EQ(boxes(), QStringList{u"Δεν μπορώ να υπολογίσω τα υποσύνολα"_s});
    percentages.tellFailuresAgain();
    EXPECT_EQ(sum(0, u"SUM_RATE"_s), 0);
    EXPECT_EQ(boxes().size(), 2);
}

TEST_F(PercentagesTest, WithoutRecordsTheSumsCannotBeWorkedOut) {
    state.source.TotalsRecordset.reset();
    EXPECT_EQ(percentages.PercentOfParent(u"PREMIUM"_s, 1), u"0.00"_s);
    EXPECT_EQ(boxes(), QStringList{u"Δεν μπορώ να υπολογίσω τα υποσύνολα"_s});
}

TEST_F(PercentagesTest, AnotherRecordsetGivesItsOwnSums) {
    keys(u"Βορράς"_s, u"Βόλος"_s);
    EXPECT_EQ(sum(0), 60);
    state.source.TotalsRecordset = std::make_shared<ado::Recordset>();
    state.source.TotalsRecordset->Open(u"select 'Βορράς' as BRANCH, 'Βόλος' as CITY, 4 as SUM_PREMIUM"_s,
                                       connection);
    EXPECT_EQ(sum(0), 4);
}

// The cost of a sum is that of finding it, not of a walk over all groups.
TEST_F(PercentagesTest, ManyGroupsAreWalkedOnce) {
    state.source.TotalsRecordset = std::make_shared<ado::Recordset>();
    state.source.TotalsRecordset->Open(
        u"with recursive n(i) as (select 1 union all select i + 1 from n where i < 50000) "
        "select 'B' || (i / 10) as BRANCH, i as CITY, 1 as SUM_PREMIUM from n"_s,
        connection);
    const std::uint64_t before = state.source.TotalsRecordset->rowsWalked();
    for (int i = 10; i < 50'000; i += 5) {
        keys(u"B%1"_s.arg(i / 10), QString::number(i));
        ASSERT_EQ(percentages.PercentOfParent(u"PREMIUM"_s, 1), u"10,00"_s);
    }
    EXPECT_EQ(state.source.TotalsRecordset->rowsWalked(), before);
}
