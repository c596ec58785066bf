#include "surface/cell_sort_keys.h"

#include <algorithm>
#include <unordered_map>

namespace zkp {

namespace {

using RowIds = std::span<const RowId>;

constexpr int kCurrencyType = 6; // ColDataType

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

/// f(i, ids[i]) in the order in which the rows lie in memory, as far as it differs: rows that an earlier
/// sort has mixed are read one behind the other nevertheless.
template <class F>
void forEachInMemoryOrder(RowIds ids, F f) {
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

SortKeys columnNumbers(const SurfaceCells& cells, RowIds ids, ColumnId column) {
    SortKeys keys(ids.size());
    forEachInMemoryOrder(ids,
                         [&](std::size_t i, RowId id) { keys[i] = cells.numberOf(id, column).value_or(0); });
    return keys;
}

/// The same, when every text is a number or blank.
std::optional<SortKeys> numbersOfAll(const SurfaceCells& cells, RowIds ids, ColumnId column) {
    SortKeys keys;
    keys.reserve(ids.size());
    for (const RowId id : ids) {
        const std::optional<double> number = cells.numberOf(id, column);
        if (!number && !cells.isBlank(id, column))
            return std::nullopt;
        keys.push_back(number.value_or(0));
    }
    return keys;
}

/// A text that the records keep once is made once.
DistinctTexts columnTexts(const SurfaceCells& cells, RowIds ids, ColumnId column) {
    DistinctTexts distinct;
    distinct.ofRow.resize(ids.size());
    TextCodeNumbers known;
    forEachInMemoryOrder(ids, [&](std::size_t i, RowId id) {
        const CellBinding* source = cells.sourceOf(id, column);
        const std::uint32_t record = cells.recordOf(id);
        if (!source || !showsStoredText(*source, record)) {
            distinct.ofRow[i] = distinct.numberOf(cells.textOf(id, column));
            return;
        }
        const std::uint32_t code = source->column->textCode(record);
        if (code == store::Column::kNoTextCode) { // kept whole, since hardly any other row has it
            distinct.ofRow[i] = distinct.numberOfNew(cells.textOf(id, column));
            return;
        }
        int& number = known.of(*source->column, code);
        if (number == TextCodeNumbers::kUnknown)
            number = distinct.numberOfNew(cells.textOf(id, column));
        distinct.ofRow[i] = number;
    });
    return distinct;
}

} // namespace

SortKeys cellSortKeys(const SurfaceCells& cells, RowIds ids, ColumnId column, int code, int dataType) {
    const bool generic = code <= kSortGenericDown;
    const bool numeric = code == kSortNumericUp || code == kSortNumericDown;
    if (numeric || (generic && dataType == kCurrencyType))
        return columnNumbers(cells, ids, column);
    if (generic)
        if (const std::optional<SortKeys> numbers = numbersOfAll(cells, ids, column))
            return *numbers;
    return textKeys(columnTexts(cells, ids, column), cells.locale, code >= kSortTextUp);
}

} // namespace zkp
