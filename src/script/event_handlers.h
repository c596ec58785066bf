#pragma once

#include "core/events.h"
#include "script/bridge.h"

#include <QJSValue>

#include <map>
#include <memory>

namespace zkp::script {

/// The functions that a script gave for the events of one control. An event of the control is bound
/// only while there is a function for it, so that the control knows which events are heard.
class EventHandlers {
public:
    EventHandlers(Bridge& bridge, Events& events)
        : bridge_(bridge)
        , events_(events) {}

    ~EventHandlers() { clear(); }
    EventHandlers(const EventHandlers&) = delete;
    EventHandlers& operator=(const EventHandlers&) = delete;

    void connect(const QString& event, const QJSValue& function);
    /// Takes the function away once; nothing happens when it isn't there.
    void disconnect(const QString& event, const QJSValue& function);
    void clear();

    /// The functions of one event, kept alive by a call that is on its way.
    struct List {
        Bridge& bridge;
        QString event;
        QList<QJSValue> functions;
        QMetaObject::Connection binding;

        void raise(const QJSValue& argument) const;
    };

private:
    Bridge& bridge_;
    Events& events_;
    std::map<QString, std::shared_ptr<List>> lists_;
};

} // namespace zkp::script
