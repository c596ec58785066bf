#pragma once

#include "widgets/grid/surface_geometry.h"

#include <QPoint>

#include <optional>

namespace zkp {

/// What the left button does on the heading row: a heading dragged to another one, or a border moved.
/// Knows pixels and columns only; the view reports the outcome.
class ColumnGesture {
public:
    static constexpr int kBorderReach = 3; // pixels
    static constexpr int kNarrowest = 4;   // pixels; a column made narrower could not be found again

    void pressHeading(const Span& col, QPoint at);
    void pressBorder(const Span& col, int x);
    /// The headings stand in `cols`, `height` pixels high. True when something on screen changed with it.
    bool moveTo(QPoint at, const std::vector<Span>& cols, int height, int dragDistance);
    void cancel() { *this = {}; }

    bool isPressed() const { return state_ == State::Pressed; }
    bool isDragging() const { return state_ == State::Dragging; }
    bool isResizing() const { return state_ == State::Resizing; }
    bool isActive() const { return state_ != State::None && state_ != State::Pressed; }
    int column() const { return col_; }
    /// The heading under the pointer, for a drop; -1 outside the headings.
    int target() const { return target_; }
    /// Pixels that the resized column gets.
    int width() const { return width_; }
    /// Where the mark of a drop stands, or the border that is moved.
    std::optional<int> markX() const { return mark_; }
    /// The left edge of a heading that is carried along, held where it was gripped.
    int ghostX() const { return at_.x() - grip_; }

private:
    enum class State { None, Pressed, Dragging, Resizing };

    void dragTo(const std::vector<Span>& cols, int height);

    State state_ = State::None;
    int col_ = -1;
    int target_ = -1;
    int start_ = 0; // left edge of the resized column
    int grip_ = 0;  // from the edge that is gripped to the pointer at the press
    int width_ = 0;
    QPoint pressed_;
    QPoint at_;
    std::optional<int> mark_;
};

} // namespace zkp
