#include "base/texts/statements.h"
#include "rights/report_fixture.h"

using namespace Qt::StringLiterals;

namespace zkp::rights {

namespace {

/// Dictionaries that are not what they should be, on each road of a report.
class BadDictionaryTest : public SpoiltTest {
protected:
    Report plain(bool runTime, const QString& filter = {}) const {
        return {.source = u"POLICIESDATA"_s,
                .dictionary = u"POLICIESCLMNS"_s,
                .columns = {u"POLICYNO"_s, u"BRANCH"_s, u"RETAINED"_s, u"PREMIUM"_s},
                .runTime = runTime,
                .filter = filter};
    }
    Report totals(bool runTime, const QString& filter = {}) const {
        return {.source = u"POLICIESDATA"_s,
                .dictionary = u"POLICIESCLMNS"_s,
                .columns = {u"SUM_PREMIUM"_s, u"AVG_PREMIUM"_s},
                .factors = {u"BRANCH"_s},
                .totals = true,
                .runTime = runTime,
                .filter = filter};
    }
    /// The boxes of a load, each text once.
    QStringList boxesOf(const Report& report) {
        refresh(report);
        QStringList texts = boxes();
        texts.removeDuplicates();
        return texts;
    }
    /// A field of the master table with a key of its own, written as a constant of the database.
    void addField(const QString& key, bool visible = true) {
        spoil(u"insert into POLICIESCLMNS (dtfld, Cptn, wdth, visbl, IsPublic, [Sum], [Avg], [Min], [Max], "
              "crosstabdate, SOURCEFIELDNAME, SourceTableName, KeyMaster, foreignkey) values (%1, 'Νέο', "
              "1000, %2, 1, 1, 0, 0, 0, 0, 'Net', 'POLICIES', 'PolicyID', 'PolicyID')"_s.arg(key)
                  .arg(visible));
    }
};

} // namespace

// Either the column is not asked for, and the report is as it should be, or a box says that it failed.
TEST_F(BadDictionaryTest, AMissingColumnGivesTheReportOrABox) {
    const auto policies = sorted(byHand("SELECT POLICYNO, PREMIUM FROM POLICIESDATA WHERE PREMIUM > 100"));
    const auto branches =
        sorted(byHand("SELECT BRANCH, sum(PREMIUM) FROM POLICIESDATA WHERE PREMIUM > 100 GROUP BY 1"));
    for (const QString& column :
         {u"dtfld"_s, u"Cptn"_s, u"wdth"_s, u"Algn"_s, u"isgroup"_s, u"isTot"_s, u"visbl"_s, u"IsPublic"_s,
          u"Sum"_s, u"Avg"_s, u"Min"_s, u"Max"_s, u"crosstabdate"_s, u"SOURCEFIELDNAME"_s,
          u"SourceTableName"_s, u"Expr"_s, u"KeyMaster"_s, u"foreignkey"_s}) {
        spoil(u"create table KEPT as select * from POLICIESCLMNS"_s);
        spoil(u"alter table POLICIESCLMNS drop column [%1]"_s.arg(column));
        for (const bool runTime : {false, true}) {
            SCOPED_TRACE(column.toStdString() + (runTime ? " at run time" : ""));
            refresh(plain(runTime, u"PREMIUM>100"_s));
            if (boxes().isEmpty()) {
                EXPECT_EQ(sorted(rowsOf(recordset(), {u"POLICYNO"_s, u"PREMIUM"_s})), policies);
            }
            refresh(totals(runTime, u"PREMIUM>100"_s));
            if (boxes().isEmpty()) {
                EXPECT_EQ(sorted(rowsOf(recordset(), {u"BRANCH"_s, u"SUM_PREMIUM"_s})), branches);
            }
            expectAllIsWell();
        }
        spoil(u"drop table POLICIESCLMNS"_s);
        spoil(u"alter table KEPT rename to POLICIESCLMNS"_s);
    }
}

TEST_F(BadDictionaryTest, AMissingColumnOfTheFieldsIsTheBoxOfTheFieldItem) {
    spoil(u"alter table POLICIESCLMNS drop column SourceTableName"_s);
    EXPECT_EQ(boxesOf(plain(true)).first(), texts::fieldItemFailed());
    EXPECT_GE(boxes().count(texts::fieldItemFailed()), 3); // one for each field that asks for its table
}

TEST_F(BadDictionaryTest, AMissingColumnOfTheFilterIsTheBoxOfTheFilter) {
    spoil(u"alter table POLICIESCLMNS drop column Expr"_s);
    refresh(plain(true, u"PREMIUM>100"_s));
    EXPECT_TRUE(boxes().contains(texts::filterFailed()));
}

TEST_F(BadDictionaryTest, AMissingColumnOfTheJoinsIsTheBoxOfTheJoins) {
    spoil(u"alter table POLICIESCLMNS drop column KeyMaster"_s);
    refresh(plain(true));
    ASSERT_EQ(boxes().size(), 2); // the join's, and the database's
    EXPECT_EQ(boxes().first(), texts::joinFailed());
}

TEST_F(BadDictionaryTest, AMissingDictionary) {
    spoil(u"drop table POLICIESCLMNS"_s);
    for (const bool runTime : {false, true}) {
        refresh(plain(runTime));
        EXPECT_TRUE(isErrorBox(kMsgBoxExclamation));
        refresh(totals(runTime));
        EXPECT_TRUE(isErrorBox(kMsgBoxExclamation));
        expectAllIsWell();
    }
}

TEST_F(BadDictionaryTest, ADictionaryWithoutRows) {
    spoil(u"delete from POLICIESCLMNS"_s);
    EXPECT_EQ(load(plain(false), {u"POLICYNO"_s}).size(), 2000u);
    // No field has an aggregate, so that the count stands alone.
    EXPECT_EQ(sorted(load(totals(false), {u"BRANCH"_s, u"Cnt"_s})),
              sorted(byHand("SELECT BRANCH, count(*) FROM POLICIESDATA GROUP BY 1")));
    for (const Report& report : {plain(true), totals(true)}) {
        refresh(report);
        EXPECT_EQ(boxes().size(), 1); // a statement without fields or groups
        expectAllIsWell();
    }
}

TEST_F(BadDictionaryTest, ANullKeyStopsTheListOfFieldsAndSoTheLoad) {
    addField(u"null"_s);
    for (const bool runTime : {false, true})
        for (const Report& report : {plain(runTime), totals(runTime)}) {
            refresh(report);
            EXPECT_TRUE(isErrorBox(kMsgBoxCritical));
            expectAllIsWell();
        }
}

TEST_F(BadDictionaryTest, ANullKeyThatIsNotOfferedStopsTheFilterAndNothingElse) {
    addField(u"null"_s, false);
    const Rows all = sorted(byHand("SELECT POLICYNO FROM POLICIESDATA"));
    EXPECT_EQ(sorted(load(plain(false), {u"POLICYNO"_s})), all);
    // Not by the statement of the rows, but by that of their count, which finds " 0=0 " by then.
    EXPECT_EQ(boxesOf(plain(true)), QStringList{texts::filterFailed()});
    EXPECT_EQ(sorted(rowsOf(recordset(), {u"POLICYNO"_s})), all);
    // The filter stays as it was given; this one the master table understands.
    EXPECT_EQ(boxesOf(plain(true, u"PREMIUM>100"_s)), QStringList{texts::filterFailed()});
    EXPECT_EQ(sorted(rowsOf(recordset(), {u"POLICYNO"_s})),
              sorted(byHand("SELECT POLICYNO FROM POLICIESDATA WHERE PREMIUM > 100")));
    EXPECT_EQ(boxesOf(totals(true, u"PREMIUM>100"_s)), QStringList{texts::filterFailed()});
    EXPECT_EQ(sorted(rowsOf(recordset(), {u"BRANCH"_s, u"SUM_PREMIUM"_s})),
              sorted(byHand("SELECT BRANCH, sum(PREMIUM) FROM POLICIESDATA WHERE PREMIUM > 100 GROUP BY 1")));
}

TEST_F(BadDictionaryTest, AnUnusedKeyWithAnApostropheHarmsNothingButRunTimeTotals) {
    addField(u"'O''NEIL'"_s);
    for (const bool runTime : {false, true})
        EXPECT_EQ(load(plain(runTime, u"PREMIUM>100"_s), {u"POLICYNO"_s}).size(),
                  byHand("SELECT 1 FROM POLICIESDATA WHERE PREMIUM > 100").size());
    const Rows branches = sorted(byHand("SELECT BRANCH, sum(PREMIUM) FROM POLICIESDATA GROUP BY 1"));
    EXPECT_EQ(sorted(load(totals(false), {u"BRANCH"_s, u"SUM_PREMIUM"_s})), branches);
    // These look every field up that has an aggregate.
    EXPECT_EQ(boxesOf(totals(true)), QStringList{texts::fieldItemFailed()});
    EXPECT_EQ(sorted(rowsOf(recordset(), {u"BRANCH"_s, u"SUM_PREMIUM"_s})), branches);
}

TEST_F(BadDictionaryTest, AnUnusedKeyWithBracketsHarmsNothing) {
    addField(u"'A]B[C'"_s);
    for (const bool runTime : {false, true}) {
        EXPECT_EQ(load(plain(runTime, u"PREMIUM>100"_s), {u"POLICYNO"_s}).size(),
                  byHand("SELECT 1 FROM POLICIESDATA WHERE PREMIUM > 100").size());
        EXPECT_EQ(sorted(load(totals(runTime), {u"BRANCH"_s, u"SUM_PREMIUM"_s})),
                  sorted(byHand("SELECT BRANCH, sum(PREMIUM) FROM POLICIESDATA GROUP BY 1")));
    }
}

TEST_F(BadDictionaryTest, AColumnWhoseKeyHasAnApostropheIsLostWithItsBox) {
    Report report = plain(true);
    report.columns << u"O'NEIL"_s << u"'; drop table POLICIES; --"_s;
    EXPECT_EQ(boxesOf(report), QStringList{texts::fieldItemFailed()});
    EXPECT_EQ(rowsOf(recordset(), {u"POLICYNO"_s}).size(), 2000u);
    EXPECT_EQ(database->number("SELECT count(*) FROM POLICIES"), 2000);
    expectAllIsWell();
}

TEST_F(BadDictionaryTest, AColumnWhoseKeyHasBracketsIsRefusedByTheDatabase) {
    addField(u"'A]B[C'"_s);
    for (const bool runTime : {false, true}) {
        Report report = plain(runTime);
        report.columns << u"A]B[C"_s;
        refresh(report);
        EXPECT_EQ(boxes().size(), 1);
        Report sums = totals(runTime);
        sums.columns << u"SUM_A]B[C"_s;
        refresh(sums);
        EXPECT_TRUE(isErrorBox(kMsgBoxExclamation));
        expectAllIsWell();
    }
}

TEST_F(BadDictionaryTest, AMissingJoinKeyIsRefusedByTheDatabase) {
    for (const QString& key : {u"null"_s, u"''"_s, u"'NOWHERE'"_s}) {
        spoil(u"update POLICIESCLMNS set KeyMaster = %1 where SourceTableName = 'BRANCHES'"_s.arg(key));
        refresh(plain(true));
        EXPECT_EQ(boxes().size(), 1);
        refresh(totals(true));
        EXPECT_TRUE(isErrorBox(kMsgBoxExclamation));
        expectAllIsWell();
    }
}

TEST_F(BadDictionaryTest, ATableThatTheDictionaryDoesNotKnowHasNoJoin) {
    prepare(plain(true));
    grid->setFilterTables(u"NOWHERE"_s);
    grid->refresh();
    ASSERT_GE(boxes().size(), 2);
    EXPECT_EQ(boxes().first(), texts::joinFailed());
    expectAllIsWell();
}

// Tables are joined straight to the master and never to each other, so keys can't run in a circle.
TEST_F(BadDictionaryTest, JoinKeysThatPointAtEachOtherEnd) {
    spoil(u"update POLICIESCLMNS set KeyMaster = 'BranchID' where SourceTableName = 'AGENTS'"_s);
    spoil(u"update POLICIESCLMNS set KeyMaster = 'AgentID' where SourceTableName = 'BRANCHES'"_s);
    Report report = plain(true);
    report.columns << u"AGENTNAME"_s;
    EXPECT_EQ(load(report, {u"POLICYNO"_s}).size(), 2000u);
    expectAllIsWell();
}

TEST_F(BadDictionaryTest, ATableNamedTwiceIsJoinedTwiceAndRefused) {
    prepare(plain(true));
    grid->setFilterTables(u"BRANCHES"_s);
    grid->refresh();
    EXPECT_FALSE(boxes().isEmpty());
    expectAllIsWell();
}

TEST_F(BadDictionaryTest, AMissingListOfReportsShowsItsBox) {
    spoil(u"drop table Reports"_s);
    EXPECT_EQ(boxesOf(plain(true)), QStringList{texts::masterTableFailed()});
    EXPECT_EQ(rowsOf(recordset(), {u"POLICYNO"_s}).size(), 2000u); // over the source itself
    load(plain(false), {u"POLICYNO"_s});
}

TEST_F(BadDictionaryTest, AMasterTableThatIsNotThereIsRefused) {
    spoil(u"update Reports set MasterTable = 'NOWHERE' where RecSource = 'POLICIESDATA'"_s);
    refresh(plain(true));
    EXPECT_EQ(boxes().size(), 1);
    refresh(totals(true));
    EXPECT_TRUE(isErrorBox(kMsgBoxExclamation));
    expectAllIsWell();
}

} // namespace zkp::rights
