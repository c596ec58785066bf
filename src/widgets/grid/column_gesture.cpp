#include "widgets/grid/column_gesture.h"

#include <algorithm>
#include <cstdlib>

namespace zkp {

void ColumnGesture::pressHeading(const Span& col, QPoint at) {
    *this = {};
    state_ = State::Pressed;
    col_ = col.index;
    grip_ = at.x() - col.start;
    pressed_ = at_ = at;
}

void ColumnGesture::pressBorder(const Span& col, int x) {
    *this = {};
    state_ = State::Resizing;
    col_ = col.index;
    start_ = col.start;
    grip_ = x - col.end();
    width_ = col.size;
    mark_ = col.end() - 1;
}

bool ColumnGesture::moveTo(QPoint at, const std::vector<Span>& cols, int height, int dragDistance) {
    const std::optional<int> before = mark_;
    at_ = at;
    if (state_ == State::Resizing) {
        width_ = std::max(kNarrowest, at.x() - grip_ - start_);
        mark_ = start_ + width_ - 1;
        return mark_ != before;
    }
    if (state_ == State::Pressed && std::abs(at.x() - pressed_.x()) >= dragDistance)
        state_ = State::Dragging;
    if (state_ == State::Dragging)
        dragTo(cols, height);
    return state_ == State::Dragging; // the heading goes with the pointer
}

void ColumnGesture::dragTo(const std::vector<Span>& cols, int height) {
    const bool onHeadings = at_.y() >= 0 && at_.y() < height;
    const Span* under = onHeadings ? spanAt(cols, at_.x()) : nullptr;
    target_ = under ? under->index : -1;
    mark_.reset();
    if (under && target_ != col_) // it goes before a heading on its left, behind one on its right
        mark_ = target_ > col_ ? under->end() - 1 : under->start;
}

} // namespace zkp
