#pragma once

#include <QString>

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace zkp {

/// Where a written text is: nowhere, in the reference itself (up to 7 bytes), or in the arena.
class TextRef {
public:
    bool operator==(const TextRef&) const = default;
    bool isNone() const { return bits_ == 0; }

private:
    friend class TextArena;
    bool isInline() const { return (bits_ & 1) != 0; }
    bool isStored() const { return bits_ != 0 && !isInline(); }
    // Inline: bit 0 set, length in bits 1 to 3, then 7 bytes. Stored: (place + 1) in the bits from 1 up.
    std::uint64_t bits_ = 0;
};

/// Texts as UTF-8 bytes in large chunks, none of them an allocation of its own save the very long.
class TextArena {
public:
    /// The longest text, in bytes; a longer one is Error kErrOverflow.
    static constexpr std::size_t kMaxBytes = 0x7FFFFFF0;

    TextRef store(std::string_view utf8);
    /// Stores in the place of `old` when it fits there, else elsewhere and releases `old`.
    TextRef rewrite(TextRef old, std::string_view utf8);
    void release(TextRef ref);
    QString text(TextRef ref) const;
    /// The same text in another arena.
    TextRef copyTo(TextArena& other, TextRef ref) const;

    /// Bytes in use, and bytes that releases have left unused.
    std::size_t liveBytes() const { return live_; }
    std::size_t deadBytes() const { return dead_; }

private:
    struct Chunk {
        std::unique_ptr<char[]> bytes;
        std::uint32_t size = 0;
        std::uint32_t used = 0;
    };
    static constexpr std::uint32_t kChunkBytes = 1u << 18;
    static constexpr std::uint32_t kLargeBytes = 1u << 14; ///< from here on a text has a chunk to itself

    char* reserve(std::uint32_t size, std::uint64_t& place);
    char* at(TextRef ref) const;

    std::vector<Chunk> chunks_;
    std::vector<std::uint32_t> freeChunks_; ///< numbers of chunks whose one large text is gone
    std::uint32_t open_ = 0;                ///< number + 1 of the chunk that small texts go to
    std::size_t live_ = 0;
    std::size_t dead_ = 0;
};

} // namespace zkp
