#pragma once

#include "ado/odbc/fetch/column_types.h"
#include "store/column_builder.h"

#include <vector>

namespace zkp::ado::odbc {

/// One column's values of some rows as the driver gave them, but without the room that its buffer leaves
/// between them: on their way to the column.
class PackedColumn {
public:
    explicit PackedColumn(const ColumnType& type)
        : type_(type) {}

    void clear();
    void addNull() { sizes_.push_back(SQL_NULL_DATA); }
    void add(std::string_view bytes);
    /// Values that stand the type's width apart; the sizes tell which are null. Fixed ones need all of it.
    void addFixed(const char* values, const SQLLEN* sizes, std::size_t rows);
    void addSized(const char* values, const SQLLEN* sizes, std::size_t rows);
    void appendTo(store::ColumnBuilder& builder);

private:
    template <class T, class F>
    void appendFixed(store::ColumnBuilder& builder, F&& append) const;
    template <class F>
    void appendSized(store::ColumnBuilder& builder, F&& append) const;
    void appendText(store::ColumnBuilder& builder, std::string_view bytes);
    char* roomFor(std::size_t more);

    ColumnType type_;
    std::vector<SQLLEN> sizes_;
    std::vector<char> bytes_; ///< more than are filled
    std::size_t filled_ = 0;
    std::string utf8_;
};

} // namespace zkp::ado::odbc
