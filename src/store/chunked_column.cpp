#include "store/chunked_column.h"

namespace zkp::store {

ChunkedColumn::ChunkedColumn(std::vector<ChunkPtr> chunks, std::size_t rows,
                             std::shared_ptr<const TextDictionary> texts)
    : chunks_(std::move(chunks))
    , rows_(rows)
    , texts_(std::move(texts)) {}

std::size_t ChunkedColumn::memoryUsed() const {
    std::size_t bytes = sizeof *this + chunks_.capacity() * sizeof(ChunkPtr);
    for (const ChunkPtr& chunk : chunks_)
        bytes += chunk->memoryUsed();
    return texts_ ? bytes + texts_->memoryUsed() : bytes;
}

} // namespace zkp::store
