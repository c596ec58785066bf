#pragma once

#include "script/script_class.h"
#include "script/value_conversion.h"

#include <QJSValue>

namespace zkp::script {

/// Calls a method of `target` with a script's `given` arguments and gives its result. A reference parameter
/// takes an object with a `value` member and writes back there, or a plain value. Left-out arguments
/// take the declared default at the end of the list and the type's empty value before it.
QVariant callMethod(QObject& target, const ScriptMember& member, int given, const QJSValue& arguments,
                    const ValueConversion& values);

/// Writes a write-only property.
void callSetter(QObject& target, const ScriptMember& member, const QJSValue& value,
                const ValueConversion& values);

} // namespace zkp::script
