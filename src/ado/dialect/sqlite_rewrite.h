#pragma once

#include <QString>

namespace zkp::ado::dialect {

/// One statement of the report builders (SQL Server's and Jet's words) as SQLite understands it.
/// Rewrites TOP n to LIMIT n, Convert(Datetime,'…',102) to an ISO date, N'text' to 'text', makes
/// quotients of sums real, and lets comparisons with a text constant ignore case. A statement that needs none
/// of it comes back as it is; constants and names are never touched inside.
QString rewriteForSqlite(const QString& statement);

} // namespace zkp::ado::dialect
