#include "demo/sqlite_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

namespace zkp::demo::test {

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;

/// The column that a level compares besides ProductIdentity.
const std::map<std::string, std::string> kLevelColumns{
    {"1", "AgencyIdentity"}, {"2", "AssistantIdentity"}, {"3", "UnitIdentity"}, {"4", "ManagerIdentity"}};

std::string condition(const std::string& user, const std::string& level, const std::string& identity) {
    std::string text = "(ProductIdentity = '" + user + "'";
    if (const auto column = kLevelColumns.find(level); column != kLevelColumns.end())
        text += " or " + column->second + " = '" + identity + "'";
    return text + ")";
}

} // namespace

TEST(DemoRights, AFewUsersOfEachLevelAndOneOfNone) {
    EXPECT_THAT(smallDatabase().rows("SELECT Ierarxia, count(*) FROM SECUSERS GROUP BY 1 ORDER BY 1"),
                ElementsAre(ElementsAre("0", "2"), ElementsAre("1", "2"), ElementsAre("2", "2"),
                            ElementsAre("3", "2"), ElementsAre("4", "2"), ElementsAre("5", "2"),
                            ElementsAre("7", "1")));
}

TEST(DemoRights, EachUserSeesSomeRowsOfEachSourceButNotAll) {
    for (const std::string source : {"POLICIESDATA", "LOSSRATIODATA", "QRYPRODUCT", "CLAIMSDATA"}) {
        const auto all = smallDatabase().number("SELECT count(*) FROM " + source);
        for (const auto& user : smallDatabase().rows("SELECT UserID, Ierarxia, IerID FROM SECUSERS")) {
            const auto seen = smallDatabase().number("SELECT count(*) FROM " + source + " WHERE " +
                                                     condition(user.at(0), user.at(1), user.at(2)));
            EXPECT_GT(seen, 0) << source << " " << user.at(0);
            EXPECT_LT(seen, all) << source << " " << user.at(0);
        }
    }
}

TEST(DemoRights, SomeLeadersSellOutsideThePartThatTheyLead) {
    for (const auto& user :
         smallDatabase().rows("SELECT UserID, Ierarxia, IerID FROM SECUSERS WHERE UserID IN "
                              "('P0003', 'P0009')")) {
        const auto& column = kLevelColumns.at(user.at(1));
        EXPECT_GT(smallDatabase().number("SELECT count(*) FROM POLICIES WHERE ProductIdentity = '" +
                                         user.at(0) + "' AND " + column + " <> '" + user.at(2) + "'"),
                  0)
            << user.at(0);
    }
}

TEST(DemoRights, TheProcedureAnswersLevelAndIdentity) {
    const auto statement = smallDatabase()
                               .rows("SELECT statement FROM procedures WHERE name = 'Sec_GetUserIerarxiaID'")
                               .at(0)
                               .at(0);
    const auto parameter = statement.find("?1");
    ASSERT_NE(parameter, std::string::npos);
    std::string asked = statement;
    asked.replace(parameter, 2, "'P0004'");
    EXPECT_THAT(smallDatabase().rows(asked), ElementsAre(ElementsAre("1", "G002")));
}

// Conditions name these columns without saying whose they are.
TEST(DemoRights, TheIdentityAndLossRatioColumnsStandInNoJoinedTable) {
    for (const std::string column : {"ProductIdentity", "AgencyIdentity", "AssistantIdentity", "UnitIdentity",
                                     "ManagerIdentity", "Poson", "PosonLR"})
        for (const std::string table : {"AGENTS", "BRANCHES", "PRODUCTS", "CUSTOMERS"})
            EXPECT_THAT(smallDatabase().columnNames(table), ::testing::Not(Contains(column)));
}

TEST(DemoRights, AClaimIsTheirsWhoseThePolicyIs) {
    EXPECT_EQ(smallDatabase().number(
                  "SELECT count(*) FROM CLAIMS C JOIN POLICIES P ON C.PolicyID = P.PolicyID WHERE "
                  "C.ProductIdentity IS NOT P.ProductIdentity OR C.AgencyIdentity IS NOT P.AgencyIdentity OR "
                  "C.AssistantIdentity IS NOT P.AssistantIdentity OR C.UnitIdentity IS NOT P.UnitIdentity OR "
                  "C.ManagerIdentity IS NOT P.ManagerIdentity"),
              0);
}

} // namespace zkp::demo::test
