#include "ado/records/sort_order.h"

#include "ado/dialect/tokenizer.h"
#include "ado/records/filter_match.h"
#include "base/error.h"

#include <algorithm>
#include <numeric>

namespace zkp::ado {

namespace {

using dialect::Token;
using dialect::TokenKind;

struct SortKey {
    int field = 0;
    bool descending = false;
};

[[noreturn]] void failToSort(const QString& order) {
    throw Error(kErrBadArgument, QStringLiteral("The sort order \"%1\" cannot be read.").arg(order));
}

std::vector<SortKey> parseOrder(const QString& order, const Records& records) {
    std::vector<Token> tokens;
    for (const Token& token : dialect::tokenize(order, dialect::Dialect::Sqlite)) {
        if (token.kind != TokenKind::Space)
            tokens.push_back(token);
    }
    std::vector<SortKey> keys;
    for (std::size_t at = 0; at < tokens.size();) {
        const Token& name = tokens[at++];
        if (name.kind != TokenKind::Word && name.kind != TokenKind::Name)
            failToSort(order);
        SortKey key{records.indexOf(dialect::nameOf(name)), false};
        if (key.field < 0)
            throw Error(kErrItemNotFound,
                        QStringLiteral("The sort order \"%1\" names the field \"%2\", which is "
                                       "not there.")
                            .arg(order, dialect::nameOf(name)));
        if (at < tokens.size() && (tokens[at].isWord(u"asc") || tokens[at].isWord(u"desc")))
            key.descending = tokens[at++].isWord(u"desc");
        keys.push_back(key);
        if (at < tokens.size() && (!tokens[at++].isSign(u",") || at == tokens.size()))
            failToSort(order);
    }
    return keys;
}

} // namespace

std::vector<std::uint32_t> filteredRows(const Condition& condition, Records& records) {
    if (const auto found = records.index.find(condition, records.table, records.rowsWalked))
        return {found->begin(), found->end()};
    const auto matcher = FilterMatcher::compile(condition, records.table);
    std::vector<std::uint32_t> rows;
    for (std::uint32_t row = 0; row < records.table.rows; ++row) {
        if (matcher->matches(row))
            rows.push_back(row);
    }
    records.rowsWalked += records.table.rows;
    return rows;
}

std::vector<std::uint32_t> allRows(const Records& records) {
    std::vector<std::uint32_t> rows(records.table.rows);
    std::iota(rows.begin(), rows.end(), 0u);
    return rows;
}

void sortRows(std::vector<std::uint32_t>& rows, const QString& order, Records& records) {
    const std::vector<SortKey> keys = parseOrder(order, records);
    // From the last key to the first: each stable sort keeps the order of those behind it.
    for (auto key = keys.rbegin(); key != keys.rend(); ++key) {
        ValueClasses& classes = records.index.classes(key->field, records.table, records.rowsWalked);
        const std::vector<std::uint32_t>& ranks = classes.ranks();
        const auto rank = [&](std::uint32_t row) { return ranks[classes.classOf(row)]; };
        if (key->descending)
            std::stable_sort(rows.begin(), rows.end(), [&](auto a, auto b) { return rank(a) > rank(b); });
        else
            std::stable_sort(rows.begin(), rows.end(), [&](auto a, auto b) { return rank(a) < rank(b); });
    }
}

} // namespace zkp::ado
