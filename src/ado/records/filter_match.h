#pragma once

#include "ado/records/filter.h"
#include "store/table.h"

#include <memory>

namespace zkp::ado {

/// A condition made ready for the rows of a table. A text that the column keeps once is compared
/// once, however many rows have it. Null never matches.
class FilterMatcher {
public:
    virtual ~FilterMatcher() = default;
    virtual bool matches(std::size_t row) = 0;

    static std::unique_ptr<FilterMatcher> compile(const Condition& condition, const store::Table& table);
};

} // namespace zkp::ado
