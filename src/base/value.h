#pragma once

#include "base/report_locale.h"

#include <QString>
#include <QVariant>

namespace zkp {

/// A database value travels as a QVariant: invalid is null, and otherwise bool, qlonglong, double,
/// Currency, QDateTime, QString or QByteArray. Null and the empty text stay apart.
inline bool isNull(const QVariant& value) {
    return !value.isValid();
}

/// A value's own text: integers plain, doubles with the locale's decimal sign, dates as its short
/// date, Booleans "True" and "False", bytes as they read in UTF-8. A null gives the empty text.
QString valueText(const QVariant& value, const ReportLocale& locale);

/// `fallback` when the value is null, otherwise the value.
QVariant NullTo(const QVariant& value, const QVariant& fallback);

/// The double of a value that is numeric in the report's locale, otherwise the 16-bit integer 0.
QVariant ToDouble(const QVariant& value, const ReportLocale& locale);

} // namespace zkp
