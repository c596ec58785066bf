#pragma once

#include "ado/dialect/tokenizer.h"

#include <initializer_list>

namespace zkp::ado::dialect {

bool isOneOf(const Token& token, std::initializer_list<QStringView> words);

/// Words of the statements' own language that a bare name can't be.
bool isKeyword(const Token& token);

/// Keywords that are no more than names where they stand as a value: servers take them for a column or a
/// function.
bool mayBeName(const Token& token);

/// Whether a token can be the last one of a value.
bool endsValue(const Token& token);

} // namespace zkp::ado::dialect
