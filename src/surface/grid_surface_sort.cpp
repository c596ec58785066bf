#include "surface/grid_surface.h"

#include "base/error.h"
#include "base/scope_guard.h"
#include "surface/grid_surface_data.h"

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

/// Whether the cell shows a text just as the record has it.
bool showsStoredText(const CellBinding& binding, std::uint32_t record) {
    return binding.format == CellFormat::OwnText && binding.column && record < binding.column->size() &&
           binding.column->kind(record) == store::ValueKind::Text;
}

} // namespace

/// f(i, ids[i]) in the order in which the rows lie in memory, as far as it differs: rows that an earlier
/// sort has mixed are read one behind the other nevertheless.
template <class F>
void GridSurface::Data::forEachInMemoryOrder(RowIds ids, F f) {
    const auto [low, high] = std::minmax_element(ids.begin(), ids.end());
    const std::size_t span = *high - *low + 1;
    const bool isMixed = !std::is_sorted(ids.begin(), ids.end());
    if (!isMixed || span / 4 > ids.size()) { // not for a few rows out of many
        for (std::size_t i = 0; i < ids.size(); ++i)
            f(i, ids[i]);
        return;
    }
    constexpr std::uint32_t kNone = UINT32_MAX;
    std::vector<std::uint32_t> placeOf(span, kNone);
    for (std::size_t i = 0; i < ids.size(); ++i)
        placeOf[ids[i] - *low] = static_cast<std::uint32_t>(i);
    for (std::size_t at = 0; at < span; ++at)
        if (placeOf[at] != kNone)
            f(placeOf[at], *low + static_cast<RowId>(at));
}

SortKeys GridSurface::Data::columnNumbers(RowIds ids, ColumnId column) const {
    SortKeys keys(ids.size());
    forEachInMemoryOrder(ids, [&](std::size_t i, RowId id) { keys[i] = numberOf(id, column).value_or(0); });
    return keys;
}

/// The same, when every text is a number or blank.
std::optional<SortKeys> GridSurface::Data::numbersOfAll(RowIds ids, ColumnId column) const {
    SortKeys keys;
    keys.reserve(ids.size());
    for (const RowId id : ids) {
        const std::optional<double> number = numberOf(id, column);
        if (!number && !isCellBlank(id, column))
            return std::nullopt;
        keys.push_back(number.value_or(0));
    }
    return keys;
}

/// A text that the records keep once is made once.
DistinctTexts GridSurface::Data::columnTexts(RowIds ids, ColumnId column) const {
    DistinctTexts distinct;
    distinct.ofRow.resize(ids.size());
    TextCodeNumbers known;
    forEachInMemoryOrder(ids, [&](std::size_t i, RowId id) {
        const RowRecord& row = rows.at(id);
        const CellBinding* binding = texts.has(id, column) ? nullptr : bindingOf(row, column);
        if (!binding || !showsStoredText(*binding, row.record)) {
            distinct.ofRow[i] = distinct.numberOf(textOf(id, column));
            return;
        }
        const std::uint32_t code = binding->column->textCode(row.record);
        if (code == store::Column::kNoTextCode) { // kept whole, since hardly any other row has it
            distinct.ofRow[i] = distinct.numberOfNew(textOf(id, column));
            return;
        }
        int& number = known.of(*binding->column, code);
        if (number == TextCodeNumbers::kUnknown)
            number = distinct.numberOfNew(textOf(id, column));
        distinct.ofRow[i] = number;
    });
    return distinct;
}

SortKeys GridSurface::Data::sortKeys(int code, RowIds ids, int col) const {
    const ColumnId column = columns.id(col);
    const bool generic = code <= kSortGenericDown;
    if (code == kSortNumericUp || code == kSortNumericDown ||
        (generic && columns.at(col).dataType == kCurrencyType))
        return columnNumbers(ids, column);
    if (generic)
        if (const std::optional<SortKeys> numbers = numbersOfAll(ids, column))
            return *numbers;
    return textKeys(columnTexts(ids, column), locale, code >= kSortTextUp);
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

    std::vector<int> sorted = code == kSortCustom ? d->customOrder(block) : std::vector<int>();
    if (code == kSortCustom && sorted.empty())
        return;
    std::vector<RowId> ids;
    ids.reserve(static_cast<std::size_t>(count));
    d->order.forEachRun(block.top, count, [&](const RowRun& run) {
        for (int i = 0; i < run.count; ++i)
            ids.push_back(run.first + static_cast<RowId>(i));
    });
    if (code != kSortCustom) {
        std::vector<SortKeys> keys;
        for (int col = block.left; col <= block.right; ++col)
            keys.push_back(d->sortKeys(code, ids, col));
        sorted = orderByKeys(count, keys, isDescending(code));
    }
    std::vector<RowId> inOrder;
    inOrder.reserve(ids.size());
    for (const int row : sorted)
        inOrder.push_back(ids[static_cast<std::size_t>(row)]);
    d->order.replace(block.top, inOrder);
    ++d->orderChanges;
    d->costs.rowsTouched += count;
    d->changed();
}

} // namespace zkp
