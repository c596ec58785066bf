#include "chart/geometry/projection.h"

#include <algorithm>
#include <numbers>

namespace zkp::chart {

namespace {

/// In the orthogonal view a step into the depth goes so far to the right and up.
constexpr double kDepthRight = 0.6;
constexpr double kDepthUp = 0.45;
/// The strongest perspective looks from this many reaches away, the weakest from `kFarthest`.
constexpr double kNearest = 1.5;
constexpr double kFarthest = 40;

double radians(double degrees) {
    return degrees * std::numbers::pi / 180;
}

} // namespace

Projection::Projection(const ViewSettings& settings, QPointF middle, double reach)
    : isOrthogonal_(settings.isOrthogonal)
    , scale_(settings.zoom / 100)
    , origin_(middle + QPointF(settings.horizontalOffset, settings.verticalOffset)) {
    if (isOrthogonal_) {
        eye_ = unit({kDepthRight, kDepthUp, -1});
        return;
    }
    sinRotation_ = std::sin(radians(settings.rotation));
    cosRotation_ = std::cos(radians(settings.rotation));
    sinElevation_ = std::sin(radians(settings.elevation));
    cosElevation_ = std::cos(radians(settings.elevation));
    const double strength = std::clamp(settings.perspective / 100, 0.0, 1.0);
    if (strength > 0 && reach > 0)
        eyeDistance_ = reach * std::max(kNearest / strength, kNearest);
    eyeDistance_ = std::min(eyeDistance_, reach * kFarthest);
    eye_ = turnedBack({0, 0, eyeDistance_ > 0 ? -eyeDistance_ : -1});
}

Point3 Projection::turned(const Point3& p) const {
    const double x = p.x * cosRotation_ + p.z * sinRotation_;
    const double z = p.z * cosRotation_ - p.x * sinRotation_;
    return {x, p.y * cosElevation_ - z * sinElevation_, z * cosElevation_ + p.y * sinElevation_};
}

Point3 Projection::turnedBack(const Point3& p) const {
    const double y = p.y * cosElevation_ + p.z * sinElevation_;
    const double z = p.z * cosElevation_ - p.y * sinElevation_;
    return {p.x * cosRotation_ - z * sinRotation_, y, z * cosRotation_ + p.x * sinRotation_};
}

QPointF Projection::operator()(const Point3& p) const {
    if (isOrthogonal_)
        return origin_ + QPointF(p.x + p.z * kDepthRight, -(p.y + p.z * kDepthUp)) * scale_;
    const Point3 seen = turned(p);
    const double nearness = eyeDistance_ > 0 ? eyeDistance_ / (eyeDistance_ + seen.z) : 1;
    return origin_ + QPointF(seen.x, -seen.y) * (scale_ * nearness);
}

double Projection::eyeSide(const Plane& plane) const {
    return eyeDistance_ > 0 ? plane.distance(eye_) : dot(plane.normal, eye_);
}

} // namespace zkp::chart
