#pragma once

#include "base/error.h"

#include <sql.h>

#include <QStringList>

namespace zkp::ado::odbc {

/// What a handle says about the call on it that just failed, all records of it.
class Diagnostics {
public:
    Diagnostics(SQLSMALLINT type, SQLHANDLE handle);

    /// The Error for it, with every record's words, a line each.
    Error error(const QString& source) const;
    /// A time-out by the driver or the server, or a statement that was cancelled.
    bool isTimeout() const;
    bool isCancelled() const;
    /// The connection is gone.
    bool isLinkLost() const;

private:
    bool isBadStatement() const;

    QStringList states_;
    QStringList words_;
    int native_ = 0; ///< the first record's
};

} // namespace zkp::ado::odbc
