#pragma once

#include "ado/odbc/column_types.h"
#include "ado/odbc/long_values.h"
#include "store/column_builder.h"

#include <map>
#include <optional>

namespace zkp::ado::odbc {

/// One column's values of a block of rows, as the driver puts them down.
class ColumnBuffer {
public:
    ColumnBuffer(const ColumnType& type, int column, std::size_t rows);

    void bind(const Statement& statement);
    /// Takes the value of the only row of a block that was not bound.
    void read(LongValues& values, store::ColumnBuilder& builder);
    /// Reads the block's values that did not fit while the statement still stands on the block, so that
    /// appending them needs the statement no more.
    void readCut(std::size_t rows, LongValues& values);
    /// Appends the block's values; those that did not fit and were not read yet are read whole.
    void appendTo(store::ColumnBuilder& builder, std::size_t rows, LongValues& values);

private:
    SQLSMALLINT cType() const;
    bool hasSize() const;
    bool isCut(std::size_t row) const;
    void appendSized(store::ColumnBuilder& builder, std::size_t rows, LongValues& values);
    void appendCut(store::ColumnBuilder& builder, std::size_t row, LongValues& values);
    void appendWhole(store::ColumnBuilder& builder, std::string_view bytes);
    void appendReal(store::ColumnBuilder& builder, double value) const;
    void appendOneAmount(store::ColumnBuilder& builder, std::string_view digits) const;
    template <class T, class F>
    void appendFixed(store::ColumnBuilder& builder, std::size_t rows, F&& append);
    void appendOneText(store::ColumnBuilder& builder, std::string_view bytes);
    const char* at(std::size_t row) const { return bytes_.data() + row * type_.width; }

    ColumnType type_;
    int column_;
    std::size_t room_; ///< what the buffer takes of a value: a sign ends texts and digits
    std::vector<char> bytes_;
    std::vector<SQLLEN> lengths_;
    std::map<std::size_t, std::optional<std::string>> cut_; ///< values read whole, by row
    std::string utf8_;
};

} // namespace zkp::ado::odbc
