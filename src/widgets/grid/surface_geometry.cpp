#include "widgets/grid/surface_geometry.h"

#include <algorithm>
#include <cmath>

namespace zkp {

namespace {

/// Pixels that the fixed ones take of the extent.
int fixedSize(const Axis& axis) {
    int size = 0;
    for (int i = 0; i < std::min(axis.fixed, axis.count) && size < axis.extent; ++i)
        size += axis.sizeOf(i);
    return size;
}

int clampedFirst(const Axis& axis) {
    return std::clamp(axis.first, axis.fixed, std::max(axis.fixed, axis.count));
}

} // namespace

int TwipScale::pixels(double twips) const {
    return static_cast<int>(std::lround(twips * dpi / 1440));
}

std::vector<Span> layOut(const Axis& axis) {
    std::vector<Span> spans;
    int start = 0;
    const auto add = [&](int index) {
        const int size = axis.sizeOf(index);
        if (size > 0)
            spans.push_back({index, start, size});
        start += size;
    };
    for (int i = 0; i < std::min(axis.fixed, axis.count) && start < axis.extent; ++i)
        add(i);
    for (int i = clampedFirst(axis); i < axis.count && start < axis.extent; ++i)
        add(i);
    return spans;
}

int wholeCount(const Axis& axis, const std::vector<Span>& spans) {
    return static_cast<int>(std::count_if(spans.begin(), spans.end(), [&](const Span& span) {
        return span.index >= axis.fixed && span.end() <= axis.extent;
    }));
}

int lastFirst(const Axis& axis) {
    int left = axis.extent - fixedSize(axis);
    int first = axis.count;
    while (first > axis.fixed) {
        left -= axis.sizeOf(first - 1);
        if (left < 0)
            break;
        --first;
    }
    // One that is larger than the view still gets its turn.
    return std::max(axis.fixed, std::min(first, axis.count - 1));
}

int firstToShow(const Axis& axis, int index) {
    const int first = clampedFirst(axis);
    if (index < axis.fixed)
        return first;
    if (index <= first)
        return index;
    Axis upToIndex = axis;
    upToIndex.count = std::min(index + 1, axis.count);
    return std::max(first, lastFirst(upToIndex));
}

const Span* spanAt(const std::vector<Span>& spans, int pixel) {
    const auto found = std::find_if(spans.begin(), spans.end(), [pixel](const Span& span) {
        return pixel >= span.start && pixel < span.end();
    });
    return found == spans.end() ? nullptr : &*found;
}

const Span* spanOf(const std::vector<Span>& spans, int index) {
    const auto found =
        std::find_if(spans.begin(), spans.end(), [index](const Span& span) { return span.index == index; });
    return found == spans.end() ? nullptr : &*found;
}

const Span* borderAt(const std::vector<Span>& spans, int pixel, int reach) {
    const auto found = std::find_if(spans.rbegin(), spans.rend(),
                                    [&](const Span& span) { return std::abs(pixel - span.end()) <= reach; });
    return found == spans.rend() ? nullptr : &*found;
}

} // namespace zkp
