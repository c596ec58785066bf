#include "rights/report_fixture.h"

using namespace Qt::StringLiterals;

namespace zkp::rights {

namespace {

using DictionaryLoadTest = ReportTest;

Report policies(bool totals) {
    return {.source = u"POLICIESDATA"_s,
            .dictionary = u"POLICIESCLMNS"_s,
            .columns = {u"SUM_COMMISSION"_s, u"SUM_PREMIUM"_s},
            .factors = {u"REGION"_s},
            .totals = totals};
}

Rows dictionaryRows(const std::string& condition) {
    return sorted(byHand("SELECT dtfld FROM POLICIESCLMNS WHERE visbl = 1 AND " + condition));
}

const std::string kAggregated = "(isgroup OR [Sum] OR [Avg] OR [Min] OR [Max])";

} // namespace

// The statement that the control sent, asked again, gives the rows that the flags tell.
TEST_F(DictionaryLoadTest, TheFourLoadsPickTheToldRows) {
    const struct {
        bool totals;
        QString user;
        std::string condition;
    } loads[] = {{false, {}, "1 = 1"},
                 {false, u"P0001"_s, "IsPublic <> 0"},
                 {true, {}, kAggregated},
                 {true, u"P0001"_s, "IsPublic <> 0 AND " + kAggregated}};
    for (const auto& each : loads) {
        prepare(policies(each.totals), each.user);
        grid->LoadDictionary();
        EXPECT_EQ(boxes(), QStringList());
        const std::string sent = connection->LastStatementSent().toStdString();
        Rows keys = byHand(sent);
        for (auto& row : keys)
            row.erase(row.begin() + 1, row.end());
        EXPECT_EQ(sorted(keys), dictionaryRows(each.condition)) << sent;
    }
}

TEST_F(DictionaryLoadTest, AnEmptyReportAsksInTheOtherDialectForTheSameRows) {
    for (const bool totals : {false, true}) {
        prepare(policies(totals));
        grid->PrepareEmptyGrid();
        EXPECT_EQ(boxes(), QStringList());
        const std::string sent = connection->LastStatementSent().toStdString();
        Rows keys = byHand(sent);
        for (auto& row : keys)
            row.erase(row.begin() + 1, row.end());
        EXPECT_EQ(sorted(keys), dictionaryRows(totals ? kAggregated : "1 = 1")) << sent;
    }
}

TEST_F(DictionaryLoadTest, TheDesignersFieldListAsksByBareFlags) {
    const auto fields =
        connection->Execute(u"Select * From POLICIESCLMNS Where isgroup or isTot order by cptn "_s);
    EXPECT_EQ(rowsOf(fields, {u"dtfld"_s}),
              byHand("SELECT dtfld FROM POLICIESCLMNS WHERE isgroup = 1 OR isTot = 1 ORDER BY Cptn"));
}

TEST_F(DictionaryLoadTest, AUserGetsNoTotalsOfAFieldThatIsNotPublic) {
    load(policies(true), {u"REGION"_s, u"SUM_COMMISSION"_s, u"SUM_PREMIUM"_s});
    load(policies(true), {u"REGION"_s, u"SUM_PREMIUM"_s}, &users().front());
    EXPECT_EQ(recordset()->Fields().indexOf(u"SUM_COMMISSION"), -1);
}

TEST_F(DictionaryLoadTest, KeysAreFoundWhateverTheirCase) {
    const Rows rows = load({.source = u"policiesdata"_s,
                            .dictionary = u"policiesclmns"_s,
                            .columns = {u"policyno"_s, u"Branch"_s},
                            .runTime = true},
                           {u"POLICYNO"_s, u"BRANCH"_s});
    EXPECT_EQ(sorted(rows), sorted(byHand("SELECT POLICYNO, BRANCH FROM POLICIESDATA")));
}

TEST_F(DictionaryLoadTest, TheProcedureTellsEachUsersLevel) {
    for (const User& user : users()) {
        const auto answer =
            connection->Execute(u" exec Sec_GetUserIerarxiaID '%1'"_s.arg(QString::fromStdString(user.id)));
        ASSERT_EQ(answer->RecordCount(), 1);
        EXPECT_EQ(answer->Fields().Item(0).Value().toString().toStdString(), user.level);
        EXPECT_EQ(answer->Fields().Item(1).Value().toString().toStdString(), user.identity);
    }
}

} // namespace zkp::rights
