#pragma once

#include "chart/geometry/painters_order.h"

namespace zkp::chart {

/// Faces that may stand in each other's way, or run through one another, cut where they must be and in
/// the painter's order: each is drawn on top of all before it.
std::vector<PaintedFace> cutInOrder(std::vector<PaintedFace> faces, const Projection& projection);

} // namespace zkp::chart
