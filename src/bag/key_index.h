#pragma once

#include <QStringView>

#include <cstdint>
#include <vector>

namespace zkp {

/// Finds the entries of a list by their keys, without regard to case as `upper` takes it. It holds the
/// keys' hashes and their places in the list; the list itself gives the keys. Keys in ASCII, nearly all
/// that there are, are hashed and compared without a copy.
class KeyIndex {
public:
    static constexpr std::uint32_t kNone = 0xFFFFFFFF;

    static std::uint32_t hashOf(QStringView key);
    static bool isSame(QStringView a, QStringView b);

    /// The place of the entry with the key, or kNone. `keyAt(place)` is the key of an entry.
    template <class KeyAt>
    std::uint32_t find(QStringView key, std::uint32_t hash, KeyAt keyAt) const {
        if (slots_.empty())
            return kNone;
        for (std::size_t i = hash & mask(); slots_[i].place != kNone; i = (i + 1) & mask()) {
            if (slots_[i].hash == hash && isSame(keyAt(slots_[i].place), key))
                return slots_[i].place;
        }
        return kNone;
    }
    /// Adds an entry that `find` does not find.
    void insert(std::uint32_t hash, std::uint32_t place);
    void reserve(std::size_t count);
    void clear();

private:
    struct Slot {
        std::uint32_t hash = 0;
        std::uint32_t place = kNone;
    };

    std::size_t mask() const { return slots_.size() - 1; }
    void put(Slot entry);
    void resize(std::size_t size);

    std::vector<Slot> slots_; ///< a power of two of them, at most half of them taken
    std::size_t count_ = 0;
};

} // namespace zkp
