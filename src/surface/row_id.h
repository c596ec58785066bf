#pragma once

#include <cstdint>

namespace zkp {

/// Names a row for as long as it lives, wherever it stands.
using RowId = std::uint32_t;
/// A trailing blank row that nothing was ever written to has no id.
constexpr RowId kNoRow = 0xFFFFFFFFu;

/// Names a column for as long as it lives, wherever it stands.
using ColumnId = std::uint32_t;

} // namespace zkp
