#pragma once

#include <cmath>
#include <vector>

namespace zkp::chart {

/// A place or direction in the room of a chart: x to the right, y up, z away from who looks.
struct Point3 {
    double x = 0;
    double y = 0;
    double z = 0;

    bool operator==(const Point3&) const = default;
};

constexpr Point3 operator+(const Point3& a, const Point3& b) {
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}
constexpr Point3 operator-(const Point3& a, const Point3& b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
constexpr Point3 operator*(const Point3& a, double factor) {
    return {a.x * factor, a.y * factor, a.z * factor};
}
constexpr double dot(const Point3& a, const Point3& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
constexpr Point3 cross(const Point3& a, const Point3& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
/// The same direction with length 1; what has no length stays.
inline Point3 unit(const Point3& a) {
    const double length = std::sqrt(dot(a, a));
    return length > 0 ? a * (1 / length) : a;
}

/// The points p with dot(normal, p) = offset; the normal has length 1.
struct Plane {
    Point3 normal;
    double offset = 0;

    /// How far a point stands on the normal's side; negative on the other.
    double distance(const Point3& p) const { return dot(normal, p) - offset; }
};

/// A flat convex polygon with three corners or more. Seen from outside they go round against the clock.
struct Face {
    std::vector<Point3> corners;
    /// A sheet without thickness, seen from both sides; else only from outside.
    bool isSheet = false;
};

/// The plane that a face lies in, its normal to the outside. Of a face without an area the normal is 0.
Plane planeOf(const Face& face);

/// A convex body, as its faces; or a single sheet.
struct Solid {
    std::vector<Face> faces;
    int id = 0; ///< the maker's own number, for what has been hit
};

} // namespace zkp::chart
