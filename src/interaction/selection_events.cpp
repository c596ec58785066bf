#include "interaction/selection_events.h"

#include "load/load_hooks.h"

namespace zkp {

void SelectionEvents::currentCellChanged() {
    if (isQuiet())
        return;
    if (state_.ContentSeen)
        key_.takeKey();
    if (state_.PreRow != surface_.Row())
        marking_.Selectrow();
    pointer_.setPointer(kPointerDefault);
}

void SelectionEvents::selectionChanged() {
    if (isQuiet())
        return;
    state_.LastClickedCol = surface_.Col();
    if (state_.ContentSeen)
        key_.takeKey();
    menus_.MenuRefresh();
    // An open chart follows the group that the user has reached.
    if (state_.GraphVisible && surface_.Col() <= state_.GroupFactorCount - 1)
        LoadHooks::run(showChart_);
    state_.throwIfDestroyed();
    Q_EMIT events_.Selecting();
}

void SelectionEvents::selectedAgain() {
    marking_.Selectrow();
    selectionChanged();
}

/// A move to the side repaints nothing.
void SelectionEvents::scrolled() {
    if (!state_.ReportRecordset || !state_.PaintReady)
        return;
    if (surface_.LeftCol() != state_.SavedLeftCol) {
        state_.SavedLeftCol = surface_.LeftCol();
        return;
    }
    if (surface_.TopRow() == state_.SavedTopRow)
        return;
    state_.SavedTopRow = surface_.TopRow();
    drawing_.DrawInterface();
}

void SelectionEvents::visibleRowsGrew() {
    if (state_.ReportRecordset && state_.PaintReady)
        drawing_.DrawInterface();
}

} // namespace zkp
