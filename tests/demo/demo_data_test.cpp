#include "demo/sqlite_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zkp::demo::test {

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

long long count(const std::string& from) {
    return smallDatabase().number("SELECT count(*) FROM " + from);
}

} // namespace

TEST(DemoData, EveryJoinKeyNamesARow) {
    for (const std::string table : {"POLICIES", "CLAIMS"}) {
        EXPECT_EQ(count(table + " WHERE AgentID NOT IN (SELECT AgentID FROM AGENTS)"), 0);
        EXPECT_EQ(count(table + " WHERE BranchID NOT IN (SELECT BranchID FROM BRANCHES)"), 0);
        EXPECT_EQ(count(table + " WHERE ProductID NOT IN (SELECT ProductID FROM PRODUCTS)"), 0);
        EXPECT_EQ(count(table + " WHERE CustomerID NOT IN (SELECT CustomerID FROM CUSTOMERS)"), 0);
    }
    EXPECT_EQ(count("CLAIMS WHERE PolicyID NOT IN (SELECT PolicyID FROM POLICIES)"), 0);
}

TEST(DemoData, AViewHasOneRowForEachRowOfItsMaster) {
    EXPECT_EQ(count("POLICIESDATA"), 2000);
    EXPECT_EQ(count("LOSSRATIODATA"), 2000);
    EXPECT_EQ(count("QRYPRODUCT"), 2000);
    EXPECT_EQ(count("CLAIMSDATA"), count("CLAIMS"));
    EXPECT_GT(count("CLAIMS"), 100);
}

TEST(DemoData, NullsAndBlanksBothOccurAndDiffer) {
    EXPECT_GT(count("POLICIES WHERE Remarks IS NULL"), 0);
    EXPECT_GT(count("POLICIES WHERE Remarks = ''"), 0);
    EXPECT_GT(count("POLICIES WHERE length(Remarks) > 0"), 0);
    EXPECT_GT(count("POLICIESDATA WHERE AGENTNAME IS NULL"), 0);
    EXPECT_GT(count("POLICIESDATA WHERE AGENTNAME = ''"), 0);
    EXPECT_GT(count("POLICIESDATA WHERE BRANCH IS NULL"), 0);
    EXPECT_GT(count("POLICIESDATA WHERE BRANCH = ''"), 0);
    EXPECT_GT(count("POLICIES WHERE CustomerID IS NULL"), 0);
    EXPECT_GT(count("POLICIES WHERE EndDate IS NULL"), 0);
    EXPECT_GT(count("POLICIES WHERE Commission IS NULL"), 0);
    EXPECT_GT(count("POLICIES WHERE AssistantIdentity = ''"), 0);
}

TEST(DemoData, AmountsAddUpToTheCent) {
    EXPECT_EQ(count("POLICIES WHERE CAST(round(Net * 100) AS INTEGER) + CAST(round(Tax * 100) AS INTEGER) <> "
                    "CAST(round(PREMIUM * 100) AS INTEGER)"),
              0);
    EXPECT_EQ(count("POLICIES WHERE abs(PREMIUM * 100 - round(PREMIUM * 100)) > 0.0001"), 0);
    EXPECT_GT(count("POLICIES WHERE PREMIUM < 0"), 0);
    EXPECT_GT(count("CLAIMS WHERE Paid < 0"), 0);
}

TEST(DemoData, AnAgentWhoseSalesAllCameBackNetsToZero) {
    const auto agents = smallDatabase().column(
        "SELECT AgentID FROM POLICIES WHERE AgentID IS NOT NULL GROUP BY AgentID HAVING "
        "sum(CAST(round(PREMIUM * 100) AS INTEGER)) = 0 AND max(PREMIUM) > 0");
    EXPECT_THAT(agents, ElementsAre("40"));
}

TEST(DemoData, PosonIsTheNetPremiumAndPosonLRWhatWasPaidOnClaims) {
    EXPECT_EQ(count("POLICIES WHERE Poson <> Net"), 0);
    EXPECT_EQ(count("POLICIES P WHERE abs(PosonLR - coalesce("
                    "(SELECT sum(Paid) FROM CLAIMS C WHERE C.PolicyID = P.PolicyID), 0)) > 0.001"),
              0);
    EXPECT_GT(count("POLICIES WHERE PosonLR > Poson"), 0);
}

TEST(DemoData, DatesAreRealDaysOverSeveralYears) {
    EXPECT_EQ(count("POLICIES WHERE date(StartDate) IS NOT StartDate OR date(IssueDate) IS NOT IssueDate"),
              0);
    EXPECT_EQ(count("POLICIES WHERE EndDate IS NOT NULL AND date(EndDate) IS NOT EndDate"), 0);
    EXPECT_EQ(count("POLICIES WHERE datetime(EnteredAt) IS NOT EnteredAt"), 0);
    EXPECT_EQ(count("POLICIES WHERE EndDate <= StartDate OR StartDate < IssueDate"), 0);
    EXPECT_GE(count("(SELECT DISTINCT POLICYYEAR FROM POLICIESDATA)"), 7);
    EXPECT_EQ(count("CLAIMS WHERE ReportedOn < OccurredOn OR PaidOn < ReportedOn"), 0);
    EXPECT_GT(count("POLICIES WHERE EnteredAt LIKE '% 00:00:00'"), 0);
}

TEST(DemoData, NamesHaveAccentsFinalSigmaAndDoubleMarks) {
    EXPECT_GT(count("CUSTOMERS WHERE FullName LIKE '%ς %'"), 0);
    EXPECT_GT(count("CUSTOMERS WHERE FullName LIKE '%ΐ%'"), 0);
    EXPECT_EQ(count("POLICIESDATA WHERE BRANCH = 'Βόλος'") > 0, true);
    for (const char* product : {"Νομική Προστασία", "Μεταφορών", "Ζωής - Ισόβια", "Δίκυκλο"})
        EXPECT_EQ(count("PRODUCTS WHERE ProductName = '" + std::string{product} + "'"), 1) << product;
}

TEST(DemoData, NoTwoAgentsShareAName) {
    EXPECT_THAT(smallDatabase().column("SELECT AgentName FROM AGENTS GROUP BY 1 HAVING count(*) > 1"),
                IsEmpty());
}

TEST(DemoData, ViewsHandOnTheDeclaredTypes) {
    const Reader& database = smallDatabase();
    EXPECT_EQ(database.declaredType("POLICIESDATA", "PREMIUM"), "MONEY");
    EXPECT_EQ(database.declaredType("POLICIESDATA", "STARTDATE"), "DATE");
    EXPECT_EQ(database.declaredType("POLICIESDATA", "ENTEREDAT"), "TIMESTAMP");
    EXPECT_EQ(database.declaredType("POLICIESDATA", "ISPAID"), "BIT");
    EXPECT_EQ(database.declaredType("CLAIMSDATA", "PAIDON"), "DATE");
    EXPECT_EQ(database.declaredType("CLAIMSDATA", "RESERVE"), "MONEY");
    EXPECT_EQ(database.declaredType("LOSSRATIODATA", "PosonLR"), "MONEY");
    EXPECT_EQ(database.declaredType("QRYProductNik", "PREMIUM"), "MONEY");
}

TEST(DemoData, TheTemplateTablesAreEmptyAndOfTheToldShape) {
    EXPECT_THAT(smallDatabase().columnNames("frms"), ElementsAre("lstCode", "ZKP_"));
    EXPECT_THAT(smallDatabase().columnNames("frms2"), ElementsAre("lstCode", "ZKP_", "datein"));
    EXPECT_EQ(count("frms"), 0);
    EXPECT_EQ(count("frms2"), 0);
}

TEST(DemoData, TheGeneralSettingsThatReportsNeedAreThere) {
    const auto rows = smallDatabase().rows("SELECT GenKey, GenSubKey, GenValue FROM QRN_MAIN ORDER BY 1, 2");
    EXPECT_THAT(rows, ElementsAre(ElementsAre("2", "6", "30"), ElementsAre("2", "7", "300"),
                                  ElementsAre("2", "18", "0")));
}

} // namespace zkp::demo::test
