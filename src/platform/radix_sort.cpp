#include "platform/radix_sort.h"

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

/// Numbers without a sign in the order of the doubles. Places and amounts become small ones, so that
/// few digits are left to sort by.
std::vector<std::uint64_t> orderedBits(const std::vector<double>& keys) {
    constexpr double kAmountScale = 10'000;
    std::vector<std::uint64_t> bits(keys.size());
    const auto fill = [&](auto bitsOf) { std::transform(keys.begin(), keys.end(), bits.begin(), bitsOf); };
    for (const double scale : {1.0, kAmountScale})
        if (areWhole(keys, scale)) {
            fill([scale](double key) { return static_cast<std::uint64_t>(nearest(key * scale)) ^ kSign; });
            return bits;
        }
    fill([](double key) {
        const auto raw = std::bit_cast<std::uint64_t>(key + 0.0); // -0 becomes 0
        return (raw & kSign) != 0 ? ~raw : raw | kSign;
    });
    return bits;
}

/// The key beside its row, so that a pass reads and writes in one place.
struct Keyed {
    std::uint64_t key;
    int row;
};

/// From the last digit to the first, each pass stable.
void sortDigits(std::vector<Keyed>& items, std::uint64_t largest) {
    constexpr unsigned kDigitBits = 11;
    constexpr std::size_t kDigits = std::size_t{1} << kDigitBits;
    std::vector<Keyed> sorted(items.size());
    for (unsigned shift = 0; shift < 64 && largest >> shift != 0; shift += kDigitBits) {
        const auto digit = [shift](const Keyed& item) { return item.key >> shift & (kDigits - 1); };
        std::array<std::size_t, kDigits> starts{};
        for (const Keyed& item : items)
            ++starts[digit(item)];
        std::size_t next = 0;
        for (std::size_t& start : starts)
            next += std::exchange(start, next);
        for (const Keyed& item : items)
            sorted[starts[digit(item)]++] = item;
        items.swap(sorted);
    }
}

} // namespace

void sortByKey(std::vector<int>& rows, const std::vector<double>& keys, bool descending) {
    if (rows.empty())
        return;
    const std::vector<std::uint64_t> bits = orderedBits(keys);
    const auto [low, high] = std::minmax_element(bits.begin(), bits.end());
    std::vector<Keyed> items;
    items.reserve(rows.size());
    for (const int row : rows) {
        const std::uint64_t key = bits[static_cast<std::size_t>(row)];
        items.push_back({descending ? *high - key : key - *low, row});
    }
    sortDigits(items, *high - *low);
    std::transform(items.begin(), items.end(), rows.begin(), [](const Keyed& item) { return item.row; });
}

} // namespace zkp
