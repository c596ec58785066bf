#include "base/value.h"

#include "base/currency.h"

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

} // namespace zkp
