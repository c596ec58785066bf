#pragma once

#include <sqlite3.h>

namespace zkp::ado::sqlite {

/// `LIKE` as texts are compared with constants: case does not count, in Greek either, and accents do.
/// SQLite's own knows the letters A to Z only. It is called by the operator REGEXP, which SQLite leaves to
/// programs; statements are put so on their way.
void registerLike(sqlite3* handle);

} // namespace zkp::ado::sqlite
