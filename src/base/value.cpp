#include "base/value.h"

#include "base/currency.h"
#include "base/number.h"

namespace zkp {

namespace {

QString currencyText(Currency amount, const ReportLocale& locale) {
    QString text = amount.toPlainText();
    if (const auto point = text.indexOf(u'.'); point >= 0)
        text.replace(point, 1, locale.decimalSign().toString());
    return text;
}

} // namespace

QString valueText(const QVariant& value, const ReportLocale& locale) {
    if (value.metaType() == QMetaType::fromType<Currency>())
        return currencyText(value.value<Currency>(), locale);
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return {};
    case QMetaType::Bool:
        return value.toBool() ? QStringLiteral("True") : QStringLiteral("False");
    case QMetaType::Double:
    case QMetaType::Float:
        return locale.doubleText(value.toDouble());
    case QMetaType::QDateTime:
    case QMetaType::QDate:
        return locale.dateText(value.toDateTime());
    case QMetaType::QByteArray:
        return QString::fromUtf8(value.toByteArray());
    default:
        return value.toString();
    }
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

} // namespace zkp
