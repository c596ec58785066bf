#pragma once

#include "chart/geometry/space.h"

namespace zkp::chart {

/// An upright box between two corners, whatever their order.
Solid boxBetween(const Point3& a, const Point3& b);

/// An upright body between two heights over an ellipse about (x, z), whose breadth goes from `bottom` to
/// `top` times the ellipse's: 1 and 1 a cylinder, 1 and 0 a cone that stands on its base, 0 and 1 one on
/// its point. Four sides are a pyramid, whose base has its sides along the axes; many are round.
struct Upright {
    double x = 0;
    double z = 0;
    double halfWidth = 0; ///< along x
    double halfDepth = 0; ///< along z
    double from = 0;      ///< height of the bottom; may be above `to`, for a negative value
    double to = 0;
    double bottom = 1;
    double top = 1;
    int sides = 4;
};
Solid upright(const Upright& form);

/// A slice of a pie that lies flat: a sector about a middle between two angles (radians, against the clock
/// from the right, seen from above), as high as `height` over y = 0. Sectors beyond half a circle aren't
/// convex and come as two solids; one without an angle as none.
struct Slice {
    Point3 middle;
    double radius = 0;
    double from = 0;
    double to = 0;
    double height = 0;
};
std::vector<Solid> slice(const Slice& form);

/// The part of a line or of an area's upper edge between two points: a sheet from `front` to `back`.
Solid ribbon(double x1, double y1, double x2, double y2, double front, double back);

} // namespace zkp::chart
