#pragma once

#include "bag/property_bag.h"

namespace zkp {

/// The bag as a text to compare and edit, see docs/template-format.md: UTF-8, one key a line, sorted
/// without regard to case, the numbers within keys by their size. Exact: `bagFromText` gives back every
/// key as it is spelt, with its type and value, and so the same bytes.
QByteArray bagText(const PropertyBag& bag);

/// The bag that a text holds; its lines may come in any order and end with or without a carriage
/// return. Error kErrInvalidFormat, with the line's number, for a text that can't be read in full.
PropertyBag bagFromText(QByteArrayView text);

} // namespace zkp
