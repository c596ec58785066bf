#pragma once

#include <string>
#include <string_view>

namespace zkp::ado {

/// Compares two UTF-8 texts in one-character capitals: accents count, all sigmas are one. Negative,
/// zero or positive. Bytes that are not UTF-8 count as U+FFFD each.
int compareTexts(std::string_view a, std::string_view b);

/// The capitals by which texts are compared: two texts are equal when these are, and ordered as
/// these are byte by byte.
std::string textKey(std::string_view text);

/// The same capitals as characters.
std::u32string textCapitals(std::string_view text);

} // namespace zkp::ado
