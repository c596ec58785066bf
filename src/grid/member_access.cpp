#include "zkp_grid.h"

#include "base/error.h"
#include "base/number.h"
#include "base/text.h"

#include <QHash>
#include <QMetaMethod>
#include <QMetaProperty>

#include <cmath>
#include <limits>
#include <optional>
#include <vector>

// Members by their names as text, found in the meta-object.

namespace zkp {

namespace {

/// What one name stands for.
struct Member {
    QString name;
    QMetaProperty property;
    std::vector<QMetaMethod> methods; ///< by rising number of arguments; reads an indexed property
    std::vector<QMetaMethod> setters; ///< the value is the last argument
    QVariant (*part)(ZkpGrid&) = nullptr;
};

using MemberIndex = QHash<QString, Member>;

[[noreturn]] void refuse(const QString& name, const char* why) {
    throw Error(kErrNoSuchMember, QStringLiteral("%1 %2").arg(name, QLatin1String(why)),
                QStringLiteral("ZkpGrid"));
}

void addParts(MemberIndex& index) {
    const auto add = [&](const QString& name, QVariant (*part)(ZkpGrid&)) {
        Member& member = index[nameKey(name)];
        member.name = name;
        member.part = part;
    };
#define ZKP_PART(Name)                                                                                       \
    add(QStringLiteral(#Name), [](ZkpGrid& grid) { return QVariant::fromValue(&grid.Name()); });
    ZKP_PART(Columns)
    ZKP_PART(events)
    ZKP_PART(MSFlexGrid1)
    ZKP_PART(MSFlexGrid2)
    ZKP_PART(MSFlexGrid3)
    ZKP_PART(Picture1)
    ZKP_PART(cmdHide)
    ZKP_PART(lbltemplate)
    ZKP_PART(lblfilter)
#undef ZKP_PART
}

MemberIndex makeIndex() {
    const QMetaObject& meta = ZkpGrid::staticMetaObject;
    MemberIndex index;
    for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
        const QString name = QString::fromLatin1(meta.property(i).name());
        Member& member = index[nameKey(name)];
        member.name = name;
        member.property = meta.property(i);
    }
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        const QString name = QString::fromLatin1(method.name());
        // A setter that answers, as setUserFilter does, is a method.
        const bool isSetter =
            name.startsWith(QLatin1String("set")) && method.returnMetaType() == QMetaType::fromType<void>();
        const QString plainName = isSetter ? name.sliced(3) : name;
        Member& member = index[nameKey(plainName)];
        member.name = plainName;
        auto& list = isSetter ? member.setters : member.methods;
        list.insert(list.begin(), method); // listed in its full form first
    }
    addParts(index);
    return index;
}

const Member& memberNamed(const QString& name) {
    static const MemberIndex index = makeIndex();
    const auto found = index.constFind(nameKey(name));
    if (found == index.constEnd())
        refuse(name, "is no member of ZkpGrid");
    return *found;
}

// --- Values

[[noreturn]] void mismatch(const QString& what) {
    throw Error(kErrTypeMismatch, QStringLiteral("%1: Type mismatch").arg(what));
}

/// A text is never taken for a number.
std::optional<double> numberIn(const QVariant& value) {
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? -1 : 0;
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        return value.toDouble();
    default:
        break;
    }
    if (value.metaType() == QMetaType::fromType<Currency>())
        return value.value<Currency>().toDouble();
    return std::nullopt;
}

/// A colour's 32 bits, given with a sign or without one.
Color colorIn(double number, const QString& what) {
    const double rounded = roundHalfEven(number);
    if (!(rounded >= std::numeric_limits<std::int32_t>::min() &&
          rounded <= std::numeric_limits<Color>::max()))
        throw Error(kErrOverflow, QStringLiteral("%1: Overflow").arg(what));
    return static_cast<Color>(static_cast<std::int64_t>(rounded));
}

QVariant fromNumber(double number, QMetaType wanted, const QString& what) {
    switch (wanted.id()) {
    case QMetaType::Bool:
        return number != 0;
    case QMetaType::Short:
        return QVariant::fromValue<short>(toInt16(number));
    case QMetaType::Int:
        return toInt32(number);
    case QMetaType::UInt:
        return colorIn(number, what);
    case QMetaType::Double:
        return number;
    default:
        break;
    }
    if (wanted != QMetaType::fromType<Currency>())
        mismatch(what);
    const std::optional<Currency> amount = Currency::fromDouble(number);
    if (!amount)
        throw Error(kErrOverflow, QStringLiteral("%1: Overflow").arg(what));
    return QVariant::fromValue(*amount);
}

/// The value in exactly the wanted type.
QVariant converted(const QVariant& value, QMetaType wanted, const QString& what) {
    if (wanted == QMetaType::fromType<QVariant>() || value.metaType() == wanted)
        return value;
    const std::optional<double> number = numberIn(value);
    if (number && wanted.id() == QMetaType::QString)
        return value.toString();
    if (number)
        return fromNumber(*number, wanted, what);
    const bool isObject = wanted == QMetaType::fromType<ado::ConnectionPtr>() ||
                          wanted == QMetaType::fromType<ado::RecordsetPtr>();
    if (isObject && !value.isValid())
        return QVariant(wanted); // no connection, no records
    mismatch(what);
}

// --- Calls

const QMetaMethod& formFor(const std::vector<QMetaMethod>& forms, qsizetype count, const QString& name) {
    for (const QMetaMethod& method : forms)
        if (method.parameterCount() == count)
            return method;
    const bool tooMany = count > forms.back().parameterCount();
    throw Error(tooMany ? kErrArgumentCount : kErrArgumentMissing,
                QStringLiteral("%1 does not take %2 arguments").arg(name).arg(count));
}

QMetaType parameterType(const QMetaMethod& method, int index) {
    QByteArray name = method.parameterTypeName(index);
    if (!name.endsWith('&'))
        return method.parameterMetaType(index);
    name.chop(1);
    return QMetaType::fromName(name);
}

/// What the method gives; arguments that it changes are changed in the list.
QVariant invoke(QObject& object, const QMetaMethod& method, QVariantList& arguments, const QString& name) {
    QVariantList values;
    for (int i = 0; i < arguments.size(); ++i)
        values << converted(arguments[i], parameterType(method, i),
                            QStringLiteral("argument %1 of %2").arg(i + 1).arg(name));
    const auto placeOf = [](QVariant& value, QMetaType type) {
        return type == QMetaType::fromType<QVariant>() ? static_cast<void*>(&value) : value.data();
    };
    const QMetaType resultType = method.returnMetaType();
    const bool hasPlace =
        resultType != QMetaType::fromType<void>() && resultType != QMetaType::fromType<QVariant>();
    QVariant result = hasPlace ? QVariant(resultType) : QVariant();
    std::vector<void*> places{placeOf(result, resultType)};
    for (int i = 0; i < values.size(); ++i)
        places.push_back(placeOf(values[i], parameterType(method, i)));
    QMetaObject::metacall(&object, QMetaObject::InvokeMetaMethod, method.methodIndex(), places.data());
    arguments = values;
    return result;
}

} // namespace

QVariant ZkpGrid::getMember(const QString& name, const QVariantList& indexes) {
    const Member& member = memberNamed(name);
    if (!indexes.isEmpty() && (member.property.isValid() || member.part))
        throw Error(kErrArgumentCount, QStringLiteral("%1 takes no index").arg(member.name));
    if (member.property.isValid())
        return member.property.read(this);
    if (member.part)
        return member.part(*this);
    if (member.methods.empty())
        refuse(member.name, "can only be written");
    if (member.setters.empty())
        refuse(member.name, "is a method and has no value");
    QVariantList arguments = indexes;
    return invoke(*this, formFor(member.methods, arguments.size(), member.name), arguments, member.name);
}

void ZkpGrid::setMember(const QString& name, const QVariant& value, const QVariantList& indexes) {
    const Member& member = memberNamed(name);
    if (!member.setters.empty()) {
        QVariantList arguments = indexes;
        arguments << value;
        invoke(*this, formFor(member.setters, arguments.size(), member.name), arguments, member.name);
        return;
    }
    if (!member.property.isValid() || !member.property.isWritable())
        refuse(member.name, "can't be written");
    if (!indexes.isEmpty())
        throw Error(kErrArgumentCount, QStringLiteral("%1 takes no index").arg(member.name));
    member.property.write(this, converted(value, member.property.metaType(), member.name));
}

QVariant ZkpGrid::callMember(const QString& name, QVariantList& arguments) {
    const Member& member = memberNamed(name);
    if (member.methods.empty() || !member.setters.empty())
        refuse(member.name, "is a property and can't be called");
    return invoke(*this, formFor(member.methods, arguments.size(), member.name), arguments, member.name);
}

QVariant ZkpGrid::callMember(const QString& name, const QVariantList& arguments) {
    QVariantList own = arguments;
    return callMember(name, own);
}

} // namespace zkp
