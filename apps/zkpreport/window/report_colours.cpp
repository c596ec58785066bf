#include "window/report_colours.h"

#include "widgets/palette_colors.h"

namespace zkp::app {

namespace {

constexpr double kGroupShade = 0.05;
constexpr double kSubTotalsShade = 0.10;
constexpr double kLineShade = 0.14; // seen between two groups too
constexpr double kTotalsShade = 0.20;

Color shade(const QPalette& palette, double strength) {
    const QColor back = palette.color(QPalette::Base);
    const QColor text = palette.color(QPalette::Text);
    const auto mixed = [&](int from, int to) { return from + qRound((to - from) * strength); };
    return storedColor(QColor(mixed(back.red(), text.red()), mixed(back.green(), text.green()),
                              mixed(back.blue(), text.blue())));
}

} // namespace

void setReportColours(ZkpGrid& grid, const QPalette& palette) {
    grid.setGroupedFontBold(false); // what is bold is a sum
    grid.setGroupedBackColor(shade(palette, kGroupShade));
    grid.setSubTotalsBackColor(shade(palette, kSubTotalsShade));
    grid.setGridColor(shade(palette, kLineShade));
    grid.setTotalsBackcolor(shade(palette, kTotalsShade));
}

} // namespace zkp::app
