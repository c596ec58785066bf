#pragma once

#include "widgets/tools/reshape_snapshot.h"

#include <deque>

namespace zkp {

/// The shapes that a report has had, for undo and redo: those before where it stands, and those that were
/// undone. It holds values only and changes no report.
class ReshapeHistory {
public:
    static constexpr std::size_t kMostSteps = 50;

    /// Where things stand now; there is nothing to undo and nothing to redo.
    void begin(ReshapeSnapshot now);
    /// Where things stand after something has happened. True when that was a step. What is typed into one
    /// caption, letter after letter, is one step.
    bool note(ReshapeSnapshot now);
    /// Where things stand after a shape was brought back: no step.
    void settle(ReshapeSnapshot now);

    /// The shape as it stands has been saved.
    void setSaved() { saved_ = now_; }
    /// Whether steps were taken since the beginning or the last save, and not all of them taken back.
    bool isChanged() const { return isChangedIn(now_); }
    bool isChangedIn(const ReshapeSnapshot& shape) const { return !shape.isSameShape(saved_); }

    bool canUndo() const { return !before_.empty(); }
    bool canRedo() const { return !undone_.empty(); }
    /// What that step was; empty when there is none.
    QString undoName() const;
    QString redoName() const;
    /// Moves one step and gives the shape to bring back. Only when there is one.
    const ReshapeSnapshot& undo();
    const ReshapeSnapshot& redo();

private:
    ReshapeSnapshot now_;
    ReshapeSnapshot saved_;
    std::deque<ReshapeSnapshot> before_; // the last is the next to come back
    std::deque<ReshapeSnapshot> undone_;
    int typedCaption_ = -1; // the column whose caption the last step has typed
};

} // namespace zkp
