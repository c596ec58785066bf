#pragma once

#include "ado/connection.h"

namespace zkp::app {

/// Error for a server's database that holds tables or views, or the procedure that reports call, by the
/// database's name.
void mustBeEmpty(const ado::ConnectionPtr& database, const QString& name);

/// Puts the tables, indexes and views of the demonstration database in a SQLite file, with all their
/// records and the procedure that reports call, into an empty database of a server (PostgreSQL or
/// MariaDB). Error for any other server. What fails on the way leaves the database empty.
void copyDemoDatabase(const ado::ConnectionPtr& from, const ado::ConnectionPtr& into);

} // namespace zkp::app
