#include "surface/radix_sort.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <utility>

namespace zkp {

namespace {

constexpr std::uint64_t kSign = std::uint64_t{1} << 63;

std::int64_t nearest(double value) {
    return static_cast<std::int64_t>(value < 0 ? value - 0.5 : value + 0.5);
}

/// Whether each key times `scale` is a whole number that a double tells from its neighbours.
bool areWhole(const std::vector<double>& keys, double scale) {
    constexpr double kExact = 1e15;
    return std::all_of(keys.begin(), keys.end(), [scale](double key) {
        const double scaled = key * scale;
        return std::abs(scaled) < kExact && static_cast<double>(nearest(scaled)) / scale == key;
    });
}

/// A key beside its row, so that a pass reads and writes in one place.
struct WideItem {
    WideItem() = default;
    WideItem(std::uint64_t key, int row)
        : key_(key)
        , row_(row) {}
    std::uint64_t key() const { return key_; }
    int row() const { return row_; }

private:
    std::uint64_t key_ = 0;
    int row_ = 0;
};

/// The same for a key of 32 bits, in half the room.
struct NarrowItem {
    NarrowItem() = default;
    NarrowItem(std::uint64_t key, int row)
        : bits_(key << 32 | static_cast<std::uint32_t>(row)) {}
    std::uint64_t key() const { return bits_ >> 32; }
    int row() const { return static_cast<int>(bits_ & UINT32_MAX); }

private:
    std::uint64_t bits_ = 0;
};

/// From the last digit to the first, each pass stable.
template <class Item>
void sortDigits(std::vector<Item>& items, std::uint64_t largest) {
    constexpr unsigned kDigitBits = 11;
    constexpr std::size_t kDigits = std::size_t{1} << kDigitBits;
    std::vector<Item> sorted(items.size());
    for (unsigned shift = 0; shift < 64 && largest >> shift != 0; shift += kDigitBits) {
        const auto digit = [shift](const Item& item) { return item.key() >> shift & (kDigits - 1); };
        std::array<std::size_t, kDigits> starts{};
        for (const Item& item : items)
            ++starts[digit(item)];
        std::size_t next = 0;
        for (std::size_t& start : starts)
            next += std::exchange(start, next);
        for (const Item& item : items)
            sorted[starts[digit(item)]++] = item;
        items.swap(sorted);
    }
}

template <class Item, class KeyOfRow>
void sortRows(std::vector<int>& rows, std::uint64_t largest, KeyOfRow keyOfRow) {
    std::vector<Item> items;
    items.reserve(rows.size());
    for (const int row : rows)
        items.emplace_back(keyOfRow(row), row);
    sortDigits(items, largest);
    std::transform(items.begin(), items.end(), rows.begin(), [](const Item& item) { return item.row(); });
}

/// `bitsOf` gives a number without a sign for each key, in the order of the keys.
template <class BitsOf>
void sortByBits(std::vector<int>& rows, const std::vector<double>& keys, bool descending, BitsOf bitsOf) {
    const auto [least, greatest] = std::minmax_element(keys.begin(), keys.end());
    const std::uint64_t low = bitsOf(*least);
    const std::uint64_t high = bitsOf(*greatest);
    const auto keyOfRow = [&](int row) {
        const std::uint64_t bits = bitsOf(keys[static_cast<std::size_t>(row)]);
        return descending ? high - bits : bits - low;
    };
    if (high - low <= UINT32_MAX)
        sortRows<NarrowItem>(rows, high - low, keyOfRow);
    else
        sortRows<WideItem>(rows, high - low, keyOfRow);
}

/// The bits of doubles stand in their order, but for the sign.
std::uint64_t orderedBits(double key) {
    const auto raw = std::bit_cast<std::uint64_t>(key + 0.0); // -0 becomes 0
    return (raw & kSign) != 0 ? ~raw : raw | kSign;
}

} // namespace

/// Places and amounts become small whole numbers first, so that few digits are left to sort by.
void sortByKey(std::vector<int>& rows, const std::vector<double>& keys, bool descending) {
    if (rows.empty())
        return;
    for (const double scale : {1.0, 100.0, 10'000.0})
        if (areWhole(keys, scale))
            return sortByBits(rows, keys, descending, [scale](double key) {
                return static_cast<std::uint64_t>(nearest(key * scale)) ^ kSign;
            });
    sortByBits(rows, keys, descending, orderedBits);
}

} // namespace zkp
