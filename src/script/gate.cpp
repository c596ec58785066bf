#include "script/gate.h"

#include "script/bridge.h"

namespace zkp::script {

QJSValue Gate::get(QObject* handle, int member) {
    return bridge_.get(qobject_cast<ScriptHandle*>(handle), member);
}

void Gate::set(QObject* handle, int member, const QJSValue& value) {
    bridge_.set(qobject_cast<ScriptHandle*>(handle), member, value);
}

QJSValue Gate::call(QObject* handle, int member, int count, const QJSValue& arguments) {
    return bridge_.call(qobject_cast<ScriptHandle*>(handle), member, count, arguments);
}

QJSValue Gate::create(const QString& className, int argumentCount) {
    return bridge_.create(className, argumentCount);
}

void Gate::print(const QString& line) {
    bridge_.print(line);
}

} // namespace zkp::script
