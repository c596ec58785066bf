#include "script/event_handlers.h"

#include "script/event_arguments.h"

namespace zkp::script {

namespace {

using ListPtr = std::shared_ptr<EventHandlers::List>;
using Binder = QMetaObject::Connection (*)(Events&, const ListPtr&);

template <class Args>
QJSValue argumentObject(Args& e, const EventHandlers::List& list) {
    QStringList names;
    QList<QJSValue> values;
    visit(e, [&](const char* name, auto& member) {
        names.append(QString::fromLatin1(name));
        values.append(list.bridge.values().toScript(QVariant::fromValue(member)));
    });
    return list.bridge.makeArguments(list.event, names, values);
}

/// What the handlers left in the argument object goes back to the control.
template <class Args>
void writeBack(Args& e, const QJSValue& object, const EventHandlers::List& list) {
    visit(e, [&]<class Member>(const char* name, Member& member) {
        const QString key = QString::fromLatin1(name);
        const QVariant left =
            list.bridge.values().fromScript(object.property(key), QMetaType::fromType<Member>(),
                                            QStringLiteral("%1 of %2").arg(key, list.event));
        if constexpr (std::is_same_v<Member, QVariant>)
            member = left;
        else
            member = left.template value<Member>();
    });
}

template <class Args>
void raiseWith(Args& e, const EventHandlers::List& list) {
    const QJSValue object = argumentObject(e, list);
    list.raise(object);
    try {
        writeBack(e, object, list);
    } catch (const Error& error) {
        list.bridge.failHandler(error);
    }
}

const std::map<QString, Binder>& binders() {
#define ZKP_BIND_PLAIN(name)                                                                                 \
    {QStringLiteral(#name), [](Events& events, const ListPtr& list) {                                        \
         return QObject::connect(&events, &Events::name, [list] { list->raise({}); });                       \
     }},
#define ZKP_BIND_ARGUMENT(name, Args)                                                                        \
    {QStringLiteral(#name), [](Events& events, const ListPtr& list) {                                        \
         return QObject::connect(&events, &Events::name, [list](Args& e) { raiseWith(e, *list); });          \
     }},
    static const std::map<QString, Binder> all{ZKP_PLAIN_EVENTS(ZKP_BIND_PLAIN)
                                                   ZKP_ARGUMENT_EVENTS(ZKP_BIND_ARGUMENT)};
#undef ZKP_BIND_PLAIN
#undef ZKP_BIND_ARGUMENT
    return all;
}

} // namespace

void EventHandlers::List::raise(const QJSValue& argument) const {
    // Handlers may connect and disconnect while they run.
    const QList<QJSValue> present = functions;
    for (const QJSValue& function : present)
        bridge.invoke(function, argument);
}

void EventHandlers::connect(const QString& event, const QJSValue& function) {
    if (!function.isCallable())
        throw Error(kErrTypeMismatch, QStringLiteral("the handler of %1 must be a function").arg(event));
    ListPtr& list = lists_[event];
    if (!list) {
        list = std::make_shared<List>(List{bridge_, event, {}, {}});
        list->binding = binders().at(event)(events_, list);
    }
    list->functions.append(function);
}

void EventHandlers::disconnect(const QString& event, const QJSValue& function) {
    const auto found = lists_.find(event);
    if (found == lists_.end())
        return;
    QList<QJSValue>& functions = found->second->functions;
    for (int i = 0; i < functions.size(); ++i) {
        if (functions.at(i).strictlyEquals(function)) {
            functions.removeAt(i);
            break;
        }
    }
    if (functions.isEmpty()) {
        QObject::disconnect(found->second->binding);
        lists_.erase(found);
    }
}

void EventHandlers::clear() {
    for (const auto& [event, list] : lists_) {
        QObject::disconnect(list->binding);
        list->functions.clear();
    }
    lists_.clear();
}

} // namespace zkp::script
