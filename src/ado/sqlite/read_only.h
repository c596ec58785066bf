#pragma once

#include <sqlite3.h>

namespace zkp::ado::sqlite {

/// From now on the handle refuses every statement that writes, except to the rows of the template
/// and settings tables.
void installReadOnlyGuard(sqlite3* handle);

} // namespace zkp::ado::sqlite
