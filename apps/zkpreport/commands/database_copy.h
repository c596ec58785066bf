#pragma once

#include "ado/connection.h"

namespace zkp::app {

/// Puts the tables, indexes and views of the demonstration database in a SQLite file, with all their
/// records and the procedure that reports call, into an empty database of a server (PostgreSQL or
/// MariaDB). Error when a table of such a name is there already, or for any other server; PostgreSQL then
/// is as it was before.
void copyDemoDatabase(const ado::ConnectionPtr& from, const ado::ConnectionPtr& into);

} // namespace zkp::app
