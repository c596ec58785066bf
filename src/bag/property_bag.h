#pragma once

#include "bag/key_index.h"
#include "bag/property_value.h"

#include <QByteArray>

#include <memory>
#include <vector>

namespace zkp {

/// Bytes or a text that are no property bag, are damaged, or come from a later version.
constexpr std::uint32_t kErrInvalidFormat = 321;

/// A keyed store of typed values: what the control's shape is saved in. Keys are looked up without
/// regard to case, and stand in the order in which they were first written, as they were then spelt.
class PropertyBag {
public:
    struct Entry {
        QString key;
        BagValue value;
    };

    /// Stores the value under the key, in place of what stood there. Error kErrInvalidCall for an empty
    /// key and for one of more than kLongestKey units.
    void WriteProperty(const QString& key, BagValue value);
    /// The same, but a value equal to `elidedAt` (see sameValue) isn't stored; nothing stands under the
    /// key then.
    void WriteProperty(const QString& key, BagValue value, const BagValue& elidedAt);
    /// Stores the value unless something stands under the key; tells whether it did.
    bool add(const QString& key, BagValue value);

    /// What stands under the key, in the type it was written in, or else the default.
    BagValue ReadProperty(QStringView key, const BagValue& fallback) const;
    /// The same, turned into the default's type as `valueAs` does, with its errors.
    template <class T>
    T read(QStringView key, const T& fallback) const {
        const BagValue* held = find(key);
        return held ? valueAs<T>(*held, key.toString()) : fallback;
    }
    /// What stands under the key; null when nothing does. Valid until the bag is changed.
    const BagValue* find(QStringView key) const;

    const std::vector<Entry>& entries() const { return entries_; }
    /// Makes room in advance.
    void reserve(std::size_t count);

    /// The whole bag as bytes, see docs/template-format.md. The same keys and values give the
    /// same bytes, in whatever order they were written.
    QByteArray Contents() const;
    /// Replaces the bag by what the bytes hold; no bytes at all are an empty bag. Error
    /// kErrInvalidFormat, which leaves the bag as it was, when they aren't such bytes or are damaged.
    void setContents(QByteArrayView bytes);

    /// In UTF-16 units.
    static constexpr qsizetype kLongestKey = 0xFFFF;

private:
    std::uint32_t placeOf(QStringView key, std::uint32_t hash) const;
    void append(const QString& key, std::uint32_t hash, BagValue&& value);
    void remove(QStringView key);

    std::vector<Entry> entries_;
    KeyIndex places_; ///< of the entries
};

using PropertyBagPtr = std::shared_ptr<PropertyBag>;

} // namespace zkp
