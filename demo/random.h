#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace zkp::demo {

/// SplitMix64. The standard library's distributions differ from platform to platform, and the data
/// must not; so all choices are made here, in whole numbers. Never draw twice within the arguments of
/// one call: their order is the compiler's.
class Random {
public:
    /// `stream` keeps tables apart, so that a change in one does not shift the data of the others.
    Random(std::uint32_t seed, std::uint32_t stream)
        : state_((std::uint64_t{stream} << 32) | seed) {}

    /// A number from 0 to `count` - 1; `count` is at least 1.
    int below(int count) {
        return static_cast<int>(((next() >> 32) * static_cast<std::uint64_t>(count)) >> 32);
    }

    /// A number from `low` to `high`, both included.
    int between(int low, int high) { return low + below(high - low + 1); }

    /// The smaller of two draws: the first ones are met far more often than the last.
    int lowBelow(int count) {
        const int first = below(count);
        const int second = below(count);
        return first < second ? first : second;
    }

    /// True that many times in a thousand.
    bool chance(int inThousand) { return below(1000) < inThousand; }

    template <typename Value, std::size_t Count>
    const Value& pick(const std::array<Value, Count>& values) {
        return values[static_cast<std::size_t>(below(static_cast<int>(Count)))];
    }

private:
    std::uint64_t next() {
        state_ += 0x9E3779B97F4A7C15u;
        std::uint64_t mixed = state_;
        mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9u;
        mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBu;
        return mixed ^ (mixed >> 31);
    }

    std::uint64_t state_;
};

} // namespace zkp::demo
