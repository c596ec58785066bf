#pragma once

#include "base/currency.h"

#include <QString>
#include <QVariant>

namespace zkp {

// What a member of a record takes from a database value. A null is Error 94, a value of another
// kind Error 13, a number outside the range Error 6.

/// The value's own text.
QString requiredText(const QVariant& value);
/// A number other than 0 is true; a text is "True", "False" or a number.
bool requiredBoolean(const QVariant& value);
/// The nearest amount of ten-thousandths.
Currency requiredCurrency(const QVariant& value);

} // namespace zkp
