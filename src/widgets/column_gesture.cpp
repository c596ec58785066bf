#include "widgets/column_gesture.h"

#include <algorithm>
#include <cstdlib>

namespace zkp {

namespace {

constexpr int kNarrowest = 4; // pixels; a column made narrower could not be found again

} // namespace

void ColumnGesture::pressHeading(int col, QPoint at) {
    *this = {};
    state_ = State::Pressed;
    col_ = col;
    pressed_ = at;
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

bool ColumnGesture::moveTo(QPoint at, const std::vector<Span>& cols, int dragDistance) {
    const std::optional<int> before = mark_;
    if (state_ == State::Resizing) {
        width_ = std::max(kNarrowest, at.x() - grip_ - start_);
        mark_ = start_ + width_ - 1;
    }
    if (state_ == State::Pressed && std::abs(at.x() - pressed_.x()) >= dragDistance)
        state_ = State::Dragging;
    if (state_ == State::Dragging) {
        const Span* under = spanAt(cols, at.x());
        target_ = under ? under->index : -1;
        mark_.reset();
        if (under && target_ != col_) // it goes before a heading on its left, behind one on its right
            mark_ = target_ > col_ ? under->end() - 1 : under->start;
    }
    return mark_ != before;
}

} // namespace zkp
