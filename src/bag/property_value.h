#pragma once

#include "base/bag_font.h"
#include "base/color.h"

#include <QString>

#include <cstdint>
#include <variant>

namespace zkp {

/// What a property bag can hold: Boolean, 16- and 32-bit integer, single, double, text, colour, font.
using BagValue = std::variant<bool, std::int16_t, std::int32_t, float, double, QString, Color, BagFont>;

/// Equal by value, whatever the types of two numbers: True is -1, a colour is its 32 bits with a sign.
/// Texts are compared with their case; values of different kinds are never equal.
bool sameValue(const BagValue& a, const BagValue& b);

/// The value as a member's type takes it. Numbers become one another: to integers half to even, to
/// Boolean by being other than 0, True is -1. A text or a font becomes nothing else, and nothing else
/// becomes one. Error kErrTypeMismatch, or kErrOverflow out of range, with `what` in its description.
template <class T>
T valueAs(const BagValue& value, const QString& what);

// clang-format off
template <> bool valueAs<bool>(const BagValue& value, const QString& what);
template <> std::int16_t valueAs<std::int16_t>(const BagValue& value, const QString& what);
template <> std::int32_t valueAs<std::int32_t>(const BagValue& value, const QString& what);
template <> float valueAs<float>(const BagValue& value, const QString& what);
template <> double valueAs<double>(const BagValue& value, const QString& what);
template <> QString valueAs<QString>(const BagValue& value, const QString& what);
template <> Color valueAs<Color>(const BagValue& value, const QString& what);
template <> BagFont valueAs<BagFont>(const BagValue& value, const QString& what);
// clang-format on

} // namespace zkp
