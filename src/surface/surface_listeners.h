#pragma once

#include <functional>

namespace zkp {

/// One mouse notification: coordinates in twips, row and column those under the pointer (-1 outside).
struct SurfaceMouse {
    int button = 0; ///< 1 left, 2 right, 4 middle
    int shift = 0;  ///< 1 Shift, 2 Ctrl, 4 Alt
    double x = 0;
    double y = 0;
    int row = -1;
    int col = -1;
};

/// Compares two rows of a custom sort: negative, 0 or positive.
using RowCompare = std::function<int(int row1, int row2)>;

/// What a surface tells its owner (the control), and asks of it. Each may be empty. They run on the
/// caller's stack; one of them may destroy the surface's owner, which must then keep the surface alive
/// itself. They are the owner's alone: whoever else wants to hear is one of the `views`.
struct SurfaceNotifications {
    std::function<void(const SurfaceMouse&)> mouseDown;
    std::function<void(const SurfaceMouse&)> mouseMove;
    std::function<void(const SurfaceMouse&)> mouseUp;
    std::function<void()> click;
    std::function<void()> dblClick;
    std::function<void(int& code, int shift)> keyDown;
    std::function<void(int& code, int shift)> keyUp;
    std::function<void(int& ascii)> keyPress;
    std::function<void()> currentCellChanged;   ///< `Row` or `Col` moved
    std::function<void()> selectionChanged;     ///< the selected range moved
    std::function<void()> selectedAgain;        ///< a user chose the cell that was current already
    std::function<void()> scrolled;             ///< `TopRow` or `LeftCol` moved
    std::function<void()> visibleRowsGrew;      ///< more rows show, with `TopRow` where it was
    std::function<void(int col)> columnResized; ///< -1: all of them
    /// May the heading that was just pressed be dragged? Without it: yes.
    std::function<bool(int col)> mayDragHeading;
    /// A heading was dropped; true lets the surface move the column, false leaves it where it is by then.
    std::function<bool(int from, int to)> headingDropped;
    /// A custom sort of these rows begins: gives what compares them until it has ended. With nothing
    /// given the rows stay as they are.
    std::function<RowCompare(int firstRow, int lastRow)> compare;
};

/// What a view wants to hear, or anybody else who follows what the surface shows. Each may be empty.
/// Called at every change unless `Redraw` is off; when it comes back on, one `changed` covers all that
/// happened meanwhile.
struct SurfaceView {
    std::function<void()> changed = {};           ///< anything: sizes, texts, styles, selection
    std::function<void(int row)> rowChanged = {}; ///< only this row (else `changed` is called)
    std::function<void()> scrolled = {};          ///< only `TopRow` or `LeftCol`
    std::function<void()> focusWanted = {};       ///< SetFocus
    std::function<int()> room = {};               ///< asked: how many body rows fit
};

} // namespace zkp
