#include "widgets/tools/reshape_history.h"

#include "widgets/tools/reshape_step.h"

#include <utility>

namespace zkp {

void ReshapeHistory::begin(ReshapeSnapshot now) {
    now_ = std::move(now);
    saved_ = now_;
    before_.clear();
    undone_.clear();
    typedCaption_ = -1;
}

bool ReshapeHistory::note(ReshapeSnapshot now) {
    if (now_.isSameShape(now)) {
        now_ = std::move(now); // what is no part of the comparison
        return false;
    }
    const int caption = now_.onlyCaptionOf(now);
    const bool goesOn = caption >= 0 && caption == typedCaption_ && canUndo() && !canRedo();
    typedCaption_ = caption;
    undone_.clear();
    if (!goesOn)
        before_.push_back(std::move(now_));
    if (before_.size() > kMostSteps)
        before_.pop_front();
    now_ = std::move(now);
    return true;
}

void ReshapeHistory::settle(ReshapeSnapshot now) {
    const bool changed = isChanged();
    now_ = std::move(now);
    if (!changed)
        saved_ = now_; // what the host makes of a shape is no change of the user's
}

QString ReshapeHistory::undoName() const {
    return canUndo() ? stepName(before_.back(), now_) : QString();
}

QString ReshapeHistory::redoName() const {
    return canRedo() ? stepName(now_, undone_.back()) : QString();
}

const ReshapeSnapshot& ReshapeHistory::undo() {
    undone_.push_back(std::exchange(now_, std::move(before_.back())));
    before_.pop_back();
    typedCaption_ = -1;
    return now_;
}

const ReshapeSnapshot& ReshapeHistory::redo() {
    before_.push_back(std::exchange(now_, std::move(undone_.back())));
    undone_.pop_back();
    typedCaption_ = -1;
    return now_;
}

} // namespace zkp
