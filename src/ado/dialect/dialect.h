#pragma once

namespace zkp::ado::dialect {

/// Whose words and signs a statement is in. Filters and sort orders, which no server reads, are cut as
/// SQLite's.
enum class Dialect { Sqlite, SqlServer, PostgreSql, MariaDb };

} // namespace zkp::ado::dialect
