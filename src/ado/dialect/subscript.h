#pragma once

#include "ado/dialect/tokenizer.h"

namespace zkp::ado::dialect {

/// Whether the "[" at the beginning of a text opens a subscript, an array or an array's type of PostgreSQL
/// and no name in brackets. `before` holds the tokens in front of it.
///
/// Behind ARRAY and with nothing inside it always does. Otherwise it has to stand where a subscript can,
/// right behind a name, a bracket or a word that is no keyword, or as an element of an array, and what is
/// inside must not look like a name: letters, digits and blanks. So `a[2]`, `a[i+1]` and `a[(i)]` are
/// subscripts, and `T.[2]`, `(x)[Sum]`, `select[2]` and `a [2]` hold names.
bool opensSubscript(const std::vector<Token>& before, QStringView text);

} // namespace zkp::ado::dialect
