#pragma once

#include <cstdint>

namespace zkp {

/// A colour as the control stores it: blue in the high byte of the three, 0x80000000 + n a system colour.
using Color = std::uint32_t;

constexpr Color systemColor(std::uint8_t index) { return 0x80000000u | index; }
constexpr bool isSystemColor(Color c) { return (c & 0x80000000u) != 0; }

enum SystemColorIndex : std::uint8_t {
    kSysMenu = 4, kSysWindow = 5, kSysWindowText = 8, kSysHighlight = 13, kSysHighlightText = 14,
    kSysButtonFace = 15, kSysButtonShadow = 16, kSysGrayText = 17, kSysButtonText = 18,
};

} // namespace zkp
