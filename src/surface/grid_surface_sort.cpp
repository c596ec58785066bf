#include "surface/grid_surface.h"

#include "base/error.h"
#include "base/scope_guard.h"
#include "surface/cell_sort_keys.h"
#include "surface/grid_surface_data.h"

#include <algorithm>

namespace zkp {

namespace {

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

/// The rows of a block by the owner's comparison. Empty, for the order that there is, when it has none or
/// when it added or removed rows, so that the order found is of rows that are no more.
std::vector<int> GridSurface::Data::customOrder(const CellRange& block) {
    const auto begin = surface.notifications.compare;
    const std::uint64_t before = rows.orderChanges();
    const RowCompare compare = begin ? begin(block.top, block.bottom) : RowCompare();
    if (!compare)
        return {};
    std::vector<int> sorted = orderByCompare(
        block.bottom - block.top + 1, [&](int a, int b) { return compare(block.top + a, block.top + b); });
    return rows.orderChanges() == before ? sorted : std::vector<int>();
}

std::vector<int> GridSurface::Data::orderByTexts(const CellRange& block, int code,
                                                 const std::vector<RowId>& ids) const {
    std::vector<SortKeys> keys;
    for (int col = block.left; col <= block.right; ++col)
        keys.push_back(cellSortKeys(cells, ids, columns.id(col), code, columns.at(col).dataType));
    return orderByKeys(static_cast<int>(ids.size()), keys, isDescending(code));
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
    d->rows.touch(block.bottom);

    std::vector<int> sorted = code == kSortCustom ? d->customOrder(block) : std::vector<int>();
    if (code == kSortCustom && sorted.empty())
        return;
    const std::vector<RowId> ids = d->rows.ids(block.top, count);
    if (code != kSortCustom)
        sorted = d->orderByTexts(block, code, ids);
    std::vector<RowId> inOrder;
    inOrder.reserve(ids.size());
    for (const int row : sorted)
        inOrder.push_back(ids[static_cast<std::size_t>(row)]);
    d->rows.reorder(block.top, inOrder);
    d->news.changed();
}

} // namespace zkp
