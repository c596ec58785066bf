#include "platform/grid_surface.h"

#include "base/error.h"
#include "base/scope_guard.h"
#include "platform/grid_surface_data.h"
#include "platform/row_sort.h"

#include <algorithm>

namespace zkp {

namespace {

constexpr int kCurrencyType = 6; // ColDataType

bool isDescending(int code) {
    return code % 2 == 0;
}

/// The rows of a sort: those selected, or all body rows when only one is.
CellRange sortedBlock(const CellRange& selection, const SurfaceShape& shape) {
    CellRange block = selection;
    if (block.top == block.bottom) {
        block.top = 0;
        block.bottom = shape.rows - 1;
    }
    block.top = std::max(block.top, shape.fixedRows);
    return block;
}

} // namespace

std::vector<double> GridSurface::Data::sortKeys(int code, int top, int count, int col) const {
    const TextOfRow text = [&](int i) { return cellText(top + i, col); };
    const NumberOfRow number = [&](int i) { return cellNumber(top + i, col); };
    const bool generic = code <= kSortGenericDown;
    if (code == kSortNumericUp || code == kSortNumericDown ||
        (generic && columns.at(col).dataType == kCurrencyType))
        return numberKeys(count, number);
    if (generic)
        return genericKeys(count, text, number, locale);
    return textKeys(count, text, locale, code >= kSortTextUp);
}

void GridSurface::setSort(int code) {
    if (code < kSortNone || code > kSortCustom)
        throw Error(kErrInvalidCall, QStringLiteral("There is no sort %1").arg(code));
    const CellRange block = sortedBlock(d->cursor.selection(), d->shape());
    const int count = block.bottom - block.top + 1;
    if (code == kSortNone || count < 2 || d->columns.size() == 0 || d->sorting)
        return;
    d->sorting = true;
    const ScopeGuard done([this] { d->sorting = false; });
    d->touch(block.bottom);

    std::vector<int> sorted;
    if (code == kSortCustom) {
        const auto compare = notifications.compare;
        if (!compare)
            return;
        const std::uint64_t before = d->orderChanges;
        sorted = orderByCompare(count, [&](int a, int b) { return compare(block.top + a, block.top + b); });
        if (d->orderChanges != before)
            return; // the comparison added or removed rows: the order found is of rows that are no more
    } else {
        std::vector<SortKeys> keys;
        for (int col = block.left; col <= block.right; ++col)
            keys.push_back(d->sortKeys(code, block.top, count, col));
        sorted = orderByKeys(count, keys, isDescending(code));
    }
    std::vector<RowId> ids;
    ids.reserve(sorted.size());
    for (const int row : sorted)
        ids.push_back(d->order.at(block.top + row));
    d->order.replace(block.top, ids);
    ++d->orderChanges;
    d->costs.rowsTouched += count;
    d->changed();
}

} // namespace zkp
