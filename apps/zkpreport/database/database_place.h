#pragma once

#include "ado/connection.h"

#include <QString>

namespace zkp::app {

/// A database as somebody names it: a SQLite file by its path or as "sqlite:FILE", or a server by the
/// connection string of its ODBC driver. What of it may be shown to people is decided here, too: a
/// password never.
class DatabasePlace {
public:
    DatabasePlace() = default;
    explicit DatabasePlace(const QString& named);

    bool isServer() const { return isServer_; }
    /// The file's path as it was given; empty for a server.
    const QString& file() const { return file_; }
    /// Whether it is a file that is not there. Of a server only opening tells.
    bool isMissing() const;
    /// For people: the file without its folders, or the database and its server.
    const QString& name() const { return name_; }

    /// A new connection. Failures are Error, without passwords in their words.
    ado::ConnectionPtr open(int mode = ado::adModeUnknown) const;
    /// Makes a connection of it that has dropped anew; one that stands is left alone. A server is asked,
    /// since a connection notices its end only by a statement. Failures as with `open`.
    void reconnect(ado::Connection& connection) const;

private:
    bool isServer_ = false;
    QString connectionString_;
    QString file_;
    QString name_;
};

/// The text without the passwords of connection strings in it: "…;PWD=…".
QString withoutPasswords(QString text);

} // namespace zkp::app
