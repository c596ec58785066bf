#include "rights/report_fixture.h"

using namespace Qt::StringLiterals;

namespace zkp::rights {

namespace {

using RightsDetailTest = ReportTest;

/// A plain report, the fields to compare, and the condition that it has apart from the rights.
struct Road {
    Report report;
    std::string standing = "1 = 1";

    Rows byHandFor(const User& user) const {
        const std::string fields = report.columns.join(u","_s).toStdString();
        return sorted(byHand("SELECT " + fields + " FROM " + report.source.toStdString() + " WHERE (" +
                             standing + ") AND " + rightsOf(user)));
    }
};

Report plain(const QString& source, const QString& dictionary, const QStringList& columns) {
    return {.source = source, .dictionary = dictionary, .columns = columns};
}

Report atRunTime(Report report, const QString& filter = {}) {
    report.runTime = true;
    report.filter = filter;
    return report;
}

Report filtered(Report report, const QString& filter) {
    report.filter = filter;
    return report;
}

const Report kPolicies = plain(u"POLICIESDATA"_s, u"POLICIESCLMNS"_s,
                               {u"POLICYNO"_s, u"AGENTNAME"_s, u"BRANCH"_s, u"PREMIUM"_s, u"CUSTOMER"_s});
const Report kClaims = plain(u"CLAIMSDATA"_s, u"CLAIMSCLMNS"_s,
                             {u"CLAIMNO"_s, u"AGENTNAME"_s, u"CATEGORY"_s, u"PAID"_s, u"INCURRED"_s});
const Report kRatios =
    plain(u"LOSSRATIODATA"_s, u"LOSSRATIOCLMNS"_s, {u"POLICYNO"_s, u"BRANCH"_s, u"POSON"_s, u"LR3"_s});
const Report kProducts =
    plain(u"QRYPRODUCT"_s, u"PRODUCTCLMNS"_s, {u"PRODUCTNAME"_s, u"BRANCH"_s, u"STARTDATE"_s, u"PREMIUM"_s});

} // namespace

TEST_F(RightsDetailTest, EveryUserSeesHisRowsOfASource) {
    const Road roads[] = {{kPolicies},
                          {kClaims},
                          {kRatios},
                          {kProducts},
                          {filtered(kPolicies, u"PREMIUM>500"_s), "PREMIUM > 500"},
                          {filtered(kClaims, u"( PAID>0 or RESERVE>0 )"_s), "PAID > 0 OR RESERVE > 0"}};
    for (const Road& road : roads)
        for (const User& user : users())
            EXPECT_EQ(sorted(load(road.report, road.report.columns, &user)), road.byHandFor(user))
                << road.report.source.toStdString() << " " << user.id << " of level " << user.level;
}

TEST_F(RightsDetailTest, EveryUserSeesHisRowsOfAReportComposedFromTheDictionary) {
    const std::string alive = "STATUS <> 'Άκυρη'";
    const Road roads[] = {
        {atRunTime(kPolicies)},
        {atRunTime(kClaims, u"TRUE"_s), alive},
        {atRunTime(kRatios)},
        {atRunTime(kPolicies, u"PREMIUM>500 and region='ΑΤΤΙΚΉ'"_s), "PREMIUM > 500 AND REGION = 'Αττική'"},
        {atRunTime(kClaims, u"( PAID>0 or RESERVE>0 )"_s), alive + " AND (PAID > 0 OR RESERVE > 0)"}};
    for (const Road& road : roads)
        for (const User& user : users())
            EXPECT_EQ(sorted(load(road.report, road.report.columns, &user)), road.byHandFor(user))
                << road.report.source.toStdString() << " " << user.id << " of level " << user.level;
}

TEST_F(RightsDetailTest, TheCountOfTheRowsHasTheSameRights) {
    for (const User& user : users()) {
        prepare(atRunTime(kPolicies, u"PREMIUM>500"_s), QString::fromStdString(user.id));
        grid->LoadDictionary();
        const auto count = connection->Execute(grid->RunTimeSQLCounter());
        EXPECT_EQ(rowsOf(count, {u"Cnt"_s}),
                  byHand("SELECT count(*) FROM POLICIESDATA WHERE PREMIUM > 500 AND " + rightsOf(user)))
            << user.id;
    }
}

TEST_F(RightsDetailTest, EveryUserSeesHisRowsOfACommandsLastResult) {
    const auto command = std::make_shared<ado::Command>();
    command->CommandText = u"select count(*) from POLICIES; select * from POLICIESDATA"_s;
    for (const User& user : users()) {
        setUp(*grid, kPolicies);
        grid->Fill(connection, QVariant::fromValue(ado::CommandPtr(command)), ZKP_Command,
                   QString::fromStdString(user.id));
        grid->refresh();
        EXPECT_EQ(sorted(rowsOf(recordset(), kPolicies.columns)), Road{kPolicies}.byHandFor(user)) << user.id;
        EXPECT_EQ(grid->RecCount(), static_cast<double>(Road{kPolicies}.byHandFor(user).size()));
    }
    EXPECT_EQ(boxes(), QStringList());
}

TEST_F(RightsDetailTest, OneControlShowsEachUserHisOwnOneAfterTheOther) {
    for (const bool runTime : {false, true})
        for (const User& user : users()) {
            Report report = kPolicies;
            report.runTime = runTime;
            setUp(*grid, report);
            fill(*grid, report, connection, QString::fromStdString(user.id));
            grid->refresh();
            EXPECT_EQ(sorted(rowsOf(recordset(), report.columns)), Road{report}.byHandFor(user)) << user.id;
        }
    EXPECT_EQ(boxes(), QStringList());
}

TEST_F(RightsDetailTest, WithoutAUserAllRowsShow) {
    EXPECT_EQ(load(kPolicies, {u"POLICYNO"_s}).size(), 2000u);
    EXPECT_EQ(load(atRunTime(kPolicies), {u"POLICYNO"_s}).size(), 2000u);
}

// Hosts that give a statement of their own answer for its rights themselves.
TEST_F(RightsDetailTest, AHostsOwnStatementCarriesNoRights) {
    setUp(*grid, kPolicies);
    grid->Fill(connection, u"select * from POLICIESDATA"_s, ZKP_SQLStatement,
               QString::fromStdString(users().front().id));
    grid->refresh();
    EXPECT_EQ(recordset()->RecordCount(), 2000);
}

// What the rows are counted by is what stands on the surface, too.
TEST_F(RightsDetailTest, TheSurfaceShowsTheRowsThatCameBack) {
    for (const bool runTime : {false, true})
        for (const User& user : users()) {
            Report report = kPolicies;
            report.runTime = runTime;
            report.orderBy = u"POLICYNO"_s;
            load(report, {u"POLICYNO"_s}, &user);
            Rows shown;
            for (int row = 1; row < grid->Rows(); ++row)
                shown.push_back({Cell(grid->TextMatrix(row, 0))});
            EXPECT_EQ(sorted(shown),
                      sorted(byHand("SELECT POLICYNO FROM POLICIESDATA WHERE " + rightsOf(user))))
                << user.id;
        }
}

} // namespace zkp::rights
