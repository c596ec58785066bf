#pragma once

#include "ado/odbc/column_buffer.h"

#include <optional>

namespace zkp::ado::odbc {

/// Buffers for a block of rows: those of the first columns are bound, the others are read one by one.
class RowBlock {
public:
    RowBlock(const std::vector<ColumnType>& columns, std::size_t bound, std::size_t rows);
    RowBlock(const RowBlock&) = delete;
    RowBlock& operator=(const RowBlock&) = delete;

    /// Fetches the statement's next rows into the buffers; false behind the last.
    bool fetch(Statement& statement);
    /// Reads the values that the buffers cut, before the statement goes on to further rows.
    void readCut(LongValues& values);
    /// Appends the rows to the columns.
    void appendTo(std::vector<store::ColumnBuilder>& builders, LongValues& values);
    std::size_t rows() const { return fetched_; }

    /// Behind the last rows, or a failure in their place.
    bool isLast = false;
    std::optional<Error> failure;

private:
    void bind(Statement& statement);

    std::vector<ColumnBuffer> buffers_;
    std::size_t bound_;
    std::vector<SQLUSMALLINT> states_;
    SQLULEN fetched_ = 0;
};

/// Takes all buffers from a statement again.
void unbindAll(const Statement& statement);

} // namespace zkp::ado::odbc
