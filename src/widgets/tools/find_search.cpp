#include "widgets/tools/find_search.h"

#include "widgets/grid/surface_selection.h"

#include <algorithm>

namespace zkp {

void FindSearch::start(const FoldedNeedle& needle, FoundCell from, bool forward, bool withFirst) {
    needle_ = needle;
    from_ = from;
    forward_ = forward;
    withFirst_ = withFirst;
    begin();
}

void FindSearch::begin() {
    rows_ = surface_.Rows();
    cols_ = shownColumns(surface_, surface_.FixedCols(), surface_.Cols() - 1);
    const std::int64_t width = static_cast<std::int64_t>(cols_.size());
    total_ = left_ = std::max(0, rows_ - surface_.FixedRows()) * width;
    hasWrapped_ = false;
    if (needle_.isEmpty() || total_ == 0) {
        state_ = State::Nothing;
        return;
    }
    state_ = State::Running;
    const int row = std::clamp(from_.row, surface_.FixedRows(), rows_ - 1) - surface_.FixedRows();
    const auto col = std::lower_bound(cols_.begin(), cols_.end(), from_.col);
    place_ = std::min(row * width + (col - cols_.begin()), total_ - 1);
    if (!withFirst_) {
        // Its own turn comes last.
        place_ = (place_ + (forward_ ? 1 : total_ - 1)) % total_;
        hasWrapped_ = place_ == (forward_ ? 0 : total_ - 1);
    }
}

FoundCell FindSearch::cellAt(std::int64_t place) const {
    const auto width = static_cast<std::int64_t>(cols_.size());
    return {surface_.FixedRows() + static_cast<int>(place / width),
            cols_[static_cast<std::size_t>(place % width)]};
}

FindSearch::State FindSearch::walk(int cells) {
    if (state_ != State::Running)
        return state_;
    if (rows_ != surface_.Rows() ||
        cols_ != shownColumns(surface_, surface_.FixedCols(), surface_.Cols() - 1))
        begin();
    for (; cells > 0 && left_ > 0 && state_ == State::Running; --cells) {
        const FoundCell cell = cellAt(place_);
        --left_;
        if (isHit(cell)) {
            found_ = cell;
            state_ = State::Found;
            return state_;
        }
        const std::int64_t next = place_ + (forward_ ? 1 : -1);
        place_ = (next + total_) % total_;
        hasWrapped_ = hasWrapped_ || place_ != next;
    }
    if (left_ == 0)
        state_ = State::Nothing;
    return state_;
}

/// The cell above is looked at for hits alone.
bool FindSearch::isHit(FoundCell cell) const {
    const QString text = report_.text(cell.row, cell.col);
    return needle_.isIn(text) && !report_.joinsAbove(cell.row, cell.col, text);
}

int FindSearch::percent() const {
    return total_ == 0 ? 100 : static_cast<int>((total_ - left_) * 100 / total_);
}

} // namespace zkp
