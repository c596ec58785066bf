#pragma once

#include "ado/dialect/catalogue.h"

#include <functional>

namespace zkp::ado::dialect {

/// What a rewrite asks of the server, and only when the statement needs it.
struct ServerFacts {
    std::function<StatementNames(const std::vector<Token>&)> names;
    std::function<QString()> collation; ///< for comparisons with constants; empty where there is none
    /// Whether texts can hold the sigma of a word's end, and statements so.
    std::function<bool()> hasSigma = [] { return false; };
};

/// A statement in a server's words.
struct Rewritten {
    QString text;
    QStringList outputNames; ///< as the statement writes them, since a server may fold or cut them
};

/// One statement of the report builders (SQL Server's and Jet's words) as PostgreSQL understands it: names
/// are folded to small letters as it folds them itself, unless its catalogue keeps them otherwise; TOP n
/// becomes LIMIT n, Convert(Datetime,'…',102) an ISO date, exec a select from the function; flags compare
/// with numbers and stand bare, comparisons with constants ignore case, nulls sort first and groups come
/// sorted by all their items. Constants are never touched inside.
Rewritten rewriteForPostgres(const QString& statement, const ServerFacts& server);

/// The same for MariaDB, which needs names in its own signs, tables as its catalogue spells them, LIMIT,
/// dates, CALL, real quotients, comparisons without case but with accents, and sorted groups.
Rewritten rewriteForMariaDb(const QString& statement, const ServerFacts& server);

} // namespace zkp::ado::dialect
