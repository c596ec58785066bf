#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace zkp {

/// A colour as the control stores it: blue in the high byte of the three, 0x80000000 + n a system colour.
using Color = std::uint32_t;

constexpr Color systemColor(std::uint8_t index) { return 0x80000000u | index; }
constexpr bool isSystemColor(Color c) { return (c & 0x80000000u) != 0; }

enum SystemColorIndex : std::uint8_t {
    kSysMenu = 4, kSysWindow = 5, kSysWindowText = 8, kSysHighlight = 13, kSysHighlightText = 14,
    kSysButtonFace = 15, kSysButtonShadow = 16, kSysGrayText = 17, kSysButtonText = 18,
};

/// The attributes of cells. One write may carry any of them; what it leaves out stays as it was.
struct StylePatch {
    std::optional<Color> backColor;
    std::optional<Color> foreColor;
    std::optional<QString> fontName;
    std::optional<double> fontSize; ///< points
    std::optional<bool> bold;
    std::optional<bool> italic;
    std::optional<bool> underline;
    std::optional<bool> strikethru;
    bool operator==(const StylePatch&) const = default;
};

/// What a cell looks like once all layers are taken together.
struct CellStyle {
    Color backColor = systemColor(kSysWindow);
    Color foreColor = systemColor(kSysWindowText);
    QString fontName = QStringLiteral("Arial");
    double fontSize = 8; ///< points
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikethru = false;

    bool operator==(const CellStyle&) const = default;
};

} // namespace zkp
