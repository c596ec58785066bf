#pragma once

#include "surface/cell_range.h"
#include "widgets/grid/grid_navigation.h"

#include <optional>

namespace zkp {

class GridView;

/// Tells screen readers what has become of the view since the last time: another report, another
/// current cell, another selection. Costs a comparison; nothing when nobody listens.
class GridAnnouncer {
public:
    GridAnnouncer();
    /// A load has put other rows in place, perhaps just as many.
    void reloaded() { reloaded_ = true; }
    /// The view has got the focus: its current cell is said again.
    void focused() { refocused_ = true; }
    void announce(GridView& view);
    /// The surface is gone.
    static void announceNothing(GridView& view);

private:
    struct Seen {
        int rows = 0;
        int cols = 0;
        CellPlace current;
        CellRange selected;
    };

    std::optional<Seen> seen_;
    bool reloaded_ = false;
    bool refocused_ = false;
};

} // namespace zkp
