#pragma once

#include "ado/sqlite/field_types.h"

#include <sqlite3.h>

#include <vector>

namespace zkp::ado::sqlite {

/// The statement with Sum, Avg, Min and Max of a plain column in its select list replaced by the column
/// itself; empty when it has none. It is for looking at only, never for running.
QString withBareColumns(const QString& sql);

/// SQLite declares no type for an aggregate. Gives those of amounts and dates the type of their column,
/// as the servers do; whatever else is undeclared stays so. The caller holds the database.
void declareAggregates(sqlite3* database, const char* sql, std::vector<Declared>& columns);

} // namespace zkp::ado::sqlite
