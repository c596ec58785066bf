#include "bag/property_value.h"

#include "base/error.h"
#include "base/number.h"

#include <cmath>
#include <limits>
#include <optional>

namespace zkp {

namespace {

template <class T>
constexpr bool isNumeric = std::is_arithmetic_v<T>;

/// Nothing when the value is no number.
std::optional<double> numberIn(const BagValue& value) {
    return std::visit(
        []<class T>(const T& held) -> std::optional<double> {
            if constexpr (std::is_same_v<T, bool>)
                return held ? -1 : 0;
            else if constexpr (std::is_same_v<T, Color>)
                return static_cast<std::int32_t>(held);
            else if constexpr (isNumeric<T>)
                return held;
            else
                return std::nullopt;
        },
        value);
}

[[noreturn]] void mismatch(const QString& what) {
    throw Error(kErrTypeMismatch, QStringLiteral("%1: Type mismatch").arg(what));
}

[[noreturn]] void overflow(const QString& what) {
    throw Error(kErrOverflow, QStringLiteral("%1: Overflow").arg(what));
}

double numberOf(const BagValue& value, const QString& what) {
    const std::optional<double> number = numberIn(value);
    if (!number)
        mismatch(what);
    return *number;
}

double wholeOf(const BagValue& value, const QString& what, double lowest, double highest) {
    const double rounded = roundHalfEven(numberOf(value, what));
    if (!(rounded >= lowest && rounded <= highest))
        overflow(what);
    return rounded;
}

template <class Integer>
Integer integerOf(const BagValue& value, const QString& what) {
    using Limits = std::numeric_limits<Integer>;
    return static_cast<Integer>(wholeOf(value, what, Limits::min(), Limits::max()));
}

template <class T>
T heldBy(const BagValue& value, const QString& what) {
    const T* held = std::get_if<T>(&value);
    if (!held)
        mismatch(what);
    return *held;
}

} // namespace

bool sameValue(const BagValue& a, const BagValue& b) {
    if (a.index() == b.index())
        return a == b;
    const std::optional<double> first = numberIn(a);
    const std::optional<double> second = numberIn(b);
    return first && second && *first == *second;
}

template <>
bool valueAs<bool>(const BagValue& value, const QString& what) {
    return numberOf(value, what) != 0;
}

template <>
std::int16_t valueAs<std::int16_t>(const BagValue& value, const QString& what) {
    return integerOf<std::int16_t>(value, what);
}

template <>
std::int32_t valueAs<std::int32_t>(const BagValue& value, const QString& what) {
    return integerOf<std::int32_t>(value, what);
}

template <>
float valueAs<float>(const BagValue& value, const QString& what) {
    const double number = numberOf(value, what);
    const auto single = static_cast<float>(number);
    if (std::isinf(single) && !std::isinf(number))
        overflow(what);
    return single;
}

template <>
double valueAs<double>(const BagValue& value, const QString& what) {
    return numberOf(value, what);
}

template <>
QString valueAs<QString>(const BagValue& value, const QString& what) {
    return heldBy<QString>(value, what);
}

/// A colour's 32 bits may have been written with a sign or without one.
template <>
Color valueAs<Color>(const BagValue& value, const QString& what) {
    return static_cast<Color>(static_cast<std::int64_t>(
        wholeOf(value, what, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<Color>::max())));
}

template <>
BagFont valueAs<BagFont>(const BagValue& value, const QString& what) {
    return heldBy<BagFont>(value, what);
}

} // namespace zkp
