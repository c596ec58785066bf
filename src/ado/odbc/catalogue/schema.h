#pragma once

#include "ado/odbc/session/statement.h"
#include "ado/provider.h"

namespace zkp::ado::odbc {

/// The database that a MariaDB session is in; empty for none.
QString currentDatabase(Session& session);

/// The columns, tables or views of a database (SchemaEnum). Error kErrNotSupported for others.
Result readSchema(Session& session, int schema, const std::optional<QString>& table);

/// A table or view as the driver's catalogue has it.
struct CatalogueTable {
    QString catalogue;
    QString schema;
    QString name;
    QString type;
};
/// Those that are not the server's own.
std::vector<CatalogueTable> readTables(Session& session);

/// A column of a table.
struct CatalogueColumn {
    QString table;
    QString name;
    ColumnKind kind;
    int position = 0;
};
/// In their order; of every schema where none is given.
std::vector<CatalogueColumn> readColumns(Session& session, const std::optional<QString>& schema,
                                         const std::optional<QString>& table);
/// Those of one table.
std::vector<CatalogueColumn> readColumns(Session& session, const CatalogueTable& table);
/// The columns of a table's primary key; empty when it has none.
QStringList readPrimaryKey(Session& session, const CatalogueTable& table);

} // namespace zkp::ado::odbc
