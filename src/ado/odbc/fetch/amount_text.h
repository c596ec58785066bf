#pragma once

#include "base/currency.h"

#include <optional>
#include <string_view>

namespace zkp::ado::odbc {

/// The amount in plain decimal digits ("-12.5", ".5"), halves rounded away from zero; nothing when it is none
/// or too large for an amount.
std::optional<Currency> amountFromText(std::string_view digits);

/// The whole number in plain decimal digits; nothing when there is a fraction or it is too large.
std::optional<std::int64_t> wholeFromText(std::string_view digits);

} // namespace zkp::ado::odbc
