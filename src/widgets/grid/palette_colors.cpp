#include "widgets/grid/palette_colors.h"

#include <cstdlib>

namespace zkp {

namespace {

/// The palette's part in each system colour, by the colour's index (0 to 24).
constexpr QPalette::ColorRole kRoles[] = {
    QPalette::Mid,             // 0 scroll bar
    QPalette::Window,          // 1 desktop
    QPalette::Highlight,       // 2 active title bar
    QPalette::Mid,             // 3 inactive title bar
    QPalette::Window,          // 4 menu
    QPalette::Base,            // 5 window
    QPalette::Dark,            // 6 window frame
    QPalette::WindowText,      // 7 menu text
    QPalette::Text,            // 8 window text
    QPalette::HighlightedText, // 9 active title text
    QPalette::Button,          // 10 active border
    QPalette::Button,          // 11 inactive border
    QPalette::Mid,             // 12 application workspace
    QPalette::Highlight,       // 13
    QPalette::HighlightedText, // 14
    QPalette::Button,          // 15 button face
    QPalette::Mid,             // 16 button shadow
    QPalette::PlaceholderText, // 17 grey text
    QPalette::ButtonText,      // 18
    QPalette::WindowText,      // 19 inactive title text
    QPalette::Light,           // 20 button highlight
    QPalette::Shadow,          // 21 dark shadow
    QPalette::Midlight,        // 22 light edge
    QPalette::ToolTipText,     // 23
    QPalette::ToolTipBase,     // 24
};

/// How light a colour looks, 0 to 255.
int lightness(const QColor& color) {
    return qGray(color.rgb());
}

constexpr int kLeastContrast = 70;

} // namespace

QColor readableOn(const QColor& back, const QColor& fore) {
    if (std::abs(lightness(back) - lightness(fore)) >= kLeastContrast)
        return fore;
    return lightness(back) >= 128 ? QColor(Qt::black) : QColor(Qt::white);
}

QColor paintedColor(Color color, const QPalette& palette) {
    if (isSystemColor(color)) {
        const unsigned index = color & 0xFF;
        return palette.color(index < std::size(kRoles) ? kRoles[index] : QPalette::Text);
    }
    return QColor(static_cast<int>(color & 0xFF), static_cast<int>(color >> 8 & 0xFF),
                  static_cast<int>(color >> 16 & 0xFF));
}

QColor refusalColor(const QPalette& palette) {
    const QColor text = palette.color(QPalette::WindowText);
    const auto mix = [](int red, int share) { return (3 * red + share) / 4; };
    return QColor(mix(220, text.red()), mix(20, text.green()), mix(20, text.blue()));
}

Color storedColor(const QColor& color) {
    return static_cast<Color>(color.red() | color.green() << 8 | color.blue() << 16);
}

} // namespace zkp
