#include "platform/property_bag.h"

#include "base/error.h"
#include "base/text.h"
#include "platform/property_bag_bytes.h"

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
    unify(value);
    const auto [place, isNew] = placeFor(key);
    if (isNew)
        entries_.push_back({key, std::move(value)});
    else
        entries_[place].value = std::move(value);
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
    if (!placeFor(key).isNew)
        return false;
    unify(value);
    entries_.push_back({key, std::move(value)});
    return true;
}

PropertyBag::Place PropertyBag::placeFor(const QString& key) {
    checkKey(key);
    const qsizetype before = places_.size();
    std::size_t& place = places_[upper(key)];
    const bool isNew = places_.size() != before;
    if (isNew)
        place = entries_.size();
    return {place, isNew};
}

BagValue PropertyBag::ReadProperty(QStringView key, const BagValue& fallback) const {
    const BagValue* held = find(key);
    return held ? *held : fallback;
}

const BagValue* PropertyBag::find(QStringView key) const {
    const auto known = places_.constFind(upper(key));
    return known == places_.cend() ? nullptr : &entries_[*known].value;
}

void PropertyBag::reserve(std::size_t count) {
    entries_.reserve(count);
    places_.reserve(static_cast<qsizetype>(count));
}

void PropertyBag::remove(const QString& key) {
    const auto known = places_.constFind(upper(key));
    if (known == places_.cend())
        return;
    const std::size_t place = *known;
    places_.erase(known);
    entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(place));
    for (std::size_t& later : places_) {
        if (later > place)
            --later;
    }
}

QByteArray PropertyBag::Contents() const {
    return bagBytes(*this);
}

void PropertyBag::setContents(QByteArrayView bytes) {
    *this = bagFromBytes(bytes);
}

} // namespace zkp
