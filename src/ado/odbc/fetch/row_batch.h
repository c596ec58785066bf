#pragma once

#include "ado/odbc/fetch/packed_column.h"
#include "base/error.h"

#include <optional>

namespace zkp::ado::odbc {

/// Some rows on their way from the driver's thread to the columns. The driver's buffers stay with its own
/// thread: memory that two threads write by turns is slow on both.
class RowBatch {
public:
    explicit RowBatch(const std::vector<ColumnType>& columns)
        : columns_(columns.begin(), columns.end()) {}

    void clear();
    PackedColumn& column(std::size_t i) { return columns_[i]; }
    void appendTo(std::vector<store::ColumnBuilder>& builders);

    std::size_t rows = 0;
    /// The statement has given its last row, or failed.
    bool isLast = false;
    std::optional<Error> failure;

private:
    std::vector<PackedColumn> columns_;
};

} // namespace zkp::ado::odbc
