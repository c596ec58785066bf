#pragma once

#include "ado/odbc/session/statement.h"
#include "ado/provider.h"

namespace zkp::ado::odbc {

/// In what form a column's values come from the driver.
enum class Transfer : std::uint8_t { Integer, Boolean, Double, Amount, Date, Moment, Text, Binary };

/// A column of a result: what hosts are told of it, and how it is fetched.
struct ColumnType {
    FieldInfo info;
    Transfer transfer = Transfer::Text;
    std::size_t width = 0; ///< bytes of one value in a buffer
    bool isUtf8 = false;   ///< texts come as UTF-8 bytes, not in wide characters
    bool isLong = false;   ///< the driver may hold more than the buffer takes
    bool isWhole = false;  ///< digits without a fraction are an integer, not an amount
    bool byValues = false; ///< an expression of whole numbers: its type is that of its values
};

/// The published type number of a driver's type (SQL_INTEGER, ...); text for what is unknown.
int publishedType(SQLSMALLINT sqlType, bool isUnsigned = false);

ColumnType describeColumn(const Statement& statement, int column);

} // namespace zkp::ado::odbc
