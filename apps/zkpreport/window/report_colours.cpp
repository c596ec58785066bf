#include "window/report_colours.h"

#include "widgets/grid/palette_colors.h"

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

/// A section that gets a shade.
struct Section {
    Color (ZkpGrid::*colour)() const;
    void (ZkpGrid::*setColour)(const Color&);
    double strength;
};

constexpr Section kSections[] = {
    {&ZkpGrid::GroupedBackColor, &ZkpGrid::setGroupedBackColor, kGroupShade},
    {&ZkpGrid::SubTotalsBackColor, &ZkpGrid::setSubTotalsBackColor, kSubTotalsShade},
    {&ZkpGrid::TotalsBackcolor, &ZkpGrid::setTotalsBackcolor, kTotalsShade},
};

Color noColour() {
    return systemColor(kSysWindow);
}

} // namespace

void setReportColours(ZkpGrid& grid, const QPalette& palette) {
    grid.setGroupedFontBold(false); // what is bold is a sum
    for (const Section& section : kSections)
        (grid.*section.setColour)(noColour());
    fillReportColours(grid, palette);
}

void fillReportColours(ZkpGrid& grid, const QPalette& palette) {
    for (const Section& section : kSections)
        if ((grid.*section.colour)() == noColour())
            (grid.*section.setColour)(shade(palette, section.strength));
    grid.setGridColor(shade(palette, kLineShade));
}

void withdrawReportColours(ZkpGrid& grid, const QPalette& palette) {
    for (const Section& section : kSections)
        if ((grid.*section.colour)() == shade(palette, section.strength))
            (grid.*section.setColour)(noColour());
}

} // namespace zkp::app
