#pragma once

#include "ado/records/filter_literal.h"

#include <vector>

namespace zkp::ado {

struct Records;

enum class Comparison : std::uint8_t { Equal, NotEqual, Less, Greater, LessOrEqual, GreaterOrEqual };

/// A filter that has been read: a comparison of a field, or conditions joined by "and" or "or".
struct Condition {
    enum class Kind : std::uint8_t { Compare, And, Or };
    Kind kind = Kind::Compare;
    std::vector<Condition> parts; ///< of And and Or
    int field = 0;                ///< of Compare
    Comparison comparison = Comparison::Equal;
    FilterLiteral literal;
};

/// Reads the text of a filter against the fields of a recordset. Error 3001 for a text that can't be
/// read or compares a field with something that it can't be compared with, 3265 for an unknown field.
Condition parseFilter(const QString& text, const Records& records);

} // namespace zkp::ado
