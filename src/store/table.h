#pragma once

#include "store/column.h"

namespace zkp::store {

/// The columns of one result; all have `rows` values.
struct Table {
    std::vector<std::shared_ptr<const Column>> columns;
    std::size_t rows = 0;
};

} // namespace zkp::store
