#include "support/utility.h"

#include "base/currency.h"
#include "base/error_in_flight.h"
#include "base/number.h"
#include "base/text.h"
#include "base/texts.h"

namespace zkp {

void ShowError(Host& host, const Error& error) {
    const bool badStatement = error.number() == kErrBadStatement;
    const QString text = badStatement ? texts::columnExists() : nameKey(error.description());
    const QString gap = QStringLiteral("\r\r");
    host.setPointer(kPointerDefault);
    host.msgBox(texts::errorPrefix() + gap + text + gap, badStatement ? kMsgBoxExclamation : kMsgBoxCritical,
                texts::errorTitle());
}

QVariant NullTo(const QVariant& value, const QVariant& fallback) {
    return value.isValid() ? value : fallback;
}

QVariant ToDouble(const QVariant& value, const ReportLocale& locale) {
    const QVariant notNumeric = QVariant::fromValue<short>(0);
    if (value.metaType() == QMetaType::fromType<Currency>())
        return value.value<Currency>().toDouble();
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? -1.0 : 0.0;
    case QMetaType::QString: {
        const auto number = toNumber(value.toString(), locale);
        return number ? QVariant(*number) : notNumeric;
    }
    default: {
        bool ok = false;
        const double number = value.toDouble(&ok);
        return ok ? QVariant(number) : notNumeric;
    }
    }
}

bool RecordsetIsEmpty(const ado::RecordsetPtr& recordset, Host& host) {
    try {
        if (!recordset)
            throw Error(kErrObjectNotSet, QStringLiteral("Object variable not set"));
        return recordset->Bof() && recordset->Eof();
    } catch (...) {
        ShowError(host, errorInFlight());
        return false;
    }
}

} // namespace zkp
