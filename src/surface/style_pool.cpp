#include "surface/style_pool.h"

#include <algorithm>
#include <bit>

namespace zkp {

namespace {

std::size_t hashOf(const StyleSet& set) {
    std::uint64_t hash = 0x9E3779B97F4A7C15u;
    const auto mix = [&hash](std::uint64_t value) {
        hash = std::rotl((hash ^ value) * 0xFF51AFD7ED558CCDu, 29);
    };
    for (const std::uint64_t stamp : set.stamps)
        mix(stamp);
    mix(std::uint64_t{set.back} << 32 | set.fore);
    mix(set.fontName);
    mix(std::bit_cast<std::uint64_t>(set.fontSize));
    for (const bool flag : set.flags)
        mix(flag ? 2 : 1);
    mix(set.marks.to_ulong());
    return hash;
}

} // namespace

StyleSetId StylePool::patched(StyleSetId id, const StylePatch& patch, StyleOrigin origin,
                              std::uint64_t stamp) {
    StyleSet set = sets_[id];
    const auto given = [&](StyleAttribute attribute) {
        set.stamps[attribute] = stamp;
        set.marks[attribute] = origin == StyleOrigin::Mark;
    };
    const auto put = [&given](StyleAttribute attribute, const auto& value, auto& place) {
        if (!value)
            return;
        place = *value;
        given(attribute);
    };
    put(kStyleBack, patch.backColor, set.back);
    put(kStyleFore, patch.foreColor, set.fore);
    put(kStyleFontSize, patch.fontSize, set.fontSize);
    put(kStyleBold, patch.bold, set.flags[kStyleBold]);
    put(kStyleItalic, patch.italic, set.flags[kStyleItalic]);
    put(kStyleUnderline, patch.underline, set.flags[kStyleUnderline]);
    put(kStyleStrikethru, patch.strikethru, set.flags[kStyleStrikethru]);
    if (patch.fontName) {
        set.fontName = nameNumber(*patch.fontName);
        given(kStyleFontName);
    }
    return intern(set);
}

bool StylePool::hasStamp(StyleSetId id, std::uint64_t stamp) const {
    const auto& stamps = sets_[id].stamps;
    return id != 0 && std::find(stamps.begin(), stamps.end(), stamp) != stamps.end();
}

StyleSetId StylePool::intern(const StyleSet& set) {
    if (set == sets_.front())
        return 0;
    const std::size_t hash = hashOf(set);
    const auto [from, to] = index_.equal_range(hash);
    for (auto found = from; found != to; ++found)
        if (sets_[found->second] == set)
            return found->second;
    StyleSetId id;
    if (free_.empty()) {
        id = static_cast<StyleSetId>(sets_.size());
        sets_.push_back(set);
    } else {
        id = free_.back();
        free_.pop_back();
        sets_[id] = set;
    }
    index_.emplace(hash, id);
    return id;
}

std::uint32_t StylePool::nameNumber(const QString& name) {
    const qsizetype known = names_.indexOf(name);
    if (known >= 0)
        return static_cast<std::uint32_t>(known);
    names_.append(name);
    return static_cast<std::uint32_t>(names_.size() - 1);
}

void StylePool::collect(const std::vector<bool>& used) {
    for (auto entry = index_.begin(); entry != index_.end();) {
        const StyleSetId id = entry->second;
        if (id < used.size() && used[id]) {
            ++entry;
            continue;
        }
        sets_[id] = {};
        free_.push_back(id);
        entry = index_.erase(entry);
    }
}

bool StylePool::holds(StyleSetId id) const {
    return id == 0 || (id < sets_.size() && !(sets_[id] == sets_.front()));
}

void StylePool::clear() {
    *this = {};
}

} // namespace zkp
