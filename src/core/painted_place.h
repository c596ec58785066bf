#pragma once

#include "surface/grid_surface.h"

namespace zkp {

/// Where the surface stood when its sections were painted last.
class PaintedPlace {
public:
    /// What shows from now on is painted.
    void take(const GridSurface& surface) {
        topRow_ = surface.TopRow();
        leftCol_ = surface.LeftCol();
    }
    /// Follows a scroll: True when other rows show. A move to the side shows none, whatever else moved.
    bool follow(const GridSurface& surface) {
        if (surface.LeftCol() != leftCol_) {
            leftCol_ = surface.LeftCol();
            return false;
        }
        if (surface.TopRow() == topRow_)
            return false;
        topRow_ = surface.TopRow();
        return true;
    }

private:
    int topRow_ = 0;
    int leftCol_ = 0;
};

} // namespace zkp
