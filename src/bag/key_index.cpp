#include "bag/key_index.h"

#include "base/text.h"

#include <QHashFunctions>

#include <algorithm>
#include <bit>
#include <cstring>

namespace zkp {

namespace {

constexpr qsizetype kUnitsPerWord = 4;
constexpr std::uint64_t kBeyondAscii = 0xFF80FF80FF80FF80u;
constexpr std::uint64_t kCaseBits = 0x0020002000200020u;
constexpr std::size_t kFirstSize = 64;

/// Up to four units of a text; fewer at its end.
std::uint64_t wordAt(QStringView text, qsizetype at) {
    std::uint64_t word = 0;
    if (text.size() - at >= kUnitsPerWord)
        std::memcpy(&word, text.utf16() + at, sizeof(word));
    else
        for (qsizetype i = at; i < text.size(); ++i)
            word = word << 16 | text[i].unicode();
    return word;
}

std::uint64_t mixed(std::uint64_t hash, std::uint64_t word) {
    const std::uint64_t product = (hash ^ word) * 0x9E3779B97F4A7C15u;
    return product ^ (product >> 32);
}

/// The bit that tells capitals from small letters is left out, wherever it means something else too:
/// texts that differ in nothing else have one hash and are told apart when they are compared.
std::uint64_t mixedText(std::uint64_t hash, QStringView text, std::uint64_t& seen) {
    for (qsizetype at = 0; at < text.size(); at += kUnitsPerWord) {
        const std::uint64_t word = wordAt(text, at);
        seen |= word;
        hash = mixed(hash, word & ~kCaseBits);
    }
    return mixed(hash, static_cast<std::uint64_t>(text.size()));
}

bool isAscii(QStringView text) {
    std::uint64_t all = 0;
    for (qsizetype at = 0; at < text.size(); at += kUnitsPerWord)
        all |= wordAt(text, at);
    return (all & kBeyondAscii) == 0;
}

char16_t asciiUpper(char16_t c) {
    return c >= u'a' && c <= u'z' ? static_cast<char16_t>(c - (u'a' - u'A')) : c;
}

} // namespace

std::uint32_t KeyIndex::hashOf(QStringView key) {
    static const std::uint64_t seed = QHashSeed::globalSeed();
    std::uint64_t seen = 0;
    std::uint64_t hash = mixedText(seed, key, seen);
    if ((seen & kBeyondAscii) != 0)
        hash = mixedText(seed, upper(key), seen);
    return static_cast<std::uint32_t>(hash);
}

bool KeyIndex::isSame(QStringView a, QStringView b) {
    if (a == b)
        return true;
    if (!isAscii(a) || !isAscii(b))
        return upper(a) == upper(b);
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](QChar one, QChar other) {
        return asciiUpper(one.unicode()) == asciiUpper(other.unicode());
    });
}

void KeyIndex::insert(std::uint32_t hash, std::uint32_t place) {
    if ((count_ + 1) * 2 > slots_.size())
        resize(std::max(kFirstSize, slots_.size() * 2));
    put({hash, place});
    ++count_;
}

void KeyIndex::put(Slot entry) {
    std::size_t i = entry.hash & mask();
    while (slots_[i].place != kNone)
        i = (i + 1) & mask();
    slots_[i] = entry;
}

void KeyIndex::reserve(std::size_t count) {
    const std::size_t size = std::bit_ceil(std::max(kFirstSize, count * 2));
    if (size > slots_.size())
        resize(size);
}

void KeyIndex::resize(std::size_t size) {
    const std::vector<Slot> former = std::exchange(slots_, std::vector<Slot>(size));
    for (const Slot& slot : former) {
        if (slot.place != kNone)
            put(slot);
    }
}

void KeyIndex::clear() {
    slots_.clear();
    count_ = 0;
}

} // namespace zkp
