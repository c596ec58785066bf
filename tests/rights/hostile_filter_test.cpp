#include "rights/hostile_filters.h"
#include "rights/report_fixture.h"

#include "demo/demo_database.h"

#include <algorithm>
#include <set>

// No text that a person types as a filter shows a row beyond his rights or the report's standing condition,
// whatever builder makes the statement. What he may see comes from statements by hand.

using namespace Qt::StringLiterals;

namespace zkp::rights {

namespace {

/// A small database whose short dictionaries have a key with quoted brackets in its expression.
const QString& trapFile() {
    static const QTemporaryDir folder;
    static const QString file = [] {
        const QString made = folder.filePath(u"office.db"_s);
        demo::makeDatabase({made, 150, 1});
        const auto connection = std::make_shared<ado::Connection>();
        connection->Open(u"sqlite:"_s + made);
        for (const QString& dictionary : {u"POLICIESCLMNS"_s, u"CLAIMSCLMNS"_s}) {
            connection->Execute(
                u"DELETE FROM %1 WHERE dtfld NOT IN ('POLICYNO', 'CLAIMNO', 'BRANCH', 'CUSTOMER', 'PLATE', "
                "'STATUS', 'PREMIUM', 'PAID', 'RETAINED', 'SIZECLASS')"_s.arg(dictionary));
            connection->Execute(u"INSERT INTO %1 (dtfld, Cptn, visbl, Expr) VALUES ('TRAP', 'x', 1, "
                                "'case when 1=1 then '')'' else '' or 1=1 or ('' end')"_s.arg(dictionary));
        }
        return made;
    }();
    return file;
}

const demo::test::Reader& trapDatabase() {
    static const demo::test::Reader reader(trapFile());
    return reader;
}

/// One user of each level, the one who sees most.
std::vector<User> userOfEachLevel() {
    std::vector<User> chosen;
    for (const auto& level : trapDatabase().column("SELECT DISTINCT Ierarxia FROM SECUSERS ORDER BY 1")) {
        std::vector<std::pair<long long, User>> all;
        for (const auto& row :
             trapDatabase().rows("SELECT UserID, Ierarxia, IerID FROM SECUSERS WHERE Ierarxia = '" + level +
                                 "' ORDER BY 1")) {
            const User user{row.at(0), row.at(1), row.at(2)};
            all.emplace_back(
                trapDatabase().number("SELECT count(*) FROM POLICIESDATA WHERE " + rightsOf(user)), user);
        }
        chosen.push_back(std::max_element(all.begin(), all.end(), [](const auto& a, const auto& b) {
                             return a.first < b.first;
                         })->second);
    }
    return chosen;
}

/// A builder, the report that it is tried with, and the rows of that report by hand.
struct Road {
    const char* name;
    QString (ZkpGrid::*build)();
    Report report;
    QStringList fields;
    std::string allRows; ///< the rights go behind it
    std::string groups = {};
    bool isCount = false;

    Rows allowedTo(const User& user) const {
        return sorted(byHand(trapDatabase(), allRows + " AND " + rightsOf(user) + groups));
    }
    bool holds(const Rows& allowed, const Rows& seen) const {
        if (isCount)
            return seen.empty() || seen[0][0].number <= allowed[0][0].number;
        return std::includes(allowed.begin(), allowed.end(), seen.begin(), seen.end());
    }
};

Report report(const QString& source, const QString& dictionary, const QStringList& columns, bool runTime) {
    return {.source = source, .dictionary = dictionary, .columns = columns, .runTime = runTime};
}

/// Groups of one record each, so that a record too many is a group too many.
Report totals(Report detail, const QString& factor) {
    detail.factors = {factor};
    detail.totals = true;
    return detail;
}

const std::vector<Road>& roads() {
    const QString policies = u"POLICIESDATA"_s;
    const QString claims = u"CLAIMSDATA"_s;
    const QString ofPolicies = u"POLICIESCLMNS"_s;
    const QString ofClaims = u"CLAIMSCLMNS"_s;
    const QStringList policy{u"POLICYNO"_s, u"BRANCH"_s, u"STATUS"_s, u"PREMIUM"_s};
    const QStringList claim{u"CLAIMNO"_s, u"STATUS"_s, u"PAID"_s};
    const std::string fromPolicies = " FROM POLICIESDATA WHERE 1 = 1";
    const std::string fromClaims = " FROM CLAIMSDATA WHERE STATUS <> 'Άκυρη'";
    static const std::vector<Road> all{
        {"NormalSQL", &ZkpGrid::NormalSQL, report(policies, ofPolicies, policy, false), policy,
         "SELECT POLICYNO, BRANCH, STATUS, PREMIUM" + fromPolicies},
        {"RunTimeSQL", &ZkpGrid::RunTimeSQL, report(policies, ofPolicies, policy, true), policy,
         "SELECT POLICYNO, BRANCH, STATUS, PREMIUM" + fromPolicies},
        {"RunTimeSQL with a standing condition", &ZkpGrid::RunTimeSQL, report(claims, ofClaims, claim, true),
         claim, "SELECT CLAIMNO, STATUS, PAID" + fromClaims},
        {"RunTimeSQLCounter",
         &ZkpGrid::RunTimeSQLCounter,
         report(claims, ofClaims, claim, true),
         {u"Cnt"_s},
         "SELECT count(*)" + fromClaims,
         {},
         true},
        {"GroupedSQL",
         &ZkpGrid::GroupedSQL,
         totals(report(policies, ofPolicies, {u"SUM_PREMIUM"_s}, false), u"POLICYNO"_s),
         {u"POLICYNO"_s, u"Cnt"_s, u"SUM_PREMIUM"_s},
         "SELECT POLICYNO, count(*), sum(PREMIUM)" + fromPolicies,
         " GROUP BY 1"},
        {"RunTimeStatsSQL",
         &ZkpGrid::RunTimeStatsSQL,
         totals(report(claims, ofClaims, {u"SUM_PAID"_s}, true), u"CLAIMNO"_s),
         {u"CLAIMNO"_s, u"Cnt"_s, u"SUM_PAID"_s},
         "SELECT CLAIMNO, count(*), sum(PAID)" + fromClaims,
         " GROUP BY 1"},
        {"RunTimePosSql",
         &ZkpGrid::RunTimePosSql,
         totals(report(policies, ofPolicies, {u"POS_PREMIUM"_s, u"POS_CNT"_s}, true), u"POLICYNO"_s),
         {u"POLICYNO"_s, u"SUM_PREMIUM"_s, u"CNT"_s},
         "SELECT POLICYNO, sum(PREMIUM), count(*)" + fromPolicies,
         " GROUP BY 1"},
    };
    return all;
}

class HostileFilterTest : public ReportTest {
protected:
    HostileFilterTest() {
        connection = std::make_shared<ado::Connection>();
        connection->Open(u"sqlite:"_s + trapFile());
    }

    /// A control that is ready for the road's builder.
    void takeRoad(const Road& road, const User& user) {
        prepare(road.report, QString::fromStdString(user.id));
        grid->LoadDictionary();
        grid->MakeFixedForGroup();
    }
    /// What the builder's statement gives with the filter that stands; nothing where the database
    /// refuses it.
    std::optional<Rows> rowsOn(const Road& road) {
        try {
            return sorted(rowsOf(connection->Execute((grid.get()->*road.build)()), road.fields));
        } catch (const Error&) {
            return std::nullopt;
        }
    }
    /// How many of the hostile filters gave a result, all of it within the user's rows.
    int tryAll(const Road& road, const User& user, bool allowsSubselects) {
        takeRoad(road, user);
        grid->setAllowSubselects(allowsSubselects);
        const Rows allowed = road.allowedTo(user);
        int results = 0;
        for (const HostileFilter& hostile : hostileFilters()) {
            const QString before = grid->Filter();
            if (!grid->setUserFilter(hostile.text).isEmpty()) {
                EXPECT_EQ(grid->Filter(), before) << qPrintable(hostile.text);
                continue;
            }
            const auto rows = rowsOn(road);
            results += rows ? 1 : 0;
            EXPECT_TRUE(road.holds(allowed, rows.value_or(Rows())))
                << road.name << ", " << user.id << " of level " << user.level << ", " << hostile.kind << ": "
                << qPrintable(hostile.text.left(200)) << "\n"
                << qPrintable(grid->Filter().left(400));
        }
        return results;
    }
};

} // namespace

TEST_F(HostileFilterTest, ThereAreTwoHundredOfThirteenKinds) {
    std::set<std::string> kinds;
    std::set<QString> texts;
    for (const HostileFilter& hostile : hostileFilters()) {
        kinds.insert(hostile.kind);
        texts.insert(hostile.text);
    }
    EXPECT_GE(texts.size(), 200u);
    EXPECT_EQ(texts.size(), hostileFilters().size());
    EXPECT_EQ(kinds.size(), 13u);
}

TEST_F(HostileFilterTest, NoneShowsARowMoreOnAnyRoadToAUserOfAnyLevel) {
    const std::vector<User> users = userOfEachLevel();
    ASSERT_EQ(users.size(), 7u);
    for (const Road& road : roads())
        for (const User& user : users) {
            const Rows allowed = road.allowedTo(user);
            EXPECT_FALSE(allowed.empty()) << user.id;
            EXPECT_GT(tryAll(road, user, false), 10) << "strange filters still work: " << road.name;
        }
}

TEST_F(HostileFilterTest, QuestionsToOtherTablesShowNoRowMoreEitherAndLeaveTheDatabaseAsItWas) {
    const auto contents = [] {
        return std::pair(byHand(trapDatabase(), "SELECT type, name, sql FROM sqlite_master ORDER BY 1, 2"),
                         byHand(trapDatabase(), "SELECT * FROM POLICIES"));
    };
    const auto before = contents();
    for (const Road& road : roads())
        EXPECT_GT(tryAll(road, userOfEachLevel().front(), true), 20) << road.name;
    EXPECT_EQ(contents(), before);
}

// The proof that the list would find a hole: the same texts as the host's own filter.
TEST_F(HostileFilterTest, TheSameTextsWithoutTheGuardShowRowsOfOthers) {
    const User user = userOfEachLevel().front();
    for (const Road& road : {roads()[0], roads()[2]}) {
        takeRoad(road, user);
        const Rows allowed = road.allowedTo(user);
        int leaks = 0;
        for (const HostileFilter& hostile : hostileFilters()) {
            grid->setFilter(hostile.text);
            leaks += road.holds(allowed, rowsOn(road).value_or(Rows())) ? 0 : 1;
        }
        EXPECT_GT(leaks, 20) << road.name;
    }
}

TEST_F(HostileFilterTest, ARefusedFilterLeavesTheReportAsItWas) {
    const Road& road = roads()[1];
    const User user = userOfEachLevel().front();
    prepare(road.report, QString::fromStdString(user.id));
    EXPECT_EQ(grid->setUserFilter(u"PREMIUM>0"_s), QString());
    grid->refresh();
    const Rows shown = rowsOf(recordset(), road.fields);
    const QString filter = grid->Filter();
    const int rows = grid->Rows();
    int refused = 0;
    const QStringList reported = keysOf([&] {
        for (const HostileFilter& hostile : hostileFilters())
            if (const QString before = grid->Filter(); !grid->setUserFilter(hostile.text).isEmpty())
                ++refused;
            else
                grid->setFilter(before);
    });
    EXPECT_GT(refused, 100);
    EXPECT_EQ(grid->Filter(), filter);
    EXPECT_EQ(grid->Rows(), rows);
    EXPECT_EQ(rowsOf(recordset(), road.fields), shown);
    EXPECT_EQ(boxes(), QStringList());
}

} // namespace zkp::rights
