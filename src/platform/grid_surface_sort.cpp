#include "platform/grid_surface.h"

#include "base/error.h"
#include "base/number.h"
#include "base/scope_guard.h"
#include "platform/cell_text.h"
#include "platform/grid_surface_data.h"

#include <algorithm>
#include <unordered_map>

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

/// For each column of records the numbers that its repeated texts have among the texts of a sort.
class TextCodeNumbers {
public:
    static constexpr int kUnknown = -1;

    /// The place for a code's number; `column` most often is that of the cell before.
    int& of(const store::Column& column, std::uint32_t code) {
        if (&column != last_) {
            numbers_ = &tables_[&column];
            numbers_->resize(column.textCodes(), kUnknown);
            last_ = &column;
        }
        return (*numbers_)[code];
    }

private:
    std::unordered_map<const store::Column*, std::vector<int>> tables_;
    const store::Column* last_ = nullptr;
    std::vector<int>* numbers_ = nullptr;
};

} // namespace

template <class F>
void GridSurface::Data::forEachCell(int top, int count, int col, F f) const {
    const ColumnId column = columns.id(col);
    order.forEachRun(top, count, [&](const RowRun& run) {
        const RowId end = run.first + static_cast<RowId>(run.count);
        for (RowId id = run.first; id < end; ++id) {
            const RowRecord& record = rows.at(id);
            f(record.record, texts.has(id, column) ? nullptr : bindingOf(record, column));
        }
    });
}

SortKeys GridSurface::Data::columnNumbers(int top, int count, int col) const {
    SortKeys keys;
    keys.reserve(static_cast<std::size_t>(count));
    forEachCell(top, count, col, [&](std::uint32_t record, const CellBinding* binding) {
        std::optional<double> number = binding ? boundNumber(*binding, record) : std::nullopt;
        if (!number)
            number = toNumber(cellText(top + static_cast<int>(keys.size()), col), locale);
        keys.push_back(number.value_or(0));
    });
    return keys;
}

/// A text that the records keep once is made once.
DistinctTexts GridSurface::Data::columnTexts(int top, int count, int col) const {
    DistinctTexts distinct;
    distinct.ofRow.reserve(static_cast<std::size_t>(count));
    TextCodeNumbers known;
    forEachCell(top, count, col, [&](std::uint32_t record, const CellBinding* binding) {
        const auto text = [&] { return cellText(top + static_cast<int>(distinct.ofRow.size()), col); };
        const bool showsText = binding && binding->format == CellFormat::OwnText && binding->column &&
                               record < binding->column->size();
        const std::uint32_t code = showsText ? binding->column->textCode(record) : store::Column::kNoTextCode;
        if (code == store::Column::kNoTextCode) {
            distinct.ofRow.push_back(distinct.numberOf(text()));
            return;
        }
        int& number = known.of(*binding->column, code);
        if (number == TextCodeNumbers::kUnknown)
            number = distinct.numberOf(text());
        distinct.ofRow.push_back(number);
    });
    return distinct;
}

SortKeys GridSurface::Data::sortKeys(int code, int top, int count, int col) const {
    const bool generic = code <= kSortGenericDown;
    if (code == kSortNumericUp || code == kSortNumericDown ||
        (generic && columns.at(col).dataType == kCurrencyType))
        return columnNumbers(top, count, col);
    if (generic) {
        const NumberOfRow number = [&](int i) { return cellNumber(top + i, col); };
        const TextOfRow text = [&](int i) { return cellText(top + i, col); };
        if (const std::optional<SortKeys> keys = numberKeysOfAll(count, number, text))
            return *keys;
    }
    return textKeys(columnTexts(top, count, col), locale, code >= kSortTextUp);
}

/// The rows of a block by the owner's comparison. Empty, for the order that there is, when it has none or
/// when it added or removed rows, so that the order found is of rows that are no more.
std::vector<int> GridSurface::Data::customOrder(const CellRange& block) {
    const auto begin = surface.notifications.compare;
    const std::uint64_t before = orderChanges;
    const RowCompare compare = begin ? begin(block.top, block.bottom) : RowCompare();
    if (!compare)
        return {};
    std::vector<int> sorted = orderByCompare(
        block.bottom - block.top + 1, [&](int a, int b) { return compare(block.top + a, block.top + b); });
    return orderChanges == before ? sorted : std::vector<int>();
}

void GridSurface::Data::putInOrder(int top, const std::vector<int>& sorted) {
    std::vector<RowId> before;
    before.reserve(sorted.size());
    order.forEachRun(top, static_cast<int>(sorted.size()), [&](const RowRun& run) {
        for (int i = 0; i < run.count; ++i)
            before.push_back(run.first + static_cast<RowId>(i));
    });
    std::vector<RowId> ids;
    ids.reserve(sorted.size());
    for (const int row : sorted)
        ids.push_back(before[static_cast<std::size_t>(row)]);
    order.replace(top, ids);
    ++orderChanges;
    costs.rowsTouched += static_cast<std::int64_t>(sorted.size());
    changed();
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
        sorted = d->customOrder(block);
    } else {
        std::vector<SortKeys> keys;
        for (int col = block.left; col <= block.right; ++col)
            keys.push_back(d->sortKeys(code, block.top, count, col));
        sorted = orderByKeys(count, keys, isDescending(code));
    }
    if (!sorted.empty())
        d->putInOrder(block.top, sorted);
}

} // namespace zkp
