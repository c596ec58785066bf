#include "surface/surface_news.h"

namespace zkp {

namespace {

void tellChanged(const SurfaceView& view) {
    if (view.changed)
        view.changed();
}

} // namespace

void SurfaceNews::setRedraw(bool on) {
    redraw_ = on;
    if (on && pending_)
        changed();
}

void SurfaceNews::changed() {
    pending_ = !redraw_;
    if (redraw_)
        views_.tell(tellChanged);
}

void SurfaceNews::tellRow(int row) {
    views_.tell([row](const SurfaceView& view) {
        if (view.rowChanged)
            view.rowChanged(row);
        else
            tellChanged(view);
    });
}

void SurfaceNews::scrolled() {
    if (!redraw_) {
        pending_ = true;
        return;
    }
    views_.tell([](const SurfaceView& view) {
        if (view.scrolled)
            view.scrolled();
        else
            tellChanged(view);
    });
}

} // namespace zkp
