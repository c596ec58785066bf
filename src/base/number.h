#pragma once

#include "base/report_locale.h"

#include <QStringView>
#include <QVariant>

#include <cstdint>
#include <optional>

namespace zkp {

/// The number at the front of a text: leading blanks skipped, a sign, digits, one ".", an exponent;
/// stops at the first other character. 0 when there is none; never fails.
double val(QStringView text);

/// The number that a text is in the report's locale (group and decimal signs); nothing when the
/// whole text, apart from blanks around it, is not one.
std::optional<double> toNumber(QStringView text, const ReportLocale& locale);

/// Half to even, at a number of decimals.
double roundHalfEven(double value, int decimals = 0);

/// Whole numbers half to even; Error 6 out of range, Error 13 when the value is no number.
std::int16_t toInt16(const QVariant& value);
std::int32_t toInt32(const QVariant& value);
std::int32_t toInt32(double value);

} // namespace zkp
