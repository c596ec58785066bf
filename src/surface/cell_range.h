#pragma once

namespace zkp {

/// A block of cells, corners included.
struct CellRange {
    int top = 0;
    int left = 0;
    int bottom = 0;
    int right = 0;
    bool operator==(const CellRange&) const = default;
};

} // namespace zkp
