#pragma once

#include "ado/dialect/tokenizer.h"

namespace zkp::ado::dialect {

/// Words of the statements' own language that a bare name can't be.
bool isKeyword(const Token& token);

/// Keywords that are no more than names where they stand as a value: servers take them for a column or a
/// function.
bool mayBeName(const Token& token);

/// Whether a token can be the last one of a value.
bool endsValue(const Token& token);

} // namespace zkp::ado::dialect
