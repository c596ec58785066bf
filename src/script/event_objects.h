#pragma once

#include "script/script_control.h"
#include "script/script_object.h"

#include <map>

namespace zkp::script {

/// `grid.events.RetrieveRow`.
class EventObject : public ScriptObject {
    Q_OBJECT

public:
    EventObject(ScriptControlPtr control, QString event)
        : control_(std::move(control))
        , event_(std::move(event)) {}

    QString className() const override { return event_; }

    Q_INVOKABLE void connect(const QJSValue& handler) { control_->handlers().connect(event_, handler); }
    Q_INVOKABLE void disconnect(const QJSValue& handler) { control_->handlers().disconnect(event_, handler); }

private:
    ScriptControlPtr control_;
    QString event_;
};

/// `grid.events`: each event by its name.
class EventsObject : public ScriptObject {
    Q_OBJECT

#define ZKP_EVENT_PROPERTY(name, ...)                                                                        \
    Q_PROPERTY(zkp::script::ScriptObjectPtr name READ name)                                                  \
    ScriptObjectPtr name() const {                                                                           \
        return event(QStringLiteral(#name));                                                                 \
    }

public:
    explicit EventsObject(ScriptControlPtr control)
        : control_(std::move(control)) {}

    QString className() const override {
        return QStringLiteral("Events");
    }

    ZKP_PLAIN_EVENTS(ZKP_EVENT_PROPERTY)
    ZKP_ARGUMENT_EVENTS(ZKP_EVENT_PROPERTY)
#undef ZKP_EVENT_PROPERTY

private:
    ScriptObjectPtr event(const QString& name) const;

    ScriptControlPtr control_;
    mutable std::map<QString, std::weak_ptr<EventObject>> known_; ///< the same event is the same object
};

} // namespace zkp::script
