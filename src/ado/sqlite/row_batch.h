#pragma once

#include "ado/sqlite/field_types.h"
#include "base/error.h"

#include <sqlite3.h>

#include <optional>
#include <vector>

namespace zkp::ado::sqlite {

/// Some rows on their way from SQLite's thread to the columns, column by column.
class RowBatch {
public:
    explicit RowBatch(int columns);

    void clear();
    std::size_t rows() const { return rows_; }
    /// Enough rows, or enough bytes, to be handed on.
    bool isFull() const { return rows_ >= kRows || bytes_ >= kBytes; }
    /// Copies the statement's current row.
    void addRow(sqlite3_stmt* statement);
    /// Appends all values of one column.
    void appendTo(store::ColumnBuilder& builder, int column, Storage storage) const;

    /// The statement has given its last row, or failed.
    bool isLast = false;
    std::optional<Error> failure;

private:
    static constexpr std::size_t kRows = 1024;
    static constexpr std::size_t kBytes = 1u << 20;

    struct Cells {
        std::vector<std::uint8_t> types;
        std::vector<std::int64_t> payloads; ///< the number, a double's bits or the count of bytes
        std::vector<char> bytes;            ///< of texts and binary values, one behind the other
    };
    std::int64_t addBytes(Cells& cells, sqlite3_value* value, int type);

    std::vector<Cells> columns_;
    std::size_t rows_ = 0;
    std::size_t bytes_ = 0;
};

} // namespace zkp::ado::sqlite
