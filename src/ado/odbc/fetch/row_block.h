#pragma once

#include "ado/odbc/fetch/column_buffer.h"
#include "ado/odbc/fetch/row_batch.h"

namespace zkp::ado::odbc {

/// Buffers for a block of rows: those of the first columns are bound, the others are read one by one.
class RowBlock {
public:
    RowBlock(const std::vector<ColumnType>& columns, std::size_t bound, std::size_t rows);
    RowBlock(const RowBlock&) = delete;
    RowBlock& operator=(const RowBlock&) = delete;

    std::size_t rows() const { return states_.size(); }
    /// Fetches the statement's next rows; false behind the last.
    bool fetch(Statement& statement, LongValues& values, RowBatch& batch);

private:
    void bind(Statement& statement);
    bool fetchBlock(Statement& statement);

    std::vector<ColumnBuffer> buffers_;
    std::size_t bound_;
    std::vector<SQLUSMALLINT> states_;
    SQLULEN fetched_ = 0;
};

/// Takes all buffers from a statement again.
void unbindAll(const Statement& statement);

} // namespace zkp::ado::odbc
