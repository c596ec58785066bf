#pragma once

#include "ado/odbc/session/connection_text.h"

#include <QString>

namespace zkp::ado::odbc {

/// What a statement does on a connection for reading: it reads, writes to the template and settings tables
/// alone, or must not run. What a procedure or function does is the server's to refuse, and so is what
/// somebody writes who wants to get around this: it goes by the words.
enum class Reading { Reads, WritesAllowed, Refused };
Reading readingOf(const QString& statement, Dialect dialect);
bool isWritableReadOnly(const QString& table);

/// Error kErrDatabase.
[[noreturn]] void refuseWriting();

} // namespace zkp::ado::odbc
