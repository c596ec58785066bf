#include "demo/sqlite_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zkp::demo::test {

namespace {

std::vector<std::vector<std::string>> rows(const std::string& statement) {
    return smallDatabase().rows(statement);
}

const std::string kJoinedAgents =
    " FROM  POLICIES  LEFT JOIN [AGENTS] ON [POLICIES].[AGENTID] = [AGENTS].[AgentID] Where  0=0 ";

} // namespace

TEST(DemoStatements, ADetailStatementOverTheMasterTable) {
    const auto built = rows("SELECT [AGENTS].[AgentName] AS [AGENTNAME], [POLICIES].[PREMIUM] AS [PREMIUM]" +
                            kJoinedAgents + " Order By AGENTNAME");
    EXPECT_EQ(built.size(), 2000u);
    EXPECT_EQ(built.front().at(0), "NULL");
}

TEST(DemoStatements, TheCountOfTheMasterTable) {
    EXPECT_EQ(smallDatabase().number("SELECT Count(*) As Cnt FROM  POLICIES  Where  0=0 "), 2000);
}

TEST(DemoStatements, ADetailStatementOverTheSource) {
    EXPECT_EQ(rows("SELECT [AGENTNAME],[BRANCH],[STARTDATE],[PREMIUM] From [POLICIESDATA] Where  0=0  "
                   "order by  1,2,3,4 ")
                  .size(),
              2000u);
}

TEST(DemoStatements, JoinsNestFromTheMasterTable) {
    EXPECT_EQ(rows("SELECT [BRANCHES].[BranchName] AS [BRANCH], [AGENTS].[AgentName] AS [AGENTNAME] FROM "
                   "( POLICIES  LEFT JOIN [AGENTS] ON [POLICIES].[AGENTID] = [AGENTS].[AgentID]) LEFT JOIN "
                   "[BRANCHES] ON [POLICIES].[BRANCHID] = [BRANCHES].[BranchID] Where  0=0 ")
                  .size(),
              2000u);
}

TEST(DemoStatements, RightsReachTheMasterTableOfAnyJoinedStatement) {
    EXPECT_FALSE(rows("SELECT [AGENTS].[AgentName] AS [AGENTNAME]" + kJoinedAgents +
                      "  and (ProductIdentity = 'P0004' or AgencyIdentity = 'G002')")
                     .empty());
}

TEST(DemoStatements, TotalsWithPercentagesOfTheParentGroup) {
    const auto built = rows("SELECT DISTINCT AGENTNAME,BRANCH, Count(*) As Cnt, Sum([PREMIUM]) As "
                            "[SUM_PREMIUM], (Sum([PREMIUM]) * 100) "
                            "/ (SELECT case when Sum([PREMIUM])>0 then Sum([PREMIUM]) ELSE 1 END  FROM "
                            "POLICIESDATA As Rs__PREMIUM "
                            "Where  0=0  and POLICIESDATA.[AGENTNAME] = Rs__PREMIUM.[AGENTNAME]) AS "
                            "POS_PREMIUM FROM POLICIESDATA "
                            "Where  0=0  Group By AGENTNAME,BRANCH order by AGENTNAME");
    const auto groups = rows("SELECT DISTINCT AGENTNAME, BRANCH FROM POLICIESDATA");
    EXPECT_EQ(built.size(), groups.size());

    double percent = 0;
    for (const auto& row : built)
        if (row.at(0) == "Παπαδόπουλος Γιώργος")
            percent += std::stod(row.at(4));
    EXPECT_NEAR(percent, 100, 1e-6);
}

TEST(DemoStatements, BasesOfPercentages) {
    const auto built =
        rows("SELECT DISTINCT [AGENTS].[AgentName] AS [AGENTNAME],SUM([POLICIES].[PREMIUM]) AS "
             "SUM_PREMIUM,Count(POLICIES.PolicyID) AS CNT" +
             kJoinedAgents + " Group By [AGENTS].[AgentName]");
    EXPECT_EQ(built, rows("SELECT AGENTNAME, sum(PREMIUM), count(*) FROM POLICIESDATA GROUP BY 1"));
}

TEST(DemoStatements, TotalsOverTheMasterTable) {
    const auto built = rows("SELECT DISTINCT [AGENTS].[AgentName] AS [AGENTNAME], Count(*) as cnt , "
                            "Sum([POLICIES].[PREMIUM]) As SUM_PREMIUM" +
                            kJoinedAgents + " Group By [AGENTS].[AgentName]");
    EXPECT_EQ(built, rows("SELECT AGENTNAME, count(*), sum(PREMIUM) FROM POLICIESDATA GROUP BY 1"));
}

TEST(DemoStatements, LossRatiosOverTheSourceAndOverTheMasterTableAgree) {
    const auto overSource = rows("SELECT DISTINCT CATEGORY, Count(*) As Cnt, case when SUM(POSONLR)>0 then "
                                 "(SUM(Poson) / SUM(POSONLR)) "
                                 "else 0 end AS LR, case when SUM(POSON)>0 then SUM(PosonLR) / SUM(POSON) "
                                 "else 0 end  AS LR1,Sum(Poson) "
                                 "- Sum(PosonLR) AS LR2,case when  SUM(POSON)>0 then (Sum(PosonLR) * 100) / "
                                 "Sum(Poson) else 100 end AS "
                                 "LR3 FROM LOSSRATIODATA Where  0=0  Group By CATEGORY order by CATEGORY");
    const auto overMaster = rows(
        "SELECT DISTINCT [PRODUCTS].[Category] AS [CATEGORY], Count(*) as cnt , CASE WHEN SUM(POSONLR)>0 "
        "THEN "
        "SUM(Poson) / SUM(POSONLR) ELSE 0 END AS LR, CASE WHEN SUM(POSON)>0   THEN SUM(PosonLR) / SUM(POSON) "
        "ELSE 0 END AS LR1,Sum(Poson) - Sum(PosonLR) AS LR2, CASE WHEN  SUM(POSON)>0 THEN  (Sum(PosonLR) * "
        "100) / Sum(Poson) ELSE 100 END AS LR3 FROM  POLICIES  LEFT JOIN [PRODUCTS] ON "
        "[POLICIES].[PRODUCTID] "
        "= [PRODUCTS].[ProductID] Where  0=0  Group By [PRODUCTS].[Category]");
    EXPECT_EQ(overSource.size(), 5u);
    EXPECT_EQ(overSource, overMaster);
}

TEST(DemoStatements, ProductSourcesExistUnderBothNames) {
    const auto all = smallDatabase().number("SELECT count(*) FROM QRYPRODUCT");
    const auto some = smallDatabase().number("SELECT count(*) FROM QRYProductNik");
    EXPECT_GT(some, 0);
    EXPECT_LT(some, all);
}

} // namespace zkp::demo::test
