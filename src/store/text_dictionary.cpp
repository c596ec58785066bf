#include "store/text_dictionary.h"

#include <cstring>

namespace zkp::store {

namespace {

/// Eight bytes at a time, folded by multiplication: short texts are most of what is looked up.
std::uint32_t hashOf(std::string_view text) {
    constexpr std::uint64_t factor = 0x9e3779b97f4a7c15u;
    std::uint64_t hash = text.size() * factor;
    const auto mix = [&hash](std::uint64_t word) {
        hash = (hash ^ word) * factor;
        hash ^= hash >> 32;
    };
    const char* at = text.data();
    std::size_t left = text.size();
    for (; left >= 8; at += 8, left -= 8) {
        std::uint64_t word = 0;
        std::memcpy(&word, at, 8);
        mix(word);
    }
    std::uint64_t rest = 0;
    for (std::size_t i = 0; i < left; ++i)
        rest = rest << 8 | static_cast<unsigned char>(at[i]);
    mix(rest);
    return static_cast<std::uint32_t>(hash ^ hash >> 29);
}

} // namespace

std::uint32_t TextDictionary::add(std::string_view text) {
    arena_.insert(arena_.end(), text.begin(), text.end());
    ends_.push_back(static_cast<std::uint32_t>(arena_.size()));
    return size() - 1;
}

void TextDictionary::shrink() {
    arena_.shrink_to_fit();
    ends_.shrink_to_fit();
}

std::uint32_t TextLookup::findOrAdd(std::string_view text) {
    if (last_ != UINT32_MAX && dictionary_->text(last_) == text)
        return last_;
    if (dictionary_->size() * 4ull >= slots_.size() * 3ull)
        grow();

    const std::uint32_t hash = hashOf(text);
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t i = hash & mask;; i = (i + 1) & mask) {
        Slot& slot = slots_[i];
        if (slot.code == 0) {
            last_ = dictionary_->add(text);
            slot = {hash, last_ + 1};
            return last_;
        }
        if (slot.hash == hash && dictionary_->text(slot.code - 1) == text)
            return last_ = slot.code - 1;
    }
}

void TextLookup::grow() {
    std::vector<Slot> larger(slots_.empty() ? 64 : slots_.size() * 2, Slot{0, 0});
    const std::size_t mask = larger.size() - 1;
    for (const Slot& slot : slots_) {
        if (slot.code == 0)
            continue;
        std::size_t i = slot.hash & mask;
        while (larger[i].code != 0)
            i = (i + 1) & mask;
        larger[i] = slot;
    }
    slots_ = std::move(larger);
}

} // namespace zkp::store
