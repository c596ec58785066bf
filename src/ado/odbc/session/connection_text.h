#pragma once

#include "ado/dialect/dialect.h"

#include <QString>

#include <optional>

namespace zkp::ado::odbc {

using dialect::Dialect;

/// A host's connection string: what goes to the driver manager, and what is ours.
struct ConnectionText {
    QString forDriver;
    std::optional<Dialect> dialect; ///< from "Dialect=SqlServer", "Dialect=PostgreSQL" or "Dialect=MariaDB"
};

/// Takes "Dialect=" out of a connection string; all else stays as it is. Error kErrDatabase for a
/// dialect that there is none of.
ConnectionText readConnectionText(const QString& text);

/// By the name that the driver gives its server; SQL Server's words for an unknown one.
Dialect dialectOfServer(const QString& dbmsName);

} // namespace zkp::ado::odbc
