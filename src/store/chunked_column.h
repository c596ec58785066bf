#pragma once

#include "store/chunk.h"
#include "store/text_dictionary.h"

#include <vector>

namespace zkp::store {

/// A column as a sequence of chunks, each in the encoding that suits its rows.
class ChunkedColumn final : public Column {
public:
    ChunkedColumn(std::vector<ChunkPtr> chunks, std::size_t rows,
                  std::shared_ptr<const TextDictionary> texts);

    std::size_t size() const override { return rows_; }
    ValueKind kind(std::size_t row) const override { return at(row).kind(row & kMask); }
    std::int64_t integer(std::size_t row) const override { return at(row).integer(row & kMask); }
    Currency amount(std::size_t row) const override { return {at(row).integer(row & kMask)}; }
    double real(std::size_t row) const override { return at(row).real(row & kMask); }
    std::int64_t milliseconds(std::size_t row) const override { return at(row).integer(row & kMask); }
    std::string_view bytes(std::size_t row) const override { return at(row).bytes(row & kMask); }
    std::uint32_t textCode(std::size_t row) const override { return at(row).textCode(row & kMask); }
    std::uint32_t textCodes() const override { return texts_ ? texts_->size() : 0; }
    std::size_t memoryUsed() const override;

    const std::vector<ChunkPtr>& chunks() const { return chunks_; }
    const std::shared_ptr<const TextDictionary>& texts() const { return texts_; }

private:
    static constexpr std::size_t kMask = kChunkRows - 1;
    const Chunk& at(std::size_t row) const { return *chunks_[row >> kChunkBits]; }

    std::vector<ChunkPtr> chunks_;
    std::size_t rows_;
    std::shared_ptr<const TextDictionary> texts_;
};

} // namespace zkp::store
