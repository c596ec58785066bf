#pragma once

#include <vector>

namespace zkp {

/// One thing in a row of tools, as wide as `least` to `wish` pixels.
struct RowItem {
    int least = 0;
    int wish = 0;
    bool isShown = true;
    bool isSeparator = false;
};

/// How wide each item of a row is; 0 for one that does not show.
struct RowPlan {
    std::vector<int> widths;
    bool overflows = false; ///< some did not fit, and `more` pixels are kept for the button that has them
};

/// Places as many items as fit, from the first on, `gap` pixels apart. Separators stand between two
/// shown items only, never two together. What room is left goes to the items that wish for more.
RowPlan planRow(const std::vector<RowItem>& items, int room, int gap, int more);

} // namespace zkp
