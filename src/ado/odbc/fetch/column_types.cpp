#include "ado/odbc/fetch/column_types.h"

#include "ado/constants.h"
#include "ado/field_size.h"
#include "ado/odbc/session/wide_text.h"

#include <algorithm>
#include <array>
#include <limits>

namespace zkp::ado::odbc {

namespace {

/// What a buffer holds of a text or binary value; longer ones are read by themselves.
constexpr SQLULEN kTextUnits = 4000;
constexpr SQLULEN kTextUnitsOfLongColumns = 128;
constexpr SQLULEN kBinaryBytes = 256;
constexpr std::size_t kDigits = 72;

QString attributeText(const Statement& statement, int column, SQLUSMALLINT what) {
    std::array<SQLWCHAR, 256> text{};
    SQLSMALLINT bytes = 0;
    const SQLRETURN code = SQLColAttributeW(statement.get(), static_cast<SQLUSMALLINT>(column + 1), what,
                                            text.data(), sizeof text, &bytes, nullptr);
    const int longest = sizeof text - sizeof(SQLWCHAR);
    return SQL_SUCCEEDED(code)
               ? wideText(text.data(), std::clamp<int>(bytes, 0, longest) / int(sizeof(SQLWCHAR)))
               : QString();
}

bool isUnsignedColumn(const Statement& statement, int column) {
    SQLLEN value = SQL_FALSE;
    SQLColAttributeW(statement.get(), static_cast<SQLUSMALLINT>(column + 1), SQL_DESC_UNSIGNED, nullptr, 0,
                     nullptr, &value);
    return value == SQL_TRUE;
}

bool isLongType(SQLSMALLINT type) {
    return type == SQL_LONGVARCHAR || type == SQL_WLONGVARCHAR || type == SQL_LONGVARBINARY;
}

Transfer transferOf(int published) {
    switch (published) {
    case adSmallInt:
    case adInteger:
    case adBigInt:
        return Transfer::Integer;
    case adBoolean:
        return Transfer::Boolean;
    case adDouble:
        return Transfer::Double;
    case adCurrency:
        return Transfer::Amount;
    case adDBDate:
        return Transfer::Date;
    case adDBTimeStamp:
        return Transfer::Moment;
    case adLongVarBinary:
        return Transfer::Binary;
    default:
        return Transfer::Text;
    }
}

/// 0 where no length is known.
int lengthOf(SQLULEN size, bool isLong) {
    return isLong || size > SQLULEN(std::numeric_limits<int>::max()) ? 0 : static_cast<int>(size);
}

void chooseWidth(ColumnType& column, SQLULEN size, bool isLong) {
    switch (column.transfer) {
    case Transfer::Boolean:
        column.width = 1;
        return;
    case Transfer::Amount:
        column.width = kDigits;
        return;
    case Transfer::Date:
        column.width = sizeof(SQL_DATE_STRUCT);
        return;
    case Transfer::Moment:
        column.width = sizeof(SQL_TIMESTAMP_STRUCT);
        return;
    case Transfer::Text: {
        // A character may take two units, or four bytes, and a sign ends the text.
        const SQLULEN units = isLong ? kTextUnitsOfLongColumns : kTextUnits;
        column.isLong = isLong || size == 0 || size > kTextUnits;
        const SQLULEN unit = column.isUtf8 ? 1 : sizeof(SQLWCHAR);
        const SQLULEN most = column.isUtf8 ? 4 : 2;
        column.width = ((column.isLong ? units * 2 : std::min(size, kTextUnits) * most) + 1) * unit;
        return;
    }
    case Transfer::Binary:
        column.isLong = isLong || size == 0 || size > kBinaryBytes;
        column.width = column.isLong ? kBinaryBytes : size;
        return;
    default:
        column.width = 8;
    }
}

} // namespace

int publishedType(SQLSMALLINT sqlType, bool isUnsigned) {
    switch (sqlType) {
    case SQL_BIT:
        return adBoolean;
    case SQL_TINYINT:
        return adSmallInt;
    case SQL_SMALLINT:
        return isUnsigned ? adInteger : adSmallInt;
    case SQL_INTEGER:
        return isUnsigned ? adBigInt : adInteger;
    case SQL_BIGINT:
        return adBigInt;
    case SQL_REAL:
    case SQL_FLOAT:
    case SQL_DOUBLE:
        return adDouble;
    case SQL_NUMERIC:
    case SQL_DECIMAL:
        return adCurrency;
    case SQL_TYPE_DATE:
    case SQL_DATE:
        return adDBDate;
    case SQL_TYPE_TIMESTAMP:
    case SQL_TIMESTAMP:
        return adDBTimeStamp;
    case SQL_CHAR:
    case SQL_VARCHAR:
    case SQL_LONGVARCHAR:
        return adVarChar;
    case SQL_BINARY:
    case SQL_VARBINARY:
    case SQL_LONGVARBINARY:
        return adLongVarBinary;
    default:
        return adVarWChar;
    }
}

ColumnType describeColumn(const Statement& statement, int column) {
    std::array<SQLWCHAR, 1024> name{};
    SQLSMALLINT length = 0;
    SQLSMALLINT sqlType = 0;
    SQLULEN size = 0;
    SQLSMALLINT digits = 0;
    SQLSMALLINT nullable = 0;
    statement.check(SQLDescribeColW(statement.get(), static_cast<SQLUSMALLINT>(column + 1), name.data(),
                                    static_cast<SQLSMALLINT>(name.size()), &length, &sqlType, &size, &digits,
                                    &nullable));
    ColumnType described;
    const bool isUnsigned = isUnsignedColumn(statement, column);
    int type = publishedType(sqlType, isUnsigned);
    // PostgreSQL's driver calls a flag a text unless it is told not to, and its money a double, which it
    // gives as one: its digits have signs of the server's country.
    if (type >= adVarChar && attributeText(statement, column, SQL_DESC_TYPE_NAME) == QLatin1String("bool"))
        type = adBoolean;
    const bool isMoney =
        type == adDouble && attributeText(statement, column, SQL_DESC_TYPE_NAME) == QLatin1String("money");
    type = isMoney ? int(adCurrency) : type;
    const bool whole = type == adBigInt || (type == adCurrency && digits == 0);
    described.byValues = whole && attributeText(statement, column, SQL_DESC_BASE_TABLE_NAME).isEmpty();
    // What has no sign may need more than 63 bits, and then comes as digits.
    const bool isHuge = sqlType == SQL_BIGINT && isUnsigned;
    described.isWhole = described.byValues || isHuge;
    described.transfer = isHuge ? Transfer::Amount : isMoney ? Transfer::Double : transferOf(type);
    described.isUtf8 = statement.session().givesUtf8();
    chooseWidth(described, size, isLongType(sqlType));
    described.info = {wideText(name.data(), std::min<int>(length, int(name.size()) - 1)), type,
                      definedSizeOf(type, lengthOf(size, isLongType(sqlType)))};
    return described;
}

} // namespace zkp::ado::odbc
