#pragma once

#include "ado/odbc/column_buffer.h"

namespace zkp::ado::odbc {

/// Fetches all records of a statement's current result into columns, in blocks of rows.
class Fetch {
public:
    Fetch(Statement& statement, const RunOptions& options);
    Fetch(const Fetch&) = delete;
    Fetch& operator=(const Fetch&) = delete;
    ~Fetch();

    Result run();

private:
    void plan();
    void bind();
    void take();
    void checkRows() const;
    Result finish();

    Statement& statement_;
    const RunOptions& options_;
    LongValues values_;
    std::vector<ColumnType> columns_;
    std::vector<ColumnBuffer> buffers_;
    std::vector<store::ColumnBuilder> builders_;
    std::size_t bound_ = 0; ///< how many of the first columns are bound; the others are read one by one
    std::size_t blockRows_ = 1;
    SQLULEN fetched_ = 0;
    std::vector<SQLUSMALLINT> states_;
    std::size_t rows_ = 0;
};

} // namespace zkp::ado::odbc
