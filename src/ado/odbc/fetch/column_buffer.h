#pragma once

#include "ado/odbc/fetch/long_values.h"
#include "ado/odbc/fetch/packed_column.h"

namespace zkp::ado::odbc {

/// One column's values of a block of rows, as the driver puts them down.
class ColumnBuffer {
public:
    ColumnBuffer(const ColumnType& type, int column, std::size_t rows);

    void bind(const Statement& statement);
    /// Packs the block's values while the statement still stands on the block; those that did not fit are
    /// read whole. A driver may say less of a column than it holds, as PostgreSQL's of a varchar without a
    /// length.
    void pack(std::size_t rows, LongValues& values, PackedColumn& packed) const;
    /// Takes the value of the only row of a block that was not bound.
    void read(LongValues& values, PackedColumn& packed);

private:
    SQLSMALLINT cType() const;
    bool hasSize() const;
    bool fits(SQLLEN length) const;
    bool isCut(std::size_t row) const;
    void packEach(std::size_t rows, LongValues& values, PackedColumn& packed) const;
    void packWhole(LongValues& values, PackedColumn& packed) const;
    const char* at(std::size_t row) const { return bytes_.data() + row * type_.width; }

    ColumnType type_;
    int column_;
    std::size_t room_; ///< what the buffer takes of a value: a sign ends texts and digits
    std::vector<char> bytes_;
    std::vector<SQLLEN> lengths_;
};

} // namespace zkp::ado::odbc
