#pragma once

#include "ado/odbc/column_types.h"
#include "ado/odbc/long_values.h"
#include "store/column_builder.h"

namespace zkp::ado::odbc {

/// One column's values of a block of rows, as the driver puts them down.
class ColumnBuffer {
public:
    ColumnBuffer(const ColumnType& type, int column, std::size_t rows);

    void bind(const Statement& statement);
    /// Takes the value of the only row of a block that was not bound.
    void read(LongValues& values, store::ColumnBuilder& builder);
    /// Appends the block's values; those that did not fit are read whole.
    void appendTo(store::ColumnBuilder& builder, std::size_t rows, LongValues& values);

private:
    SQLSMALLINT cType() const;
    void appendText(store::ColumnBuilder& builder, std::size_t rows, LongValues& values);
    void appendBinary(store::ColumnBuilder& builder, std::size_t rows, LongValues& values);
    void appendReal(store::ColumnBuilder& builder, double value) const;
    void appendAmounts(store::ColumnBuilder& builder, std::size_t rows);
    template <class T, class F>
    void appendFixed(store::ColumnBuilder& builder, std::size_t rows, F&& append);
    void appendOneText(store::ColumnBuilder& builder, const char* bytes, std::size_t size);
    /// What ends a text in a buffer.
    std::size_t sign() const { return type_.isUtf8 ? 1 : sizeof(SQLWCHAR); }
    const char* at(std::size_t row) const { return bytes_.data() + row * type_.width; }

    ColumnType type_;
    int column_;
    std::vector<char> bytes_;
    std::vector<SQLLEN> lengths_;
    std::string utf8_;
};

} // namespace zkp::ado::odbc
