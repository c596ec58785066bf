#include "surface/surface_rows.h"

#include <algorithm>
#include <utility>

namespace zkp {

const RowRecord& SurfaceRows::recordOf(int row) const {
    static const RowRecord blank;
    const RowId id = order_.at(row);
    return id == kNoRow ? blank : table_.at(id);
}

void SurfaceRows::setCount(int count, int fixed, const Forget& forget) {
    ++orderChanges_;
    if (count == fixed)
        dropBody(fixed, forget);
    const int real = order_.realSize();
    if (count < real)
        removeRun(count, real - count, forget);
    order_.setBlanks(count - order_.realSize());
}

/// The fixed rows usually have the lowest ids; all others then go at once and not run by run.
void SurfaceRows::dropBody(int fixed, const Forget& forget) {
    const int real = order_.realSize();
    const int kept = std::min(fixed, real);
    for (int row = 0; row < kept; ++row)
        if (order_.at(row) != static_cast<RowId>(row)) {
            removeRun(kept, real - kept, forget);
            return;
        }
    const RowRun gone{static_cast<RowId>(kept), static_cast<int>(table_.limit()) - kept};
    order_.erase(kept, real - kept, {});
    forget(gone);
    table_.truncate(gone.first);
    std::erase_if(merged_, [&](RowId id) { return id >= gone.first; });
}

void SurfaceRows::removeRun(int first, int count, const Forget& forget) {
    order_.erase(first, count, [&](const RowRun& run) {
        forget(run);
        if (!merged_.empty())
            for (int i = 0; i < run.count; ++i)
                merged_.erase(run.first + static_cast<RowId>(i));
        table_.release(run);
    });
}

void SurfaceRows::insert(int row) {
    ++orderChanges_;
    countTouched();
    const int blanks = order_.size() - order_.realSize();
    if (row < order_.realSize())
        order_.insert(row, table_.allocate(1));
    else
        order_.setBlanks(blanks + 1);
}

void SurfaceRows::remove(int row, const Forget& forget) {
    ++orderChanges_;
    countTouched();
    const int blanks = order_.size() - order_.realSize();
    if (row < order_.realSize())
        removeRun(row, 1, forget);
    else
        order_.setBlanks(blanks - 1);
}

void SurfaceRows::reorder(int first, std::span<const RowId> ids) {
    order_.replace(first, ids);
    ++orderChanges_;
    countTouched(static_cast<int>(ids.size()));
}

std::vector<RowId> SurfaceRows::ids(int first, int count) const {
    std::vector<RowId> ids;
    ids.reserve(static_cast<std::size_t>(count));
    order_.forEachRun(first, count, [&](const RowRun& run) {
        for (int i = 0; i < run.count; ++i)
            ids.push_back(run.first + static_cast<RowId>(i));
    });
    return ids;
}

int SurfaceRows::height(int row) const {
    const std::uint16_t height = recordOf(row).height;
    return height == RowRecord::kDefaultHeight ? height_ : height;
}

void SurfaceRows::setHeight(int row, int twips) {
    const int height = std::min(twips, RowRecord::kDefaultHeight - 1);
    if (row == -1) {
        height_ = height < 0 ? kHeight : height;
        table_.resetHeights();
        return;
    }
    table_.write(touch(row)).height =
        height < 0 ? RowRecord::kDefaultHeight : static_cast<std::uint16_t>(height);
}

bool SurfaceRows::isMerged(int row) const {
    const RowId id = order_.at(row);
    return id != kNoRow && merged_.count(id) != 0;
}

void SurfaceRows::setMerged(int row, bool merged) {
    if (merged)
        merged_.insert(touch(row));
    else
        merged_.erase(order_.at(row));
}

std::int64_t SurfaceRows::takeTouched() {
    return std::exchange(touched_, 0);
}

QString SurfaceRows::inconsistency(std::size_t layouts) const {
    if (const QString wrong = order_.inconsistency(); !wrong.isEmpty())
        return wrong;
    std::vector<bool> seen(table_.limit(), false);
    for (const RowRun& run : table_.freeRuns())
        for (int i = 0; i < run.count; ++i)
            seen.at(run.first + static_cast<RowId>(i)) = true;
    for (int row = 0; row < order_.realSize(); ++row) {
        const RowId id = order_.at(row);
        if (id >= table_.limit() || seen[id])
            return QStringLiteral("row %1 has an id that is free or stands twice").arg(row);
        seen[id] = true;
        if (table_.at(id).layout > layouts)
            return QStringLiteral("row %1 has no layout").arg(row);
    }
    if (table_.used() != order_.realSize())
        return QStringLiteral("%1 ids for %2 rows").arg(table_.used()).arg(order_.realSize());
    return {};
}

} // namespace zkp
