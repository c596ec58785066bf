#include "script/value_conversion.h"

#include "ado/command.h"
#include "ado/recordset.h"
#include "base/currency.h"
#include "base/error.h"
#include "script/ado_objects.h"
#include "script/bridge.h"
#include "script/load_objects.h"
#include "script/template_objects.h"

#include <QDateTime>
#include <QLocale>

#include <cmath>
#include <limits>

namespace zkp::script {

namespace {

[[noreturn]] void mismatch(const QString& what, const char* wanted) {
    throw Error(kErrTypeMismatch, QStringLiteral("%1 must be %2").arg(what, QLatin1String(wanted)));
}

double numberOf(const QJSValue& value, const QString& what) {
    if (value.isBool())
        return value.toBool() ? -1 : 0;
    if (!value.isNumber() || std::isnan(value.toNumber()))
        mismatch(what, "a number");
    return value.toNumber();
}

template <class Integer>
Integer integerOf(const QJSValue& value, const QString& what, double lowest, double highest) {
    const double rounded = std::nearbyint(numberOf(value, what));
    if (rounded < lowest || rounded > highest)
        throw Error(kErrOverflow, QStringLiteral("%1 is out of range").arg(what));
    return static_cast<Integer>(rounded);
}

template <class Integer>
Integer integerOf(const QJSValue& value, const QString& what) {
    return integerOf<Integer>(value, what, std::numeric_limits<Integer>::min(),
                              std::numeric_limits<Integer>::max());
}

/// A colour is 32 bits, whether the script writes them with or without a sign.
uint colorOf(const QJSValue& value, const QString& what) {
    return static_cast<uint>(integerOf<qint64>(value, what, std::numeric_limits<qint32>::min(),
                                               std::numeric_limits<quint32>::max()));
}

bool booleanOf(const QJSValue& value, const QString& what) {
    if (value.isBool())
        return value.toBool();
    if (!value.isNumber())
        mismatch(what, "true or false");
    return value.toNumber() != 0;
}

QString textOf(const QJSValue& value, const QString& what) {
    if (!value.isString() && !value.isNumber() && !value.isBool())
        mismatch(what, "a text");
    return value.toString();
}

Currency amountOf(const QJSValue& value, const QString& what) {
    const std::optional<Currency> amount = Currency::fromDouble(numberOf(value, what));
    if (!amount)
        throw Error(kErrOverflow, QStringLiteral("%1 is out of range").arg(what));
    return *amount;
}

QLocale localeOf(const QJSValue& value, const QString& what) {
    const QString name = textOf(value, what);
    const QLocale locale(name);
    if (locale.language() == QLocale::C && name != QLatin1String("C"))
        throw Error(kErrInvalidCall, QStringLiteral("%1: there is no locale %2").arg(what, name));
    return locale;
}

QString momentText(const QDateTime& moment) {
    const bool isMidnight = moment.time() == QTime(0, 0);
    return moment.toString(isMidnight ? QStringLiteral("yyyy-MM-dd") : QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

template <class T>
bool holds(const QVariant& value) {
    return value.metaType() == QMetaType::fromType<T>();
}

} // namespace

QJSValue ValueConversion::toScript(const QVariant& value) const {
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return QJSValue(QJSValue::NullValue);
    case QMetaType::Bool:
        return QJSValue(value.toBool());
    case QMetaType::QString:
        return QJSValue(value.toString());
    case QMetaType::Int:
    case QMetaType::Short:
        return QJSValue(value.toInt());
    case QMetaType::UInt:
    case QMetaType::UShort:
    case QMetaType::Long:
    case QMetaType::LongLong:
    case QMetaType::ULong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        return QJSValue(value.toDouble());
    case QMetaType::QDate:
    case QMetaType::QDateTime:
        return QJSValue(momentText(value.toDateTime()));
    case QMetaType::QLocale:
        return QJSValue(value.toLocale().name());
    default:
        break;
    }
    if (holds<QJSValue>(value))
        return value.value<QJSValue>();
    if (holds<QVariantList>(value))
        return arrayOf(value.toList());
    if (holds<Currency>(value))
        return QJSValue(value.value<Currency>().toDouble());
    if (holds<ScriptObjectPtr>(value))
        return bridge_.facade(value.value<ScriptObjectPtr>());
    if (holds<ado::ConnectionPtr>(value))
        return bridge_.facade(ConnectionObject::of(bridge_, value.value<ado::ConnectionPtr>()));
    if (holds<ado::RecordsetPtr>(value))
        return bridge_.facade(RecordsetObject::of(bridge_, value.value<ado::RecordsetPtr>()));
    if (holds<ado::CommandPtr>(value))
        return bridge_.facade(CommandObject::of(bridge_, value.value<ado::CommandPtr>()));
    if (holds<clsList>(value))
        return bridge_.facade(std::make_shared<TemplateEntryObject>(value.value<clsList>()));
    if (holds<LoadOutcome>(value))
        return bridge_.facade(std::make_shared<LoadOutcomeObject>(value.value<LoadOutcome>()));
    return bridge_.engine().toScriptValue(value);
}

QJSValue ValueConversion::arrayOf(const QVariantList& values) const {
    QJSValue array = bridge_.engine().newArray(static_cast<uint>(values.size()));
    for (qsizetype i = 0; i < values.size(); ++i)
        array.setProperty(static_cast<quint32>(i), toScript(values[i]));
    return array;
}

QVariant ValueConversion::fromScript(const QJSValue& value, QMetaType wanted, const QString& what) const {
    switch (wanted.id()) {
    case QMetaType::QVariant:
        return anyFromScript(value, what);
    case QMetaType::Bool:
        return booleanOf(value, what);
    case QMetaType::QString:
        return textOf(value, what);
    case QMetaType::Int:
        return integerOf<int>(value, what);
    case QMetaType::Short:
        return QVariant::fromValue(integerOf<short>(value, what));
    case QMetaType::UInt:
        return colorOf(value, what);
    case QMetaType::Long:
    case QMetaType::LongLong: {
        // Beyond 2^53 a script's number no longer names one integer.
        const auto whole = integerOf<qint64>(value, what, -9007199254740992.0, 9007199254740992.0);
        return wanted.id() == QMetaType::Long ? QVariant::fromValue(static_cast<long>(whole))
                                              : QVariant(whole);
    }
    case QMetaType::Double:
        return numberOf(value, what);
    case QMetaType::QLocale:
        return localeOf(value, what);
    case QMetaType::QVariantList:
        if (!value.isArray())
            mismatch(what, "an array");
        return anyFromScript(value, what);
    default:
        break;
    }
    if (wanted == QMetaType::fromType<QJSValue>())
        return QVariant::fromValue(value);
    if (wanted == QMetaType::fromType<Currency>())
        return QVariant::fromValue(amountOf(value, what));
    return sharedFromScript(value, wanted, what);
}

QVariant ValueConversion::anyFromScript(const QJSValue& value, const QString& what) const {
    if (value.isNull() || value.isUndefined())
        return {};
    if (value.isBool())
        return value.toBool();
    if (value.isString())
        return value.toString();
    if (value.isNumber()) {
        const double number = value.toNumber();
        const bool isWhole = std::nearbyint(number) == number && std::abs(number) <= 9007199254740992.0;
        return isWhole ? QVariant(static_cast<qlonglong>(number)) : QVariant(number);
    }
    if (value.isDate())
        return value.toDateTime();
    if (value.isArray()) {
        QVariantList list;
        const int count = value.property(QStringLiteral("length")).toInt();
        for (int i = 0; i < count; ++i)
            list.append(anyFromScript(value.property(static_cast<quint32>(i)), what));
        return list;
    }
    if (const ScriptObjectPtr object = objectOf(value))
        return object->engineValue();
    const QVariant bytes = value.toVariant();
    if (bytes.typeId() == QMetaType::QByteArray)
        return bytes;
    mismatch(what, "a plain value");
}

QVariant ValueConversion::sharedFromScript(const QJSValue& value, QMetaType wanted,
                                           const QString& what) const {
    if (value.isNull() || value.isUndefined())
        return QVariant(wanted);
    const ScriptObjectPtr object = objectOf(value);
    if (object && object->engineValue().metaType() == wanted)
        return object->engineValue();
    const QString typeName = QString::fromLatin1(wanted.name());
    if (typeName.contains(QLatin1String("Connection")))
        mismatch(what, "a Connection");
    if (typeName.contains(QLatin1String("Recordset")))
        mismatch(what, "a Recordset");
    if (typeName.contains(QLatin1String("PropertyBag")))
        mismatch(what, "a PropertyBag");
    mismatch(what, "an object of another kind");
}

ScriptObjectPtr ValueConversion::objectOf(const QJSValue& value) const {
    if (!value.isObject() || !value.hasOwnProperty(QStringLiteral("__zkp")))
        return {};
    const auto* handle = qobject_cast<ScriptHandle*>(value.property(QStringLiteral("__zkp")).toQObject());
    return handle ? handle->object() : ScriptObjectPtr();
}

} // namespace zkp::script
