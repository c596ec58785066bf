#include "ado/records/row_index.h"

#include <algorithm>

namespace zkp::ado {

namespace {

/// The equalities of a conjunction, in the order of their columns; false when there is anything else.
bool collectEqualities(const Condition& condition, std::map<int, const FilterLiteral*>& equalities) {
    switch (condition.kind) {
    case Condition::Kind::Compare:
        return condition.comparison == Comparison::Equal &&
               equalities.try_emplace(condition.field, &condition.literal).second;
    case Condition::Kind::And:
        return std::all_of(condition.parts.begin(), condition.parts.end(),
                           [&](const Condition& part) { return collectEqualities(part, equalities); });
    case Condition::Kind::Or:
        return false;
    }
    return false;
}

std::uint64_t pairKey(std::uint32_t before, std::uint32_t last) {
    return std::uint64_t(before) << 32 | last;
}

} // namespace

void RowIndex::clear() {
    classes_.clear();
    sets_.clear();
}

ValueClasses& RowIndex::classes(int column, const store::Table& table, std::uint64_t& walked) {
    auto& classes = classes_[column];
    if (!classes) {
        classes = std::make_unique<ValueClasses>(table.columns[static_cast<std::size_t>(column)]);
        walked += table.rows;
    }
    return *classes;
}

RowIndex::Set& RowIndex::setFor(const std::vector<int>& columns, const store::Table& table,
                                std::uint64_t& walked) {
    if (const auto known = sets_.find(columns); known != sets_.end())
        return *known->second;
    const ValueClasses& last = classes(columns.back(), table, walked);
    auto set = std::make_unique<Set>();
    set->classOf.resize(table.rows);
    if (columns.size() == 1) {
        set->count = last.count();
        for (std::size_t row = 0; row < table.rows; ++row)
            set->classOf[row] = last.classOf(row);
    } else {
        const Set& before = setFor({columns.begin(), columns.end() - 1}, table, walked);
        for (std::size_t row = 0; row < table.rows; ++row) {
            const auto [entry, isNew] =
                set->combined.try_emplace(pairKey(before.classOf[row], last.classOf(row)), set->count);
            set->count += isNew;
            set->classOf[row] = entry->second;
        }
        walked += table.rows;
    }
    return *(sets_[columns] = std::move(set));
}

/// Puts the rows of each class together, keeping their order.
void RowIndex::groupRows(Set& set) {
    set.starts.assign(set.count + 1, 0);
    for (const std::uint32_t c : set.classOf)
        ++set.starts[c + 1];
    for (std::size_t c = 1; c < set.starts.size(); ++c)
        set.starts[c] += set.starts[c - 1];
    std::vector<std::uint32_t> next(set.starts.begin(), set.starts.end() - 1);
    set.rows.resize(set.classOf.size());
    for (std::uint32_t row = 0; row < set.classOf.size(); ++row)
        set.rows[next[set.classOf[row]]++] = row;
}

std::optional<std::span<const std::uint32_t>>
RowIndex::find(const Condition& condition, const store::Table& table, std::uint64_t& walked) {
    std::map<int, const FilterLiteral*> equalities;
    if (!collectEqualities(condition, equalities))
        return std::nullopt;

    std::vector<int> columns;
    std::uint32_t wanted = 0;
    for (const auto& [column, literal] : equalities) {
        const std::vector<std::uint32_t> found = classes(column, table, walked).classesOf(*literal);
        if (found.size() > 1)
            return std::nullopt;
        if (found.empty())
            return std::span<const std::uint32_t>();
        columns.push_back(column);
        Set& set = setFor(columns, table, walked);
        if (columns.size() == 1) {
            wanted = found[0];
            continue;
        }
        const auto combined = set.combined.find(pairKey(wanted, found[0]));
        if (combined == set.combined.end())
            return std::span<const std::uint32_t>();
        wanted = combined->second;
    }
    Set& set = setFor(columns, table, walked);
    if (set.starts.empty())
        groupRows(set);
    return std::span(set.rows).subspan(set.starts[wanted], set.starts[wanted + 1] - set.starts[wanted]);
}

} // namespace zkp::ado
