#include "script/host_object.h"

namespace zkp::script {

void HostObject::setFunction(QJSValue& place, const QJSValue& function, const char* name) {
    if (!function.isCallable() && !function.isNull()) {
        throw Error(kErrTypeMismatch,
                    QStringLiteral("host.%1 must be a function or null").arg(QLatin1String(name)));
    }
    place = function;
}

void HostObject::setList(QJSValue& place, const QJSValue& list, const char* name) {
    if (!list.isArray())
        throw Error(kErrTypeMismatch, QStringLiteral("host.%1 must be an array").arg(QLatin1String(name)));
    place = list;
}

} // namespace zkp::script
