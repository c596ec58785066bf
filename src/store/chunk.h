#pragma once

#include "store/column.h"

namespace zkp::store {

/// Rows of a column that share one encoding: all chunks but the last hold exactly this many.
inline constexpr std::size_t kChunkBits = 14;
inline constexpr std::size_t kChunkRows = std::size_t(1) << kChunkBits;

/// Values of consecutive rows in one encoding, immutable. Rows count from the chunk's start.
class Chunk {
public:
    virtual ~Chunk() = default;
    virtual std::size_t size() const = 0;
    virtual ValueKind kind(std::size_t row) const = 0;
    /// Boolean, Integer, Amount (scaled) and Date (milliseconds) values.
    virtual std::int64_t integer(std::size_t) const { return 0; }
    /// Double values.
    virtual double real(std::size_t) const { return 0; }
    /// Text and Binary values.
    virtual std::string_view bytes(std::size_t) const { return {}; }
    virtual std::uint32_t textCode(std::size_t) const { return Column::kNoTextCode; }
    virtual std::size_t memoryUsed() const = 0;
};

using ChunkPtr = std::shared_ptr<const Chunk>;

} // namespace zkp::store
