#pragma once

#include "base/report_locale.h"

#include <QDate>
#include <QDateTime>
#include <QStringView>

#include <optional>

namespace zkp {

/// The date that a text is in the report's locale, nothing when it is none. Day, month and year
/// stand in the locale's order, or in that of a four-digit year at the front, between "/", "-", "."
/// or blanks; where only the exchange of day and month gives a date, they are exchanged. The month
/// may be a name, the year may be left out (this year) or, with a longer year, the day (the first).
/// Two-digit years are 1930 to 2029. A time (H:mm or H:mm:ss) may follow or stand alone, on the day
/// 0 of dates, 30 December 1899.
std::optional<QDate> toDate(QStringView text, const ReportLocale& locale);

/// The same with its time, midnight when it has none; in universal time, where every day has all hours.
std::optional<QDateTime> toMoment(QStringView text, const ReportLocale& locale);

/// The locale's short date, with a four-digit year.
QString shortDate(QDate date, const ReportLocale& locale);

} // namespace zkp
