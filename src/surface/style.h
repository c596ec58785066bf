#pragma once

#include "base/color.h"

#include <QString>

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

} // namespace zkp
