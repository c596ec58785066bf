#pragma once

#include "ado/connection.h"

#include <QString>

#include <vector>

namespace zkp::app {

/// An identity that may look at reports.
struct UserEntry {
    QString id;   ///< `ProductID`; empty for the entry that sees all rows
    QString name; ///< as the list shows it
};

/// The entry for all rows, then the users of the table `SECUSERS` by name, where there is one. Failures
/// are Error.
std::vector<UserEntry> readUsers(const ado::ConnectionPtr& connection);

/// What a user may see, in words: the level and identity that the database gives for the user, as a
/// load asks for them. Empty for all rows. Failures are Error.
QString rightsText(const ado::ConnectionPtr& connection, const QString& userId);

} // namespace zkp::app
