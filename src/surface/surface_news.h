#pragma once

#include "base/listeners.h"
#include "surface/surface_listeners.h"

namespace zkp {

/// What a surface's views are told: at once, or as one change when `Redraw` comes back on.
class SurfaceNews {
public:
    explicit SurfaceNews(const Listeners<SurfaceView>& views)
        : views_(views) {}

    bool Redraw() const { return redraw_; }
    void setRedraw(bool on);

    void changed();
    void scrolled();
    void rowChanged(int row) {
        if (redraw_)
            tellRow(row);
        else
            pending_ = true;
    }
    /// What became of a block of rows.
    void rowsChanged(int first, int last) {
        if (first == last)
            rowChanged(first);
        else
            changed();
    }

private:
    void tellRow(int row);

    const Listeners<SurfaceView>& views_;
    bool redraw_ = true;
    bool pending_ = false; ///< something happened while it was off
};

} // namespace zkp
