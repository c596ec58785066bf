#include "script/bag_objects.h"

#include "base/error.h"

#include <limits>

namespace zkp::script {

namespace {

BagValue wholeNumber(qlonglong number) {
    if (number >= std::numeric_limits<std::int32_t>::min() &&
        number <= std::numeric_limits<std::int32_t>::max())
        return static_cast<std::int32_t>(number);
    if (number > 0 && number <= std::numeric_limits<Color>::max())
        return static_cast<Color>(number);
    return static_cast<double>(number);
}

BagValue toBag(const QVariant& value, const QString& key) {
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool();
    case QMetaType::LongLong:
        return wholeNumber(value.toLongLong());
    case QMetaType::Double:
        return value.toDouble();
    case QMetaType::QString:
        return value.toString();
    default:
        break;
    }
    if (value.metaType() == QMetaType::fromType<BagFont>())
        return value.value<BagFont>();
    throw Error(kErrTypeMismatch,
                QStringLiteral("%1: a bag holds true and false, numbers, texts and fonts").arg(key));
}

QVariant fromBag(const BagValue& value) {
    return std::visit(
        []<class T>(const T& held) -> QVariant {
            if constexpr (std::is_same_v<T, BagFont>)
                return QVariant::fromValue<ScriptObjectPtr>(std::make_shared<SavedFontObject>(held));
            else
                return QVariant::fromValue(held);
        },
        value);
}

} // namespace

void PropertyBagObject::setContents(const QVariant& bytes) {
    if (bytes.typeId() != QMetaType::QByteArray)
        throw Error(kErrTypeMismatch, QStringLiteral("Contents must be bytes"));
    bag_->setContents(bytes.toByteArray());
}

QVariant PropertyBagObject::ReadProperty(const QString& key, const QVariant& fallback) const {
    if (const BagValue* held = bag_->find(key))
        return fromBag(*held);
    return fallback.isValid() ? fromBag(toBag(fallback, key)) : QVariant();
}

void PropertyBagObject::WriteProperty(const QString& key, const QVariant& value, const QVariant& elidedAt) {
    if (elidedAt.isValid())
        bag_->WriteProperty(key, toBag(value, key), toBag(elidedAt, key));
    else
        bag_->WriteProperty(key, toBag(value, key));
}

} // namespace zkp::script
