#include "demo/dictionary.h"

#include "demo/dictionary_rows.h"

#include <optional>
#include <string>
#include <string_view>

namespace zkp::demo {

namespace {

// The flags are Booleans, so that both "isgroup = 1" and a bare "isgroup" hold; a null field is a
// calculated one.
constexpr std::string_view kColumns = R"sql( (
    dtfld TEXT, Cptn TEXT, wdth INTEGER, Algn SMALLINT, isgroup BIT, isTot BIT, visbl INTEGER,
    IsPublic INTEGER, [Sum] BIT, [Avg] BIT, [Min] BIT, [Max] BIT, crosstabdate BIT, SOURCEFIELDNAME TEXT,
    SourceTableName TEXT, Expr TEXT, KeyMaster TEXT, foreignkey TEXT))sql";

std::optional<std::string_view> optionalText(const char* text) {
    return text ? std::optional<std::string_view>{text} : std::nullopt;
}

/// The key that a table has, and that is met under the same name in a table that refers to it.
std::optional<std::string_view> keyOf(std::optional<std::string_view> table) {
    constexpr std::string_view kKeys[][2] = {{"POLICIES", "PolicyID"},  {"CLAIMS", "ClaimID"},
                                             {"AGENTS", "AgentID"},     {"BRANCHES", "BranchID"},
                                             {"PRODUCTS", "ProductID"}, {"CUSTOMERS", "CustomerID"}};
    for (const auto& [name, key] : kKeys)
        if (table == name)
            return key;
    return std::nullopt;
}

void makeDictionary(Database& database, const std::string& name, std::span<const Field> fields) {
    database.run("CREATE TABLE " + name + std::string{kColumns});
    Insert insert(database, name);
    for (const Field& field : fields) {
        const auto has = [&field](unsigned use) { return (field.use & use) != 0; };
        const auto set = [&has](unsigned use) {
            return has(kUnset) ? std::optional<bool>{} : std::optional<bool>{has(use)};
        };
        const auto align = has(kUnset) ? std::optional<int>{} : std::optional<int>{field.align};
        const auto table = optionalText(field.table);
        const auto key = keyOf(table);
        insert.row(field.key, field.caption, field.width, align, set(kGroup), set(kTotal), !has(kHidden),
                   !has(kPrivate), has(kSum), has(kAvg), has(kMin), has(kMax), has(kCrossTab),
                   optionalText(field.field), table, optionalText(field.expression), key, key);
    }
}

} // namespace

void makeDictionaries(Database& database) {
    makeDictionary(database, "POLICIESCLMNS", policyFields());
    makeDictionary(database, "CLAIMSCLMNS", claimFields());
    makeDictionary(database, "LOSSRATIOCLMNS", ratioFields());
    makeDictionary(database, "PRODUCTCLMNS", productFields());
}

} // namespace zkp::demo
