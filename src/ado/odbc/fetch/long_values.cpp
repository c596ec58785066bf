#include "ado/odbc/fetch/long_values.h"

#include "ado/odbc/session/session.h"
#include "base/error.h"

#include <algorithm>

namespace zkp::ado::odbc {

namespace {

constexpr std::size_t kFirstPart = 16 * 1024;

} // namespace

void LongValues::goTo(std::size_t row) {
    if (!statement_.session().readsInsideBlocks())
        throw Error(kErrDatabase, QStringLiteral("A value is longer than its column."));
    statement_.check(
        SQLSetPos(statement_.get(), static_cast<SQLSETPOSIROW>(row + 1), SQL_POSITION, SQL_LOCK_NO_CHANGE));
}

/// The driver tells how much is left, or only that there is more; each part ends in the sign that ends a
/// text.
const std::string* LongValues::read(int column, SQLSMALLINT cType) {
    const std::size_t sign = cType == SQL_C_WCHAR ? sizeof(SQLWCHAR) : cType == SQL_C_CHAR ? 1 : 0;
    std::size_t filled = 0;
    bytes_.resize(kFirstPart);
    for (;;) {
        SQLLEN left = 0;
        const std::size_t room = bytes_.size() - filled;
        const SQLRETURN code = SQLGetData(statement_.get(), static_cast<SQLUSMALLINT>(column + 1), cType,
                                          bytes_.data() + filled, static_cast<SQLLEN>(room), &left);
        if (code == SQL_NO_DATA)
            break;
        statement_.check(code);
        if (left == SQL_NULL_DATA)
            return nullptr;
        const bool cut = left == SQL_NO_TOTAL || static_cast<std::size_t>(left) > room - sign;
        filled += cut ? room - sign : static_cast<std::size_t>(left);
        if (!cut)
            break;
        const std::size_t more =
            left == SQL_NO_TOTAL ? filled : static_cast<std::size_t>(left) - (room - sign);
        bytes_.resize(filled + more + sign + 2);
    }
    bytes_.resize(filled);
    return &bytes_;
}

} // namespace zkp::ado::odbc
