#pragma once

#include "ado/odbc/session/session.h"
#include "ado/provider.h"

namespace zkp::ado::odbc {

/// The table of a plain select of one table; nothing for any other statement.
std::unique_ptr<BaseTable> openBaseTable(const std::shared_ptr<Session>& session, const QString& statement,
                                         const RunOptions& options);

} // namespace zkp::ado::odbc
