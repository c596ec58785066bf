#include "ado/odbc/session/handle.h"

#include "ado/odbc/session/diagnostics.h"

namespace zkp::ado::odbc {

Handle::Handle(SQLSMALLINT type, SQLHANDLE parent, SQLSMALLINT parentType)
    : type_(type) {
    if (!SQL_SUCCEEDED(SQLAllocHandle(type, parent, &handle_)))
        throw Diagnostics(parentType, parent).error(QStringLiteral("ODBC"));
}

} // namespace zkp::ado::odbc
