#pragma once

#include "ado/records/filter.h"
#include "ado/records/value_classes.h"
#include "store/table.h"

#include <map>
#include <span>

namespace zkp::ado {

/// Finds the rows of a table by the values of some columns, without walking it: the classes of each
/// column and of each set of columns are made at their first use and kept.
class RowIndex {
public:
    /// The rows that a condition lets through, ascending; nothing when it is not a conjunction of
    /// equalities (or a column mixes kinds), so that the rows must be looked at one by one.
    /// `walked` grows by the rows that had to be read to make the index.
    std::optional<std::span<const std::uint32_t>> find(const Condition& condition, const store::Table& table,
                                                       std::uint64_t& walked);
    /// The classes of one column, for sorting.
    ValueClasses& classes(int column, const store::Table& table, std::uint64_t& walked);
    void clear();

private:
    /// Rows by the combined class of a list of columns.
    struct Set {
        std::vector<std::uint32_t> classOf; ///< by row
        std::uint32_t count = 0;
        /// (class of the columns before, class of the last one) to the combined class
        std::unordered_map<std::uint64_t, std::uint32_t> combined;
        std::vector<std::uint32_t> starts; ///< by class, into `rows`; made at first search
        std::vector<std::uint32_t> rows;
    };
    Set& setFor(const std::vector<int>& columns, const store::Table& table, std::uint64_t& walked);
    static void groupRows(Set& set);

    std::map<int, std::unique_ptr<ValueClasses>> classes_;
    std::map<std::vector<int>, std::unique_ptr<Set>> sets_;
};

} // namespace zkp::ado
