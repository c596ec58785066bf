#pragma once

#include "chart/geometry/space.h"

#include <QPointF>

namespace zkp::chart {

/// How a chart is looked at; the settings of its 3-D view.
struct ViewSettings {
    bool isOrthogonal = true;    ///< the front stays as it is and the depth goes to the upper right
    double rotation = 345;       ///< degrees about the upright axis, 0 to 360; not in the orthogonal view
    double elevation = 345;      ///< degrees about the level axis, 0 to 360; not in the orthogonal view
    double perspective = 15;     ///< 0 none, 100 the strongest; not in the orthogonal view
    double zoom = 100;           ///< percent
    double horizontalOffset = 0; ///< to the right, in pixels
    double verticalOffset = 0;   ///< down, in pixels
};

/// Takes the room of a chart onto the paper: pixels, x to the right, y down. The room's middle lands at
/// `middle`, moved by the offsets.
class Projection {
public:
    /// `reach` is the distance from the room's middle to its farthest corner: who looks never stands
    /// inside of it.
    Projection(const ViewSettings& settings, QPointF middle, double reach);

    QPointF operator()(const Point3& p) const;
    /// Above 0 when who looks stands on the normal's side of the plane, 0 when the plane is seen from its
    /// edge.
    double eyeSide(const Plane& plane) const;

private:
    Point3 turned(const Point3& p) const;
    Point3 turnedBack(const Point3& p) const;

    bool isOrthogonal_;
    double sinRotation_ = 0, cosRotation_ = 1;
    double sinElevation_ = 0, cosElevation_ = 1;
    double eyeDistance_ = 0; ///< from the room's middle; 0 for infinitely far
    double scale_ = 1;
    QPointF origin_;
    Point3 eye_; ///< where who looks stands; the direction to there when infinitely far
};

} // namespace zkp::chart
