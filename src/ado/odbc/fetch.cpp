#include "ado/odbc/fetch.h"

#include "ado/constants.h"

#include <algorithm>

namespace zkp::ado::odbc {

namespace {

constexpr std::size_t kMostRows = 1024;
constexpr std::size_t kBlockBytes = 4u << 20;
constexpr std::size_t kRowsBetweenReports = 10'000;

SQLPOINTER number(SQLULEN value) {
    return reinterpret_cast<SQLPOINTER>(value);
}

} // namespace

Fetch::Fetch(Statement& statement, const RunOptions& options)
    : statement_(statement)
    , options_(options)
    , values_(statement) {
    for (int column = 0; column < statement.columnCount(); ++column)
        columns_.push_back(describeColumn(statement, column));
    builders_.resize(columns_.size());
    plan();
    bind();
}

/// The driver must not write into buffers that are gone, whatever the statement does next.
Fetch::~Fetch() {
    SQLFreeStmt(statement_.get(), SQL_UNBIND);
    SQLSetStmtAttrW(statement_.get(), SQL_ATTR_ROWS_FETCHED_PTR, nullptr, 0);
    SQLSetStmtAttrW(statement_.get(), SQL_ATTR_ROW_STATUS_PTR, nullptr, 0);
    SQLSetStmtAttrW(statement_.get(), SQL_ATTR_ROW_ARRAY_SIZE, number(1), 0);
}

/// Where the driver can't go back into a block for a long value, rows come one by one from the first
/// long column on: every driver takes bound columns first and then the others in their order.
void Fetch::plan() {
    const auto firstLong = std::find_if(columns_.begin(), columns_.end(),
                                        [](const ColumnType& column) { return column.isLong; });
    const bool wholeBlocks = firstLong == columns_.end() || statement_.session().readsInsideBlocks();
    bound_ = wholeBlocks ? columns_.size() : static_cast<std::size_t>(firstLong - columns_.begin());
    std::size_t rowBytes = 1;
    for (const ColumnType& column : columns_)
        rowBytes += column.width + sizeof(SQLLEN);
    blockRows_ = wholeBlocks ? std::clamp<std::size_t>(kBlockBytes / rowBytes, 16, kMostRows) : 1;
}

void Fetch::bind() {
    states_.resize(blockRows_);
    SQLSetStmtAttrW(statement_.get(), SQL_ATTR_ROW_BIND_TYPE, number(SQL_BIND_BY_COLUMN), 0);
    statement_.check(SQLSetStmtAttrW(statement_.get(), SQL_ATTR_ROW_ARRAY_SIZE, number(blockRows_), 0));
    statement_.check(SQLSetStmtAttrW(statement_.get(), SQL_ATTR_ROWS_FETCHED_PTR, &fetched_, 0));
    statement_.check(SQLSetStmtAttrW(statement_.get(), SQL_ATTR_ROW_STATUS_PTR, states_.data(), 0));
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        buffers_.emplace_back(columns_[i], static_cast<int>(i), blockRows_);
        if (i < bound_)
            buffers_.back().bind(statement_);
    }
}

Result Fetch::run() {
    while (statement_.fetch()) {
        checkRows();
        take();
    }
    return finish();
}

void Fetch::checkRows() const {
    const auto end = states_.begin() + static_cast<std::ptrdiff_t>(fetched_);
    if (std::find(states_.begin(), end, SQLUSMALLINT(SQL_ROW_ERROR)) != end)
        statement_.check(SQL_ERROR);
}

void Fetch::take() {
    const std::size_t before = rows_;
    for (std::size_t i = 0; i < buffers_.size(); ++i) {
        if (i < bound_)
            buffers_[i].appendTo(builders_[i], fetched_, values_);
        else
            buffers_[i].read(values_, builders_[i]);
    }
    rows_ += fetched_;
    if (options_.progress && rows_ / kRowsBetweenReports != before / kRowsBetweenReports)
        options_.progress(static_cast<std::int64_t>(rows_));
}

Result Fetch::finish() {
    Result result;
    result.table.rows = rows_;
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        FieldInfo& info = columns_[i].info;
        const bool whole =
            !builders_[i].has(store::ValueKind::Amount) && !builders_[i].has(store::ValueKind::Double);
        if (columns_[i].byValues && whole && !builders_[i].hasLongInteger())
            info = {info.name, adInteger, 4};
        else if (columns_[i].byValues && whole)
            info = {info.name, adBigInt, 8};
        result.fields.push_back(info);
        result.table.columns.push_back(builders_[i].finish());
    }
    return result;
}

} // namespace zkp::ado::odbc
