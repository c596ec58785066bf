#include "surface/surface_columns.h"

#include <algorithm>
#include <functional>

namespace zkp {

void SurfaceColumns::append() {
    if (free_.empty()) {
        order_.push_back(static_cast<ColumnId>(columns_.size()));
        columns_.emplace_back();
        return;
    }
    order_.push_back(free_.back());
    free_.pop_back();
}

ColumnId SurfaceColumns::removeLast() {
    const ColumnId id = order_.back();
    order_.pop_back();
    columns_[id] = {};
    free_.insert(std::upper_bound(free_.begin(), free_.end(), id, std::greater<>()), id);
    return id;
}

void SurfaceColumns::move(int from, int to) {
    const auto first = order_.begin() + from;
    const auto target = order_.begin() + to;
    if (from < to)
        std::rotate(first, first + 1, target + 1);
    else
        std::rotate(target, first, first + 1);
}

bool SurfaceColumns::isConsistent() const {
    std::vector<int> seen(columns_.size(), 0);
    for (const ColumnId id : order_)
        ++seen.at(id);
    for (const ColumnId id : free_)
        ++seen.at(id);
    return std::all_of(seen.begin(), seen.end(), [](int times) { return times == 1; });
}

} // namespace zkp
