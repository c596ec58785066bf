#include "ado/sqlite/read_only.h"

#include <initializer_list>

namespace zkp::ado::sqlite {

namespace {

bool isOneOf(const char* name, std::initializer_list<const char*> names) {
    for (const char* candidate : names) {
        if (name && sqlite3_stricmp(name, candidate) == 0)
            return true;
    }
    return false;
}

/// Pragmas with an argument set something, apart from those that name a table.
bool isPragmaAllowed(const char* name, const char* argument) {
    return !argument || isOneOf(name, {"table_info", "table_xinfo", "table_list", "index_list", "index_info",
                                       "index_xinfo", "foreign_key_list", "integrity_check", "quick_check"});
}

int authorize(void*, int action, const char* first, const char* second, const char*, const char*) {
    switch (action) {
    case SQLITE_SELECT:
    case SQLITE_READ:
    case SQLITE_FUNCTION:
    case SQLITE_RECURSIVE:
    case SQLITE_TRANSACTION:
    case SQLITE_SAVEPOINT:
        return SQLITE_OK;
    case SQLITE_PRAGMA:
        return isPragmaAllowed(first, second) ? SQLITE_OK : SQLITE_DENY;
    case SQLITE_UPDATE:
        // Asked for whenever a pragma is read as a table; a statement can't write there without the
        // pragma that is refused above.
        if (isOneOf(first, {"sqlite_master"}))
            return SQLITE_OK;
        [[fallthrough]];
    case SQLITE_INSERT:
    case SQLITE_DELETE:
        return isOneOf(first, {"frms", "frms2", "qrn_main"}) ? SQLITE_OK : SQLITE_DENY;
    default:
        return SQLITE_DENY;
    }
}

} // namespace

void installReadOnlyGuard(sqlite3* handle) {
    sqlite3_set_authorizer(handle, authorize, nullptr);
}

} // namespace zkp::ado::sqlite
