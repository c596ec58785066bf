#pragma once

#include "ado/provider.h"
#include "ado/sqlite/database.h"

namespace zkp::ado::sqlite {

/// The table of a plain select of one table; nothing for any other statement.
std::unique_ptr<BaseTable> openBaseTable(const std::shared_ptr<Database>& database, const QString& statement,
                                         const RunOptions& options);

} // namespace zkp::ado::sqlite
