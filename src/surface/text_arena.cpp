#include "surface/text_arena.h"

#include "base/error.h"

#include <cstring>

namespace zkp {

namespace {

constexpr std::size_t kInlineBytes = 7;
constexpr std::uint32_t kHeader = sizeof(std::uint32_t); // the text's length stands before it

/// What a text takes up: header and bytes, in steps of 8 so that a rewrite often finds room.
std::uint32_t footprint(std::size_t bytes) {
    return static_cast<std::uint32_t>((kHeader + bytes + 7) & ~std::size_t{7});
}

std::uint32_t lengthAt(const char* bytes) {
    std::uint32_t length;
    std::memcpy(&length, bytes, kHeader);
    return length;
}

void write(char* bytes, std::string_view utf8) {
    const auto length = static_cast<std::uint32_t>(utf8.size());
    std::memcpy(bytes, &length, kHeader);
    std::memcpy(bytes + kHeader, utf8.data(), utf8.size());
}

} // namespace

TextRef TextArena::store(std::string_view utf8) {
    if (utf8.size() > kMaxBytes)
        throw Error(kErrOverflow, QStringLiteral("The text is too long"));
    TextRef ref;
    if (utf8.size() <= kInlineBytes) {
        ref.bits_ = 1 | utf8.size() << 1;
        for (std::size_t i = 0; i < utf8.size(); ++i)
            ref.bits_ |= std::uint64_t{static_cast<unsigned char>(utf8[i])} << (8 * (i + 1));
        return ref;
    }
    std::uint64_t place = 0;
    char* bytes = reserve(footprint(utf8.size()), place);
    write(bytes, utf8);
    live_ += footprint(utf8.size());
    ref.bits_ = (place + 1) << 1;
    return ref;
}

TextRef TextArena::rewrite(TextRef old, std::string_view utf8) {
    if (old.isStored() && utf8.size() > kInlineBytes) {
        char* bytes = at(old);
        const std::uint32_t room = footprint(lengthAt(bytes));
        const std::uint32_t wanted = footprint(utf8.size());
        // Large texts own their chunk, so that one of another size gets another chunk.
        if (wanted == room || (wanted < room && room < kLargeBytes)) {
            write(bytes, utf8);
            live_ -= room - wanted;
            dead_ += room - wanted;
            return old;
        }
    }
    const TextRef fresh = store(utf8);
    release(old);
    return fresh;
}

void TextArena::release(TextRef ref) {
    if (!ref.isStored())
        return;
    const std::uint32_t size = footprint(lengthAt(at(ref)));
    live_ -= size;
    if (size < kLargeBytes) {
        dead_ += size;
        return;
    }
    const auto number = static_cast<std::uint32_t>(((ref.bits_ >> 1) - 1) >> 32);
    chunks_[number] = {};
    freeChunks_.push_back(number);
}

QString TextArena::text(TextRef ref) const {
    if (ref.isInline()) {
        char bytes[kInlineBytes];
        const std::size_t length = ref.bits_ >> 1 & 7;
        for (std::size_t i = 0; i < length; ++i)
            bytes[i] = static_cast<char>(ref.bits_ >> (8 * (i + 1)) & 0xFF);
        return QString::fromUtf8(bytes, static_cast<qsizetype>(length));
    }
    if (ref.isNone())
        return {};
    const char* bytes = at(ref);
    return QString::fromUtf8(bytes + kHeader, static_cast<qsizetype>(lengthAt(bytes)));
}

TextRef TextArena::copyTo(TextArena& other, TextRef ref) const {
    if (!ref.isStored())
        return ref;
    const char* bytes = at(ref);
    return other.store({bytes + kHeader, lengthAt(bytes)});
}

char* TextArena::reserve(std::uint32_t size, std::uint64_t& place) {
    const bool large = size >= kLargeBytes;
    std::uint32_t number;
    if (!large && open_ != 0 && chunks_[open_ - 1].size - chunks_[open_ - 1].used >= size) {
        number = open_ - 1;
    } else {
        if (freeChunks_.empty()) {
            number = static_cast<std::uint32_t>(chunks_.size());
            chunks_.emplace_back();
        } else {
            number = freeChunks_.back();
            freeChunks_.pop_back();
        }
        const std::uint32_t bytes = large ? size : kChunkBytes;
        chunks_[number] = {std::unique_ptr<char[]>(new char[bytes]), bytes, 0};
        if (!large)
            open_ = number + 1;
    }
    Chunk& chunk = chunks_[number];
    place = std::uint64_t{number} << 32 | chunk.used;
    char* bytes = chunk.bytes.get() + chunk.used;
    chunk.used += size;
    return bytes;
}

char* TextArena::at(TextRef ref) const {
    const std::uint64_t place = (ref.bits_ >> 1) - 1;
    return chunks_[place >> 32].bytes.get() + (place & 0xFFFFFFFFu);
}

} // namespace zkp
