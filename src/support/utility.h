#pragma once

#include "ado/recordset.h"
#include "base/error.h"
#include "base/report_locale.h"
#include "platform/host.h"

#include <QVariant>

namespace zkp {

/// The one error box: the pointer goes back to the default, then a critical box titled
/// "QRN Insurance" shows the description, trimmed and in capitals. A statement that the database
/// could not take (kErrBadStatement) shows a fixed Greek sentence with the exclamation icon instead.
void ShowError(Host& host, const Error& error);

/// `fallback` when the value is null, otherwise the value.
QVariant NullTo(const QVariant& value, const QVariant& fallback);

/// The double of a value that is numeric in the report's locale, otherwise the 16-bit integer 0.
QVariant ToDouble(const QVariant& value, const ReportLocale& locale);

/// True when the recordset stands at BOF and EOF at once. An error shows the box and gives False.
bool RecordsetIsEmpty(const ado::RecordsetPtr& recordset, Host& host);

} // namespace zkp
