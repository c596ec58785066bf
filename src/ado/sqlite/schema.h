#pragma once

#include "ado/provider.h"
#include "ado/sqlite/database.h"

namespace zkp::ado::sqlite {

/// The columns, tables or views of a database (SchemaEnum). Error kErrNotSupported for others.
Result readSchema(const std::shared_ptr<Database>& database, int schema, const std::optional<QString>& table);

} // namespace zkp::ado::sqlite
