#include "chart/geometry/solids.h"

#include <algorithm>
#include <numbers>
#include <utility>

namespace zkp::chart {

namespace {

using Ring = std::vector<Point3>; // level, against the clock seen from above

/// The body between two rings of as many corners, one over the other. A ring of no breadth is a point.
Solid between(const Ring& low, const Ring& high, bool lowIsPoint, bool highIsPoint) {
    Solid solid;
    if (!lowIsPoint)
        solid.faces.push_back({Ring(low.rbegin(), low.rend())});
    if (!highIsPoint)
        solid.faces.push_back({high});
    for (std::size_t i = 0; i < low.size(); ++i) {
        const std::size_t next = (i + 1) % low.size();
        Face side{{low[i]}};
        if (!lowIsPoint)
            side.corners.push_back(low[next]);
        side.corners.push_back(high[next]);
        if (!highIsPoint)
            side.corners.push_back(high[i]);
        if (side.corners.size() > 2)
            solid.faces.push_back(std::move(side));
    }
    return solid;
}

/// Round enough that no corner shows: one for every few degrees.
constexpr double kArcStep = std::numbers::pi / 60;

Solid wedge(const Slice& form, double from, double to) {
    Ring low{form.middle};
    const int steps = std::max(1, static_cast<int>(std::ceil((to - from) / kArcStep)));
    for (int i = 0; i <= steps; ++i) {
        const double angle = from + (to - from) * i / steps;
        // Seen from above z points up on the paper, and away.
        low.push_back(form.middle + Point3{form.radius * std::cos(angle), 0, form.radius * std::sin(angle)});
    }
    Ring high = low;
    for (Point3& p : high)
        p.y += form.height;
    return between(low, high, false, false);
}

} // namespace

Solid boxBetween(const Point3& a, const Point3& b) {
    Upright form;
    form.x = (a.x + b.x) / 2;
    form.z = (a.z + b.z) / 2;
    form.halfWidth = std::abs(a.x - b.x) / 2;
    form.halfDepth = std::abs(a.z - b.z) / 2;
    form.from = a.y;
    form.to = b.y;
    return upright(form);
}

Solid upright(const Upright& form) {
    // Four corners stand on the corners of the ellipse's box, more on the ellipse itself.
    const bool isSquare = form.sides == 4;
    const double reach = isSquare ? std::numbers::sqrt2 : 1;
    const double first = isSquare ? std::numbers::pi / 4 : 0;
    const auto ring = [&](double y, double breadth) {
        Ring corners;
        for (int i = 0; i < form.sides; ++i) {
            const double angle = first + 2 * std::numbers::pi * i / form.sides;
            corners.push_back({form.x + form.halfWidth * breadth * reach * std::cos(angle), y,
                               form.z + form.halfDepth * breadth * reach * std::sin(angle)});
        }
        return corners;
    };
    const bool stands = form.from <= form.to;
    const double low = stands ? form.bottom : form.top;
    const double high = stands ? form.top : form.bottom;
    return between(ring(std::min(form.from, form.to), low), ring(std::max(form.from, form.to), high),
                   low == 0, high == 0);
}

std::vector<Solid> slice(const Slice& form) {
    const double angle = form.to - form.from;
    if (!(angle > 0))
        return {};
    if (angle <= std::numbers::pi)
        return {wedge(form, form.from, form.to)};
    const double half = form.from + angle / 2;
    return {wedge(form, form.from, half), wedge(form, half, form.to)};
}

Solid ribbon(double x1, double y1, double x2, double y2, double front, double back) {
    return {{{{{x1, y1, front}, {x2, y2, front}, {x2, y2, back}, {x1, y1, back}}, true}}};
}

} // namespace zkp::chart
