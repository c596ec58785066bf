#include "script/event_objects.h"

namespace zkp::script {

ScriptObjectPtr EventsObject::event(const QString& name) const {
    std::weak_ptr<EventObject>& known = known_[name];
    if (const auto alive = known.lock())
        return alive;
    const auto made = std::make_shared<EventObject>(control_, name);
    known = made;
    return made;
}

} // namespace zkp::script
