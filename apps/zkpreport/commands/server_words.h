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
    /// A value as a constant.
    QString constant(const QVariant& value) const;
    /// A view's text or an expression of a dictionary, with the few words of SQLite that the demonstration
    /// uses put otherwise.
    QString expression(QString text) const;
    /// The procedure that gives a user's level in the hierarchy.
    QString hierarchyProcedure() const;

private:
    bool isPostgres_ = false;
};

} // namespace zkp::app
