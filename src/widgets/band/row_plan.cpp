#include "widgets/band/row_plan.h"

#include <algorithm>
#include <cstddef>
#include <limits>

namespace zkp {

namespace {

constexpr int kEndless = std::numeric_limits<int>::max();

/// Gives items their least widths as long as there is room; returns what is left, or -1 when an item
/// did not fit. A separator takes its place with the item behind it.
int fill(const std::vector<RowItem>& items, int room, int gap, std::vector<int>& widths) {
    widths.assign(items.size(), 0);
    std::size_t separator = items.size();
    bool isFirst = true;
    for (std::size_t i = 0; i < items.size(); ++i) {
        const RowItem& item = items[i];
        if (!item.isShown)
            continue;
        if (item.isSeparator) {
            separator = isFirst ? items.size() : i;
            continue;
        }
        const bool parted = separator < items.size();
        const int needed = item.least + (isFirst ? 0 : gap) + (parted ? items[separator].least + gap : 0);
        if (needed > room)
            return -1;
        room -= needed;
        widths[i] = item.least;
        if (parted)
            widths[separator] = items[separator].least;
        separator = items.size();
        isFirst = false;
    }
    return room;
}

void stretch(const std::vector<RowItem>& items, int room, std::vector<int>& widths) {
    for (int left = kEndless; room > 0 && room < left;) { // until nobody takes any more
        left = room;
        for (std::size_t i = 0; i < items.size() && room > 0; ++i)
            if (widths[i] > 0 && widths[i] < items[i].wish) {
                ++widths[i];
                --room;
            }
    }
}

int used(const std::vector<int>& widths, int gap) {
    int sum = 0;
    for (const int width : widths)
        sum += width > 0 ? width + gap : 0;
    return std::max(0, sum - gap);
}

} // namespace

RowPlan planRow(const std::vector<RowItem>& items, int room, int gap, int more) {
    RowPlan plan;
    room = std::max(0, room);
    plan.overflows = fill(items, room, gap, plan.widths) < 0;
    if (plan.overflows) {
        room = std::max(0, room - more - gap);
        fill(items, room, gap, plan.widths);
    }
    stretch(items, room - used(plan.widths, gap), plan.widths);
    return plan;
}

} // namespace zkp
