#pragma once

#include "ado/connection.h"

#include <QString>

namespace zkp {

/// Whether the database has a view or table of that name, compared trimmed and in capitals. False
/// on a connection that cannot list its tables; Error 91 without a connection, 3709 on a closed one.
bool QueryExists(const ado::ConnectionPtr& connection, const QString& name);

} // namespace zkp
