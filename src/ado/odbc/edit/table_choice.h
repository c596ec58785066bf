#pragma once

#include "ado/dialect/plain_select.h"
#include "ado/odbc/catalogue/schema.h"

namespace zkp::ado::odbc {

/// The table that a select's records come from, where the server has several of that name: the one of the
/// schema (MariaDB: the database) that the statement names, or else of the one that the server itself takes.
/// Nothing for views, and where more than one table is left.
std::optional<CatalogueTable> chooseTable(Session& session, const dialect::PlainSelect& select);

} // namespace zkp::ado::odbc
