#include "script/script_control.h"

namespace zkp::script {

namespace {

[[noreturn]] void destroyed() {
    throw Error(kErrObjectNotSet, QStringLiteral("the control has been destroyed"));
}

} // namespace

ZkpGrid& ScriptControl::grid() {
    if (!grid_)
        destroyed();
    return *grid_;
}

EventHandlers& ScriptControl::handlers() {
    if (!grid_ || !handlers_)
        destroyed();
    return *handlers_;
}

void ScriptControl::destroy() {
    handlers_.reset();
    grid_.clear();
    own_.reset();
}

} // namespace zkp::script
