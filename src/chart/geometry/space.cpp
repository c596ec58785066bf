#include "chart/geometry/space.h"

namespace zkp::chart {

/// By all corners, so that one that stands on the line of its neighbours does no harm. Since z goes away
/// from who looks, a face against the clock has its outside where the right hand's thumb does not point.
Plane planeOf(const Face& face) {
    Point3 sum;
    Point3 middle;
    for (std::size_t i = 0; i < face.corners.size(); ++i) {
        const Point3& a = face.corners[i];
        const Point3& b = face.corners[(i + 1) % face.corners.size()];
        sum = sum + Point3{(a.y - b.y) * (a.z + b.z), (a.z - b.z) * (a.x + b.x), (a.x - b.x) * (a.y + b.y)};
        middle = middle + a;
    }
    const Point3 normal = unit(sum * -1);
    return {normal, dot(normal, middle * (1.0 / static_cast<double>(face.corners.size())))};
}

} // namespace zkp::chart
