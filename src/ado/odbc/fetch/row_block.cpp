#include "ado/odbc/fetch/row_block.h"

#include <algorithm>

namespace zkp::ado::odbc {

namespace {

SQLPOINTER number(SQLULEN value) {
    return reinterpret_cast<SQLPOINTER>(value);
}

} // namespace

RowBlock::RowBlock(const std::vector<ColumnType>& columns, std::size_t bound, std::size_t rows)
    : bound_(bound)
    , states_(rows) {
    buffers_.reserve(columns.size());
    for (std::size_t i = 0; i < columns.size(); ++i)
        buffers_.emplace_back(columns[i], static_cast<int>(i), rows);
}

void RowBlock::bind(Statement& statement) {
    SQLHSTMT handle = statement.get();
    statement.check(SQLSetStmtAttrW(handle, SQL_ATTR_ROW_ARRAY_SIZE, number(states_.size()), 0));
    statement.check(SQLSetStmtAttrW(handle, SQL_ATTR_ROWS_FETCHED_PTR, &fetched_, 0));
    statement.check(SQLSetStmtAttrW(handle, SQL_ATTR_ROW_STATUS_PTR, states_.data(), 0));
    for (std::size_t i = 0; i < bound_; ++i)
        buffers_[i].bind(statement);
}

bool RowBlock::fetchBlock(Statement& statement) {
    bind(statement);
    fetched_ = 0;
    if (!statement.fetch())
        return false;
    const auto end = states_.begin() + static_cast<std::ptrdiff_t>(fetched_);
    if (std::find(states_.begin(), end, SQLUSMALLINT(SQL_ROW_ERROR)) != end)
        statement.check(SQL_ERROR);
    return true;
}

bool RowBlock::fetch(Statement& statement, LongValues& values, RowBatch& batch) {
    if (!fetchBlock(statement))
        return false;
    for (std::size_t i = 0; i < bound_; ++i)
        buffers_[i].pack(fetched_, values, batch.column(i));
    for (std::size_t i = bound_; i < buffers_.size(); ++i)
        buffers_[i].read(values, batch.column(i));
    batch.rows = fetched_;
    return true;
}

void unbindAll(const Statement& statement) {
    SQLFreeStmt(statement.get(), SQL_UNBIND);
    SQLSetStmtAttrW(statement.get(), SQL_ATTR_ROWS_FETCHED_PTR, nullptr, 0);
    SQLSetStmtAttrW(statement.get(), SQL_ATTR_ROW_STATUS_PTR, nullptr, 0);
    SQLSetStmtAttrW(statement.get(), SQL_ATTR_ROW_ARRAY_SIZE, number(1), 0);
}

} // namespace zkp::ado::odbc
