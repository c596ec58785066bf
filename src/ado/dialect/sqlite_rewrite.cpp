#include "ado/dialect/sqlite_rewrite.h"

namespace zkp::ado::dialect {

QString rewriteForSqlite(const QString& statement) {
    return statement;
}

} // namespace zkp::ado::dialect
