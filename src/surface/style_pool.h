#pragma once

#include "surface/style.h"

#include <QStringList>

#include <array>
#include <bitset>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace zkp {

/// Names a set of attributes in a StylePool; 0 is the empty set.
using StyleSetId = std::uint32_t;

enum StyleAttribute : std::uint8_t {
    kStyleBack,
    kStyleFore,
    kStyleFontName,
    kStyleFontSize,
    kStyleBold,
    kStyleItalic,
    kStyleUnderline,
    kStyleStrikethru,
    kStyleAttributes // how many there are
};

/// Some attributes of cells, each with the number of the write that gave it (0: not given) and its origin.
struct StyleSet {
    std::array<std::uint64_t, kStyleAttributes> stamps{};
    Color back = 0;
    Color fore = 0;
    std::uint32_t fontName = 0; ///< number in the pool's list of names
    double fontSize = 0;
    std::array<bool, kStyleAttributes> flags{}; ///< bold and the three after it
    std::bitset<kStyleAttributes> marks;        ///< set where the write was a mark

    bool operator==(const StyleSet&) const = default;
};

/// Every different set of attributes once, so that a cell or row needs no more than its number.
class StylePool {
public:
    const StyleSet& at(StyleSetId id) const { return sets_[id]; }
    /// True when a write of that number gave the set one of its attributes.
    bool hasStamp(StyleSetId id, std::uint64_t stamp) const;
    const QString& fontName(std::uint32_t number) const { return names_[static_cast<qsizetype>(number)]; }
    /// The set that `id` becomes when the patch is written over it under that number.
    StyleSetId patched(StyleSetId id, const StylePatch& patch, StyleOrigin origin, std::uint64_t stamp);

    /// Sets in use or not yet collected, the empty one included.
    std::size_t size() const { return index_.size() + 1; }
    /// Frees the sets that are not marked in `used` (one flag per number below `limit`).
    void collect(const std::vector<bool>& used);
    StyleSetId limit() const { return static_cast<StyleSetId>(sets_.size()); }
    /// True for the empty set and for those that are not free.
    bool holds(StyleSetId id) const;
    void clear();

private:
    StyleSetId intern(const StyleSet& set);
    std::uint32_t nameNumber(const QString& name);

    std::vector<StyleSet> sets_{StyleSet{}};
    std::vector<StyleSetId> free_;
    std::unordered_multimap<std::size_t, StyleSetId> index_; // by hash
    QStringList names_;
};

} // namespace zkp
