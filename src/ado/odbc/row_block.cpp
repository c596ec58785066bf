#include "ado/odbc/row_block.h"

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

bool RowBlock::fetch(Statement& statement) {
    bind(statement);
    fetched_ = 0;
    if (!statement.fetch())
        return false;
    const auto end = states_.begin() + static_cast<std::ptrdiff_t>(fetched_);
    if (std::find(states_.begin(), end, SQLUSMALLINT(SQL_ROW_ERROR)) != end)
        statement.check(SQL_ERROR);
    return true;
}

void RowBlock::readCut(LongValues& values) {
    for (std::size_t i = 0; i < bound_; ++i)
        buffers_[i].readCut(fetched_, values);
}

void RowBlock::appendTo(std::vector<store::ColumnBuilder>& builders, LongValues& values) {
    for (std::size_t i = 0; i < buffers_.size(); ++i) {
        if (i < bound_)
            buffers_[i].appendTo(builders[i], fetched_, values);
        else
            buffers_[i].read(values, builders[i]);
    }
}

void unbindAll(const Statement& statement) {
    SQLFreeStmt(statement.get(), SQL_UNBIND);
    SQLSetStmtAttrW(statement.get(), SQL_ATTR_ROWS_FETCHED_PTR, nullptr, 0);
    SQLSetStmtAttrW(statement.get(), SQL_ATTR_ROW_STATUS_PTR, nullptr, 0);
    SQLSetStmtAttrW(statement.get(), SQL_ATTR_ROW_ARRAY_SIZE, number(1), 0);
}

} // namespace zkp::ado::odbc
