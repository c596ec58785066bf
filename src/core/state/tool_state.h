#pragma once

#include <vector>

namespace zkp {

/// What the tools show. MenuState writes it.
struct ToolState {
    bool MenusLocked = false;      ///< tools stay as they are, and no heading is dragged
    std::vector<short> FieldIndex; ///< position in the list of `mnuField` to index in the dictionary
};

} // namespace zkp
