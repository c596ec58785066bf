#pragma once

#include "ado/odbc/catalogue/schema.h"

namespace zkp::ado::odbc {

/// How one row of a table is told from the others: by its primary key, by the server's own place of a
/// row and the transaction that wrote it (PostgreSQL), or else by the values of all columns that can be
/// compared exactly.
class TableKeys {
public:
    TableKeys(Session& session, const CatalogueTable& table, const std::vector<CatalogueColumn>& columns);

    /// Select items that give a row's key.
    QStringList items() const { return items_; }
    std::size_t count() const { return static_cast<std::size_t>(items_.size()); }
    /// Two rows may have the same key.
    bool isExact() const { return exact_; }

    /// A condition for the row with a key, with the values that its places get.
    struct Condition {
        QString text;
        QVariantList values;
        std::vector<ColumnKind> kinds;
    };
    Condition conditionFor(const QVariantList& key) const;

private:
    QStringList items_;    ///< in the server's words
    QStringList compared_; ///< left of the comparison
    std::vector<ColumnKind> kinds_;
    bool isPlace_ = false;
    bool exact_ = true;
};

} // namespace zkp::ado::odbc
