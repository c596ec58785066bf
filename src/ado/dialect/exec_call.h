#pragma once

#include "ado/dialect/dialect.h"

#include <QString>
#include <QVariantList>

#include <optional>

namespace zkp::ado::dialect {

/// A call of a stored procedure: exec NAME 'a', 2, null
struct ExecCall {
    QString name;
    QVariantList arguments;
};

/// Nothing when the statement is not a call. Error kErrBadStatement for a call that can't be read.
std::optional<ExecCall> parseExec(const QString& statement, Dialect dialect);

} // namespace zkp::ado::dialect
