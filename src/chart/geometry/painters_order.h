#pragma once

#include "chart/geometry/projection.h"
#include "chart/geometry/space.h"

#include <span>

namespace zkp::chart {

/// A face as it is drawn: on top of all that stand before it in the list.
struct PaintedFace {
    Face face;
    int id = 0; ///< of its solid
};

/// The faces that are seen, from back to front: drawn one after the other, none covers one that stands in
/// front of it. Faces that look away are left out. Solids that a plane parts (across an axis, or one of
/// `partings`) stay whole; only where none does are faces cut.
///
/// Cost: n log² n for n solids that even gaps part; faces that must be cut cost more.
std::vector<PaintedFace> paintersOrder(std::vector<Solid> solids, const Projection& projection,
                                       std::span<const Plane> partings = {});

} // namespace zkp::chart
