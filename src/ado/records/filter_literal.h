#pragma once

#include "store/column.h"

#include <QString>

#include <compare>
#include <optional>
#include <string>

namespace zkp::ado {

/// A number that compares exactly though integers, amounts and doubles meet: the nearest double and
/// what it misses.
struct ExactNumber {
    double value = 0;
    std::int64_t rest = 0;

    static ExactNumber fromInteger(std::int64_t integer);
    static ExactNumber fromAmount(Currency amount);
    static ExactNumber fromDouble(double number) { return {number == 0 ? 0 : number, 0}; }
    auto operator<=>(const ExactNumber&) const = default;
};

/// The right side of a comparison in a filter, in each form in which a stored value may ask for it.
struct FilterLiteral {
    static FilterLiteral number(const QString& source);
    static FilterLiteral text(const QString& text);
    static FilterLiteral date(std::int64_t milliseconds);
    static FilterLiteral boolean(bool value);

    std::string key; ///< by which texts are compared (see text_compare.h)
    std::optional<double> real;
    std::optional<std::int64_t> whole;  ///< where the number has no fraction
    std::optional<std::int64_t> scaled; ///< where the number is an exact amount
    std::optional<std::int64_t> milliseconds;

    ExactNumber asIntegerSees() const;
    ExactNumber asAmountSees() const;
};

/// The moment of "mm/dd/yyyy" or "yyyy-mm-dd"; nothing for any other text.
std::optional<std::int64_t> parseFilterDate(const QString& text);

} // namespace zkp::ado
