#include "ado/odbc/fetch/column_buffer.h"

#include <algorithm>
#include <cstring>

namespace zkp::ado::odbc {

namespace {

std::size_t signOf(const ColumnType& type) {
    if (type.transfer == Transfer::Text)
        return type.isUtf8 ? 1 : sizeof(SQLWCHAR);
    return type.transfer == Transfer::Amount ? 1 : 0;
}

} // namespace

ColumnBuffer::ColumnBuffer(const ColumnType& type, int column, std::size_t rows)
    : type_(type)
    , column_(column)
    , room_(type.width - signOf(type))
    , bytes_(type.width * rows)
    , lengths_(rows) {}

SQLSMALLINT ColumnBuffer::cType() const {
    switch (type_.transfer) {
    case Transfer::Integer:
        return SQL_C_SBIGINT;
    case Transfer::Boolean:
        return SQL_C_BIT;
    case Transfer::Double:
        return SQL_C_DOUBLE;
    case Transfer::Amount:
        return SQL_C_CHAR;
    case Transfer::Date:
        return SQL_C_TYPE_DATE;
    case Transfer::Moment:
        return SQL_C_TYPE_TIMESTAMP;
    case Transfer::Binary:
        return SQL_C_BINARY;
    default:
        return type_.isUtf8 ? SQL_C_CHAR : SQL_C_WCHAR;
    }
}

void ColumnBuffer::bind(const Statement& statement) {
    statement.check(SQLBindCol(statement.get(), static_cast<SQLUSMALLINT>(column_ + 1), cType(),
                               bytes_.data(), static_cast<SQLLEN>(type_.width), lengths_.data()));
}

bool ColumnBuffer::hasSize() const {
    return type_.transfer == Transfer::Text || type_.transfer == Transfer::Binary ||
           type_.transfer == Transfer::Amount;
}

bool ColumnBuffer::fits(SQLLEN length) const {
    return length != SQL_NO_TOTAL && length <= static_cast<SQLLEN>(room_);
}

/// Drivers give the whole length of a value that was cut, or that it is unknown. Digits behind a point are
/// more than enough, those ahead of it count.
bool ColumnBuffer::isCut(std::size_t row) const {
    return !fits(lengths_[row]) && (type_.transfer != Transfer::Amount ||
                                    std::string_view(at(row), room_).find('.') == std::string_view::npos);
}

void ColumnBuffer::pack(std::size_t rows, LongValues& values, PackedColumn& packed) const {
    const auto end = lengths_.begin() + static_cast<std::ptrdiff_t>(rows);
    if (!hasSize())
        packed.addFixed(bytes_.data(), lengths_.data(), rows);
    else if (std::all_of(lengths_.begin(), end, [this](SQLLEN length) { return fits(length); }))
        packed.addSized(bytes_.data(), lengths_.data(), rows);
    else
        packEach(rows, values, packed);
}

void ColumnBuffer::packEach(std::size_t rows, LongValues& values, PackedColumn& packed) const {
    for (std::size_t row = 0; row < rows; ++row) {
        if (lengths_[row] == SQL_NULL_DATA) {
            packed.addNull();
        } else if (isCut(row)) {
            values.goTo(row);
            packWhole(values, packed);
        } else {
            packed.add({at(row), std::min(static_cast<std::size_t>(lengths_[row]), room_)});
        }
    }
}

void ColumnBuffer::packWhole(LongValues& values, PackedColumn& packed) const {
    if (const std::string* bytes = values.read(column_, cType()))
        packed.add(*bytes);
    else
        packed.addNull();
}

void ColumnBuffer::read(LongValues& values, PackedColumn& packed) {
    if (hasSize())
        return packWhole(values, packed);
    const std::string* bytes = values.read(column_, cType());
    lengths_[0] = bytes ? static_cast<SQLLEN>(bytes->size()) : SQL_NULL_DATA;
    if (bytes)
        std::memcpy(bytes_.data(), bytes->data(), std::min(bytes->size(), type_.width));
    packed.addFixed(bytes_.data(), lengths_.data(), 1);
}

} // namespace zkp::ado::odbc
