#pragma once

#include <sqlite3.h>

namespace zkp::ado::sqlite {

/// How texts are compared with constants: in one-character capitals, accents counting. A collation
/// of its own name; the built-in ones stay as they are, since indexes are ordered by them.
inline constexpr char kTextCollation[] = "ZKP_TEXT";
void registerTextCollation(sqlite3* handle);

} // namespace zkp::ado::sqlite
