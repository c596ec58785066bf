#pragma once

#include "base/color.h"

#include <QString>

#include <cstdint>
#include <optional>

namespace zkp {

/// The attributes of cells. One write may carry any of them; what it leaves out stays as it was.
struct StylePatch {
    std::optional<Color> backColor{};
    std::optional<Color> foreColor{};
    std::optional<QString> fontName{};
    std::optional<double> fontSize{}; ///< points
    std::optional<bool> bold{};
    std::optional<bool> italic{};
    std::optional<bool> underline{};
    std::optional<bool> strikethru{};
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

/// What a write of style is: the look of a section of a report, which a reader of rows that never showed
/// works out for himself, or a mark, which stands over that look until a later write covers it.
enum class StyleOrigin : std::uint8_t { Mark, Section };

/// A cell's style, and of it the attributes that marks gave.
struct MarkedStyle {
    CellStyle style;
    StylePatch marks;
};

/// The style with the patch laid over it.
inline CellStyle patched(CellStyle style, const StylePatch& patch) {
    style.backColor = patch.backColor.value_or(style.backColor);
    style.foreColor = patch.foreColor.value_or(style.foreColor);
    if (patch.fontName)
        style.fontName = *patch.fontName;
    style.fontSize = patch.fontSize.value_or(style.fontSize);
    style.bold = patch.bold.value_or(style.bold);
    style.italic = patch.italic.value_or(style.italic);
    style.underline = patch.underline.value_or(style.underline);
    style.strikethru = patch.strikethru.value_or(style.strikethru);
    return style;
}

} // namespace zkp
