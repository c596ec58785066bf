#include "bag/property_bag.h"

#include "bag/property_bag_bytes.h"
#include "base/error.h"

#include <cmath>
#include <limits>

namespace zkp {

namespace {

void checkKey(const QString& key) {
    if (key.isEmpty() || key.size() > PropertyBag::kLongestKey)
        throw Error(kErrInvalidCall,
                    QStringLiteral("A property's key can't have %1 characters").arg(key.size()));
}

/// There is one NaN, so that the same values give the same bytes.
void unify(BagValue& value) {
    if (auto* number = std::get_if<double>(&value); number && std::isnan(*number))
        *number = std::numeric_limits<double>::quiet_NaN();
    if (auto* single = std::get_if<float>(&value); single && std::isnan(*single))
        *single = std::numeric_limits<float>::quiet_NaN();
    if (auto* font = std::get_if<BagFont>(&value); font && std::isnan(font->size))
        font->size = std::numeric_limits<double>::quiet_NaN();
}

} // namespace

void PropertyBag::WriteProperty(const QString& key, BagValue value) {
    checkKey(key);
    unify(value);
    const std::uint32_t hash = KeyIndex::hashOf(key);
    if (const std::uint32_t place = placeOf(key, hash); place != KeyIndex::kNone)
        entries_[place].value = std::move(value);
    else
        append(key, hash, std::move(value));
}

void PropertyBag::WriteProperty(const QString& key, BagValue value, const BagValue& elidedAt) {
    if (!sameValue(value, elidedAt)) {
        WriteProperty(key, std::move(value));
        return;
    }
    checkKey(key);
    remove(key);
}

bool PropertyBag::add(const QString& key, BagValue value) {
    checkKey(key);
    unify(value);
    const std::uint32_t hash = KeyIndex::hashOf(key);
    if (placeOf(key, hash) != KeyIndex::kNone)
        return false;
    append(key, hash, std::move(value));
    return true;
}

std::uint32_t PropertyBag::placeOf(QStringView key, std::uint32_t hash) const {
    return places_.find(key, hash, [this](std::uint32_t place) { return QStringView(entries_[place].key); });
}

void PropertyBag::append(const QString& key, std::uint32_t hash, BagValue&& value) {
    entries_.emplace_back(key, std::move(value));
    places_.insert(hash, static_cast<std::uint32_t>(entries_.size() - 1));
}

BagValue PropertyBag::ReadProperty(QStringView key, const BagValue& fallback) const {
    const BagValue* held = find(key);
    return held ? *held : fallback;
}

const BagValue* PropertyBag::find(QStringView key) const {
    const std::uint32_t place = placeOf(key, KeyIndex::hashOf(key));
    return place == KeyIndex::kNone ? nullptr : &entries_[place].value;
}

void PropertyBag::reserve(std::size_t count) {
    entries_.reserve(count);
    places_.reserve(count);
}

void PropertyBag::remove(QStringView key) {
    const std::uint32_t removed = placeOf(key, KeyIndex::hashOf(key));
    if (removed == KeyIndex::kNone)
        return;
    entries_.erase(entries_.begin() + removed);
    places_.clear();
    places_.reserve(entries_.size());
    for (std::uint32_t place = 0; place < entries_.size(); ++place)
        places_.insert(KeyIndex::hashOf(entries_[place].key), place);
}

QByteArray PropertyBag::Contents() const {
    return bagBytes(*this);
}

void PropertyBag::setContents(QByteArrayView bytes) {
    *this = bagFromBytes(bytes);
}

} // namespace zkp
