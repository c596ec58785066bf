#include "interaction/selection_events.h"

#include "load/load_hooks.h"

namespace zkp {

void SelectionEvents::currentCellChanged() {
    if (isQuiet())
        return;
    if (notices_.isContentSeen())
        key_.takeKey();
    if (marking_.markedRow() != surface_.Row())
        marking_.Selectrow();
    pointer_.setPointer(kPointerDefault);
}

void SelectionEvents::selectionChanged() {
    if (isQuiet())
        return;
    clicked_.take(surface_.Col());
    if (notices_.isContentSeen())
        key_.takeKey();
    menus_.MenuRefresh();
    // An open chart follows the group that the user has reached.
    if (face_.GraphVisible && surface_.Col() <= grouping_.GroupFactorCount - 1)
        LoadHooks::run(showChart_);
    lifetime_.throwIfDestroyed();
    Q_EMIT events_.Selecting();
}

void SelectionEvents::selectedAgain() {
    marking_.Selectrow();
    selectionChanged();
}

void SelectionEvents::scrolled() {
    if (!source_.ReportRecordset || !notices_.isHeard())
        return;
    if (painted_.follow(surface_))
        drawing_.DrawInterface();
}

void SelectionEvents::visibleRowsGrew() {
    if (source_.ReportRecordset && notices_.isHeard())
        drawing_.DrawInterface();
}

} // namespace zkp
