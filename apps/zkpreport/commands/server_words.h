#pragma once

#include "ado/connection.h"

#include <QString>

namespace zkp::app {

/// How the server behind a connection says what the demonstration database needs.
class ServerWords {
public:
    /// Error for a server that this is not known of.
    explicit ServerWords(const ado::ConnectionPtr& connection);

    bool isPostgres() const { return isPostgres_; }
    /// The type of a column that SQLite has as `declared`, whose longest text has `length` characters.
    QString type(const QString& declared, int length) const;
    /// What stands behind the columns of a new table: it takes Greek texts whatever the database's own
    /// character set is.
    QString tableOptions() const;
    /// A value as a constant.
    QString constant(const QVariant& value) const;
    /// A view's text or an expression of a dictionary, with the few words of SQLite that the demonstration
    /// uses put otherwise.
    QString expression(QString text) const;
    /// The procedure that gives a user's level in the hierarchy.
    QString hierarchyProcedure() const;
    /// A statement that gives the names of what stands in the way of a new demonstration: tables, views,
    /// that procedure.
    QString findContents() const;

private:
    bool isPostgres_ = false;
    bool isOtherCharacterSet_ = false; ///< of a database that can't hold Greek as it is
};

} // namespace zkp::app
