#pragma once

#include "ado/dialect/dialect.h"

#include <QString>

#include <optional>

namespace zkp::ado::dialect {

/// A select of one table without grouping: each record is one row of the table.
struct PlainSelect {
    QString qualifier;  ///< the schema or database before the table's name, without signs; empty for none
    QString table;      ///< without signs
    QString beforeFrom; ///< the statement up to its FROM
    QString fromOn;     ///< FROM and what follows
    QString source;     ///< the table as the statement names it, with its alias
};

/// Nothing when the statement is anything else.
std::optional<PlainSelect> parsePlainSelect(const QString& statement, Dialect dialect);

} // namespace zkp::ado::dialect
