#pragma once

#include <sqlite3.h>

namespace zkp::ado::sqlite {

/// `LIKE` as texts are compared with constants: case does not count, in Greek either, and accents do.
/// SQLite's own knows the letters A to Z only.
void registerLike(sqlite3* handle);

} // namespace zkp::ado::sqlite
