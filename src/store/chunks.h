#pragma once

#include "store/chunk.h"
#include "store/text_dictionary.h"

#include <span>
#include <vector>

namespace zkp::store {

/// Which rows of a chunk are null; costs nothing where none is.
class NullMap {
public:
    NullMap() = default;
    explicit NullMap(const std::vector<bool>& nulls);
    bool contains(std::size_t row) const {
        return !bits_.empty() && (bits_[row >> 6] >> (row & 63) & 1) != 0;
    }
    std::size_t memoryUsed() const { return bits_.capacity() * sizeof(std::uint64_t); }

private:
    std::vector<std::uint64_t> bits_;
};

/// All null.
ChunkPtr makeNullChunk(std::size_t rows);

/// Whole numbers of one kind, divided by a common factor where there is one (amounts mostly end in
/// full hundredths, dates at midnight) and narrowed to the width that they need. With kind Double
/// the values are doubles without a fraction.
ChunkPtr makeNumberChunk(ValueKind kind, std::span<const std::int64_t> values, const NullMap& nulls);

/// Doubles, given as their bits; as a number chunk where all of them are whole.
ChunkPtr makeDoubleChunk(std::span<const std::int64_t> bits, const NullMap& nulls);

/// Numbers of dictionary texts plus one, 0 for null, in the width that the dictionary needs.
ChunkPtr makeCodedChunk(std::span<const std::uint32_t> codes, std::shared_ptr<const TextDictionary> texts);

/// Texts or binary values one behind the other; ends[i] is where the i-th one ends.
ChunkPtr makeBytesChunk(ValueKind kind, std::span<const std::uint64_t> ends, std::span<const char> arena,
                        const NullMap& nulls);

/// Values of several kinds: a kind and eight bytes each. For texts and binary values these are the
/// place in the arena, where a 64-bit length stands before the bytes; for doubles their bits.
ChunkPtr makeMixedChunk(std::span<const ValueKind> kinds, std::span<const std::int64_t> payloads,
                        std::span<const char> arena);

} // namespace zkp::store
