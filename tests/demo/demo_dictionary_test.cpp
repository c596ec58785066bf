#include "demo/sqlite_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

namespace zkp::demo::test {

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct Report {
    std::string source, master, dictionary;
};

std::vector<Report> reports() {
    std::vector<Report> all;
    for (const auto& row : smallDatabase().rows("SELECT RecSource, MasterTable, Dictionary FROM Reports"))
        all.push_back({row.at(0), row.at(1), row.at(2)});
    return all;
}

std::vector<std::string> keys(const Report& report) {
    return smallDatabase().column("SELECT dtfld FROM " + report.dictionary + " ORDER BY rowid");
}

bool endsWith(const std::string& text, const std::string& end) {
    return text.size() > end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

} // namespace

TEST(DemoDictionary, ReportsNameTheirMasterKeyFilterAndDictionary) {
    EXPECT_THAT(smallDatabase().rows("SELECT RecSource, MasterTable, RKeyname, MasterFilter FROM Reports"),
                ElementsAre(ElementsAre("POLICIESDATA", "POLICIES", "PolicyID", "NULL"),
                            ElementsAre("CLAIMSDATA", "CLAIMS", "ClaimID", "STATUS<>'Άκυρη'"),
                            ElementsAre("LOSSRATIODATA", "POLICIES", "", "NULL"),
                            ElementsAre("QRYPRODUCT", "", "NULL", "")));
}

TEST(DemoDictionary, HasTheToldColumns) {
    for (const Report& report : reports())
        EXPECT_THAT(smallDatabase().columnNames(report.dictionary),
                    ElementsAre("dtfld", "Cptn", "wdth", "Algn", "isgroup", "isTot", "visbl", "IsPublic",
                                "Sum", "Avg", "Min", "Max", "crosstabdate", "SOURCEFIELDNAME",
                                "SourceTableName", "Expr", "KeyMaster", "foreignkey"));
}

TEST(DemoDictionary, KeysAreInCapitalsAndOnceOnly) {
    for (const Report& report : reports()) {
        const auto all = keys(report);
        EXPECT_EQ(std::set(all.begin(), all.end()).size(), all.size());
        for (const auto& key : all)
            EXPECT_EQ(key.find_first_not_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789"), std::string::npos)
                << key;
    }
    EXPECT_GE(keys({"", "", "POLICIESCLMNS"}).size(), 20u);
}

TEST(DemoDictionary, EachKeyIsAColumnOfTheSourceItself) {
    for (const Report& report : reports())
        for (const auto& key : keys(report))
            EXPECT_NO_THROW(
                smallDatabase().rows("SELECT S.[" + key + "] FROM " + report.source + " S LIMIT 1"))
                << report.source << "." << key;
}

TEST(DemoDictionary, EveryPhysicalFieldExists) {
    for (const Report& report : reports())
        for (const auto& row : smallDatabase().rows("SELECT SourceTableName, SOURCEFIELDNAME FROM " +
                                                    report.dictionary + " WHERE SOURCEFIELDNAME IS NOT NULL"))
            EXPECT_THAT(smallDatabase().columnNames(row.at(0)), Contains(row.at(1))) << row.at(0);
}

// A run-time statement with every field of the dictionary gives, row by row, what the source gives.
TEST(DemoDictionary, FieldsAndExpressionsGiveWhatTheSourceShows) {
    for (const Report& report : reports()) {
        if (report.master.empty())
            continue;
        std::string items, names;
        for (const auto& row : smallDatabase().rows(
                 "SELECT dtfld, SourceTableName, SOURCEFIELDNAME, Expr FROM " + report.dictionary)) {
            const bool calculated = row.at(2) == "NULL";
            items += (items.empty() ? "" : ", ") +
                     (calculated ? row.at(3) : "[" + row.at(1) + "].[" + row.at(2) + "]") + " AS [" +
                     row.at(0) + "]";
            names += (names.empty() ? "[" : ", [") + row.at(0) + "]";
        }
        std::string from = report.master;
        for (const auto& row :
             smallDatabase().rows("SELECT DISTINCT SourceTableName, KeyMaster, foreignkey FROM " +
                                  report.dictionary + " WHERE SourceTableName <> '" + report.master + "'"))
            from += " LEFT JOIN [" + row.at(0) + "] ON [" + report.master + "].[" + row.at(1) + "] = [" +
                    row.at(0) + "].[" + row.at(2) + "]";
        const auto built = smallDatabase().rows("SELECT " + items + " FROM " + from + " ORDER BY 1, 2");
        const auto shown =
            smallDatabase().rows("SELECT " + names + " FROM " + report.source + " ORDER BY 1, 2");
        EXPECT_EQ(built, shown) << report.source;
    }
}

TEST(DemoDictionary, AllRowsOfATableAgreeOnItsJoinKeys) {
    for (const Report& report : reports())
        EXPECT_THAT(smallDatabase().column("SELECT SourceTableName FROM " + report.dictionary +
                                           " WHERE SourceTableName IS NOT NULL GROUP BY 1 HAVING "
                                           "count(DISTINCT KeyMaster) > 1 OR count(DISTINCT foreignkey) > 1"),
                    IsEmpty());
}

TEST(DemoDictionary, CalculatedFieldsWithAndWithoutATableOccur) {
    EXPECT_GE(smallDatabase().number("SELECT count(*) FROM POLICIESCLMNS WHERE SOURCEFIELDNAME IS NULL AND "
                                     "Expr IS NOT NULL AND SourceTableName IS NOT NULL"),
              1);
    EXPECT_GE(smallDatabase().number("SELECT count(*) FROM POLICIESCLMNS WHERE SOURCEFIELDNAME IS NULL AND "
                                     "Expr IS NOT NULL AND SourceTableName IS NULL"),
              1);
}

// A filter's keys are replaced row by row with no left boundary before an operator.
TEST(DemoDictionary, NoKeyEndsInOneThatStandsAboveIt) {
    for (const Report& report : reports()) {
        const auto all = keys(report);
        for (std::size_t later = 0; later < all.size(); ++later)
            for (std::size_t earlier = 0; earlier < later; ++earlier)
                EXPECT_FALSE(endsWith(all[later], all[earlier])) << all[later] << " " << all[earlier];
    }
}

TEST(DemoDictionary, AlignmentsAreThoseOfTheDictionary) {
    for (const Report& report : reports())
        EXPECT_EQ(smallDatabase().number("SELECT count(*) FROM " + report.dictionary +
                                         " WHERE Algn NOT IN (1, 4, 7) OR wdth < 500 OR Cptn = ''"),
                  0);
}

TEST(DemoDictionary, BothDialectsOfTheFlagsPickTheSameRows) {
    for (const Report& report : reports()) {
        const std::string start = "Select dtfld from " + report.dictionary;
        EXPECT_EQ(
            smallDatabase().column(start + " where visbl = 1 and (isGroup = 1 or [Sum] = 1 or [Avg] = 1 or "
                                           "[Min] =1  or [Max] = 1) order by cptn"),
            smallDatabase().column(start + " where visbl=1 and (isgroup or [Sum] or [Avg] or [Min] or [Max]) "
                                           "order by cptn"));
        EXPECT_NO_THROW(smallDatabase().column(start + " Where isgroup or isTot order by cptn "));
    }
    EXPECT_GT(smallDatabase().number("SELECT count(*) FROM POLICIESCLMNS WHERE visbl = 0"), 0);
    EXPECT_GT(smallDatabase().number("SELECT count(*) FROM POLICIESCLMNS WHERE visbl = 1 AND IsPublic = 0"),
              0);
    EXPECT_GT(smallDatabase().number("SELECT count(*) FROM POLICIESCLMNS WHERE isgroup IS NULL"), 0);
}

} // namespace zkp::demo::test
