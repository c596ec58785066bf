#pragma once

#include "ado/dialect/plain_select.h"
#include "ado/odbc/catalogue/table_keys.h"

namespace zkp::ado::odbc {

/// The table that a plain select takes its records from, as far as reading and writing one of them asks.
struct EditedTable {
    EditedTable(Session& session, dialect::PlainSelect from, const CatalogueTable& table);

    /// Nothing for a name that the table doesn't have.
    const CatalogueColumn* find(const QString& column) const;
    std::vector<ColumnKind> kindsOf(const QStringList& names) const;
    /// The select items of a row's key, each behind a prefix.
    QString keyItems(const QString& prefix = {}) const;

    dialect::PlainSelect select;
    QString name; ///< in the server's words, with schema or database
    std::vector<CatalogueColumn> columns;
    TableKeys keys;
};

/// A record's values.
QVariantList rowOf(const Result& result, std::size_t row);

} // namespace zkp::ado::odbc
