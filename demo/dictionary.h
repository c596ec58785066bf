#pragma once

#include "demo/sqlite_writer.h"

namespace zkp::demo {

/// Makes and fills the dictionary tables: POLICIESCLMNS, CLAIMSCLMNS, LOSSRATIOCLMNS and PRODUCTCLMNS.
void makeDictionaries(Database& database);

} // namespace zkp::demo
