#include "script/method_call.h"

#include "base/error.h"

#include <array>

namespace zkp::script {

namespace {

constexpr int kMostArguments = 10;

struct Parameter {
    QMetaType type;
    bool isReference = false;
};

Parameter parameterOf(const QMetaMethod& method, int index) {
    QByteArray name = method.parameterTypeName(index);
    if (!name.endsWith('&'))
        return {method.parameterMetaType(index), false};
    name.chop(1);
    return {QMetaType::fromName(name), true};
}

/// An object with a `value`; where a reference is wanted also one that has none yet.
bool isReferenceBox(const QJSValue& value, bool isReference) {
    const bool isPlain = value.isObject() && !value.isArray() && !value.isDate() && !value.isCallable() &&
                         !value.hasOwnProperty(QStringLiteral("__zkp"));
    return isPlain && (isReference || value.hasOwnProperty(QStringLiteral("value")));
}

/// One argument on its way: the value in the parameter's own type, at a place of its own.
struct Argument {
    Parameter parameter;
    QVariant value;
    QJSValue box; ///< where a reference is written back

    void* place() {
        const bool isVariant = parameter.type == QMetaType::fromType<QVariant>();
        return isVariant ? static_cast<void*>(&value) : value.data();
    }
};

int withoutLeftOut(int count, const QJSValue& arguments) {
    while (count > 0 && arguments.property(static_cast<quint32>(count - 1)).isUndefined())
        --count;
    return count;
}

QString counted(int count) {
    return count == 1 ? QStringLiteral("1 argument") : QStringLiteral("%1 arguments").arg(count);
}

const QMetaMethod& overloadFor(const ScriptMember& member, int count) {
    for (const QMetaMethod& method : member.overloads) {
        if (method.parameterCount() == count)
            return method;
    }
    const int most = member.overloads.back().parameterCount();
    if (count > most) {
        throw Error(kErrArgumentCount,
                    QStringLiteral("%1 takes %2 at most, not %3").arg(member.name, counted(most)).arg(count));
    }
    throw Error(kErrArgumentMissing, QStringLiteral("%1 needs %2, not %3")
                                         .arg(member.name, counted(member.overloads.front().parameterCount()))
                                         .arg(count));
}

Argument argumentOf(const QMetaMethod& method, int index, int required, QJSValue given, const QString& name,
                    const ValueConversion& values) {
    Argument argument{parameterOf(method, index), {}, {}};
    const QString what = QStringLiteral("argument %1 of %2").arg(index + 1).arg(name);
    if (given.isUndefined()) {
        if (index < required)
            throw Error(kErrArgumentMissing, QStringLiteral("%1 is missing").arg(what));
        if (argument.parameter.type != QMetaType::fromType<QVariant>())
            argument.value = QVariant(argument.parameter.type);
        return argument;
    }
    if (isReferenceBox(given, argument.parameter.isReference)) {
        if (argument.parameter.isReference)
            argument.box = given;
        given = given.property(QStringLiteral("value"));
        // An empty box is a result that has no value yet.
        if (given.isUndefined() && argument.parameter.type != QMetaType::fromType<QVariant>()) {
            argument.value = QVariant(argument.parameter.type);
            return argument;
        }
    }
    argument.value = values.fromScript(given, argument.parameter.type, what);
    return argument;
}

QVariant invoke(QObject& target, const QMetaMethod& method, std::vector<Argument>& arguments) {
    const QMetaType resultType = method.returnMetaType();
    const bool isVariant = resultType == QMetaType::fromType<QVariant>();
    QVariant result;
    if (!isVariant && resultType != QMetaType::fromType<void>())
        result = QVariant(resultType);
    std::array<void*, kMostArguments + 1> places{};
    places[0] = isVariant ? static_cast<void*>(&result) : result.data();
    for (std::size_t i = 0; i < arguments.size(); ++i)
        places[i + 1] = arguments[i].place();
    QMetaObject::metacall(&target, QMetaObject::InvokeMetaMethod, method.methodIndex(), places.data());
    return result;
}

} // namespace

QVariant callMethod(QObject& target, const ScriptMember& member, int given, const QJSValue& arguments,
                    const ValueConversion& values) {
    const int most = member.overloads.back().parameterCount();
    const int count = given > most ? given : withoutLeftOut(given, arguments);
    const QMetaMethod& method = overloadFor(member, count);
    const int required = member.overloads.front().parameterCount();

    std::vector<Argument> converted;
    for (int i = 0; i < count; ++i) {
        converted.push_back(argumentOf(method, i, required, arguments.property(static_cast<quint32>(i)),
                                       member.name, values));
    }
    const QVariant result = invoke(target, method, converted);
    for (Argument& argument : converted) {
        if (argument.box.isObject())
            argument.box.setProperty(QStringLiteral("value"), values.toScript(argument.value));
    }
    return result;
}

void callSetter(QObject& target, const ScriptMember& member, const QJSValue& value,
                const ValueConversion& values) {
    std::vector<Argument> arguments;
    arguments.push_back(argumentOf(member.setter, 0, 1, value, member.name, values));
    invoke(target, member.setter, arguments);
}

} // namespace zkp::script
