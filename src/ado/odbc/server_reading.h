#pragma once

#include "ado/dialect/tokenizer.h"
#include "ado/odbc/connection_text.h"

#include <vector>

namespace zkp::ado::odbc {

/// Whether a server may take as statement what the tokenizer takes for a comment, a constant or a name, or
/// the other way round: comments in comments, MariaDB's executable comments, PostgreSQL's constants between
/// dollars or with "\". Rather too often than too seldom.
bool mayBeReadOtherwise(const std::vector<dialect::Token>& tokens, Dialect dialect);

} // namespace zkp::ado::odbc
