#include "base/database_value.h"

#include "base/error.h"
#include "base/number.h"
#include "base/text.h"
#include "base/value.h"

namespace zkp {

namespace {

void requireValue(const QVariant& value) {
    if (isNull(value))
        throw Error(kErrInvalidNull, QStringLiteral("Invalid use of Null"));
}

double number(const QVariant& value) {
    if (value.metaType() == QMetaType::fromType<Currency>())
        return value.value<Currency>().toDouble();
    if (value.typeId() == QMetaType::Bool)
        return value.toBool() ? -1.0 : 0.0;
    bool ok = false;
    double result = 0.0;
    if (value.typeId() == QMetaType::QString) {
        const auto read = toNumber(value.toString(), ReportLocale());
        ok = read.has_value();
        result = read.value_or(0.0);
    } else {
        result = value.toDouble(&ok);
    }
    if (!ok)
        throw Error(kErrTypeMismatch, QStringLiteral("Type mismatch"));
    return result;
}

} // namespace

QString requiredText(const QVariant& value) {
    requireValue(value);
    return valueText(value, ReportLocale());
}

bool requiredBoolean(const QVariant& value) {
    requireValue(value);
    if (value.typeId() == QMetaType::QString) {
        const QString key = nameKey(value.toString());
        if (key == QLatin1String("TRUE") || key == QLatin1String("FALSE"))
            return key == QLatin1String("TRUE");
    }
    return number(value) != 0.0;
}

Currency requiredCurrency(const QVariant& value) {
    requireValue(value);
    if (value.metaType() == QMetaType::fromType<Currency>())
        return value.value<Currency>();
    const auto amount = Currency::fromDouble(number(value));
    if (!amount)
        throw Error(kErrOverflow, QStringLiteral("Overflow"));
    return *amount;
}

} // namespace zkp
