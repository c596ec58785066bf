#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace zkp::store {

/// Different texts of one column, each kept once and known by its number from 0.
class TextDictionary {
public:
    std::uint32_t size() const { return static_cast<std::uint32_t>(ends_.size()); }
    std::string_view text(std::uint32_t code) const {
        const std::uint32_t start = code == 0 ? 0 : ends_[code - 1];
        return {arena_.data() + start, ends_[code] - start};
    }
    /// Adds a text that is not there yet. The caller keeps the whole below 4 GB.
    std::uint32_t add(std::string_view text);
    std::size_t bytes() const { return arena_.size(); }
    std::size_t memoryUsed() const { return arena_.capacity() + ends_.capacity() * sizeof(std::uint32_t); }
    void shrink();

private:
    std::vector<char> arena_;
    std::vector<std::uint32_t> ends_;
};

/// Finds the number of a text while a column is being filled: a hash table over a dictionary.
class TextLookup {
public:
    explicit TextLookup(TextDictionary& dictionary)
        : dictionary_(&dictionary) {}
    std::uint32_t findOrAdd(std::string_view text);

private:
    struct Slot {
        std::uint32_t hash;
        std::uint32_t code; ///< plus one; 0 is an empty slot
    };
    void grow();

    TextDictionary* dictionary_;
    std::vector<Slot> slots_;
    std::uint32_t last_ = UINT32_MAX; ///< sorted results repeat the text before
};

} // namespace zkp::store
