#pragma once

#include "core/selection_notices.h"
#include "surface/grid_surface.h"

namespace zkp {

/// The surface draws nothing while this lives; then `Redraw` is what it was.
class RedrawOff {
public:
    explicit RedrawOff(GridSurface& surface)
        : surface_(surface)
        , was_(surface.Redraw()) {
        surface_.setRedraw(false);
    }
    ~RedrawOff() { surface_.setRedraw(was_); }
    RedrawOff(const RedrawOff&) = delete;
    RedrawOff& operator=(const RedrawOff&) = delete;

private:
    GridSurface& surface_;
    bool was_;
};

/// The surface's selection notifications do nothing while this lives: it is the control itself that
/// moves the selection.
class SelectionQuiet {
public:
    explicit SelectionQuiet(SelectionNotices& notices)
        : notices_(notices)
        , were_(notices) {
        notices_.heard_ = notices_.contentSeen_ = false;
    }
    ~SelectionQuiet() { notices_ = were_; }
    SelectionQuiet(const SelectionQuiet&) = delete;
    SelectionQuiet& operator=(const SelectionQuiet&) = delete;

private:
    SelectionNotices& notices_;
    SelectionNotices were_;
};

/// What setting `Row` and `Col` anew does: the selection becomes the current cell.
inline void selectCurrentCell(GridSurface& surface) {
    if (surface.Row() < surface.Rows() && surface.Col() < surface.Cols())
        surface.Select(surface.Row(), surface.Col());
}

} // namespace zkp
