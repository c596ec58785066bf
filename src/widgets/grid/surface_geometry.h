#pragma once

#include <functional>
#include <vector>

namespace zkp {

/// Turns twips (1440 to the inch) into logical pixels and back.
struct TwipScale {
    double dpi = 96;

    int pixels(double twips) const;
    double twips(double pixels) const { return pixels * 1440 / dpi; }
};

/// One row or column as it stands on screen: its index, and the logical pixels that it takes.
struct Span {
    int index = 0;
    int start = 0;
    int size = 0;

    int end() const { return start + size; }
    bool operator==(const Span&) const = default;
};

/// Rows or columns along one direction: the fixed ones stand still, the others begin at `first`.
struct Axis {
    int count = 0;                  ///< all, fixed ones included
    int fixed = 0;                  ///< how many stand still at the beginning
    int first = 0;                  ///< the first of the others that shows
    int extent = 0;                 ///< pixels there are
    std::function<int(int)> sizeOf; ///< pixels of one; 0 for a hidden one
};

/// What shows of an axis, fixed ones first; only the last span may be cut. Costs what shows, whatever
/// the axis' length.
std::vector<Span> layOut(const Axis& axis);

/// How many scrollable ones show wholly.
int wholeCount(const Axis& axis, const std::vector<Span>& spans);

/// The `first` that brings the end of the axis into view: with it the last one shows wholly.
int lastFirst(const Axis& axis);

/// The `first` nearest to the present one with which `index` shows wholly (or at least begins).
int firstToShow(const Axis& axis, int index);

/// The span under a pixel, or nothing.
const Span* spanAt(const std::vector<Span>& spans, int pixel);
const Span* spanOf(const std::vector<Span>& spans, int index);

/// The span whose far border lies within `reach` pixels of the pixel. Where a narrow one ends beside
/// another, the later one wins, so that a column made very narrow can be widened again.
const Span* borderAt(const std::vector<Span>& spans, int pixel, int reach);

} // namespace zkp
