#pragma once

#include "ado/dialect/server_statement.h"
#include "ado/odbc/session/session.h"

namespace zkp::ado::odbc {

/// A statement in the words of the session's server; SQL Server's is passed through as it is.
dialect::Rewritten translate(Session& session, const QString& statement);

/// A table's name as the server keeps it.
QString nameAsKept(Session& session, const QString& name);

/// A name in the server's signs.
QString quotedName(const Session& session, const QString& name);

} // namespace zkp::ado::odbc
