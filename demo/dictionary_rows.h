#pragma once

#include <span>

namespace zkp::demo {

/// What a field may be used for.
enum FieldUse : unsigned {
    kGroup = 1, ///< a group factor
    kTotal = 2, ///< totalled at the end of a list
    kSum = 4,
    kAvg = 8,
    kMin = 16,
    kMax = 32,
    kCrossTab = 64, ///< a date that a cross table may break down
    kHidden = 128,  ///< not offered at all
    kPrivate = 256, ///< not offered to users with restricted rights
    kUnset = 512,   ///< flags and alignment null, as in dictionaries kept by hand
};

/// How a column stands.
enum FieldAlign { kLeft = 1, kCentre = 4, kRight = 7 };

/// One row of a dictionary. Either `field` names a column of `table`, or `field` is null and
/// `expression` calculates the value.
struct Field {
    const char* key;
    const char* caption;
    int width; ///< twips
    FieldAlign align;
    unsigned use;
    const char* table;
    const char* field;
    const char* expression = nullptr;
};

std::span<const Field> policyFields();
std::span<const Field> claimFields();
std::span<const Field> ratioFields();
std::span<const Field> productFields();

} // namespace zkp::demo
