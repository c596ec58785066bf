#pragma once

#include <QString>

namespace zkp::ado::odbc {

/// Whether a statement only reads, or writes to the template and settings tables alone. What a
/// procedure or function does is the server's to refuse.
bool isAllowedReadOnly(const QString& statement);
bool isWritableReadOnly(const QString& table);

/// Error kErrDatabase.
[[noreturn]] void refuseWriting();

} // namespace zkp::ado::odbc
