#include "script/bridge.h"

#include "script/bridge_source.h"
#include "script/method_call.h"

#include <QCoreApplication>
#include <QEvent>
#include <QThread>

namespace zkp::script {

namespace {

/// A handler that starts what calls it again would end in the machine's stack; it ends here instead.
constexpr int kDeepestCall = 100;
/// Handles that the script engine has given up wait for this many new ones before they go.
constexpr int kHandlesPerSweep = 1000;

QObject& targetOf(ScriptObject& object, const ScriptMember& member) {
    return member.onDelegate ? *object.delegate() : object;
}

} // namespace

QString Bridge::bridgeFile() {
    return QStringLiteral("file:zkp:bridge");
}

/// A loop of the host's would find objects gone that it is in the middle of.
void Bridge::deleteGivenUp() {
    if (QThread::currentThread()->loopLevel() == 0)
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

Bridge::Bridge(QJSEngine& engine)
    : engine_(engine)
    , values_(*this)
    , gate_(*this) {
    QJSEngine::setObjectOwnership(&gate_, QJSEngine::CppOwnership);
    const QJSValue maker = engine_.evaluate(QString::fromUtf8(kBridgeSource), QStringLiteral("zkp:bridge"));
    helpers_ = maker.call({engine_.newQObject(&gate_), QJSValue(bridgeFile())});
    if (helpers_.isError())
        throw Error(kErrInvalidCall, helpers_.toString());
    invoker_ = helper("invoke");
    facadeMaker_ = helper("makeFacade");
    addGlobal(QStringLiteral("print"), helper("print"));
}

Bridge::~Bridge() = default;

QJSValue Bridge::helper(const char* name) const {
    return helpers_.property(QString::fromLatin1(name));
}

void Bridge::addGlobal(const QString& name, const QJSValue& value) {
    engine_.globalObject().setProperty(name, value);
}

void Bridge::addConstructor(const QString& name, std::function<ScriptObjectPtr()> make) {
    const ScriptObjectPtr sample = make();
    const QJSValue prototype = classOf(*sample).prototype;
    constructors_.insert(name, std::move(make));
    addGlobal(name, helper("makeConstructor").call({QJSValue(name), prototype}));
}

const ScriptClass& Bridge::classOf(const ScriptObject& object) {
    std::unique_ptr<ScriptClass>& known = classes_[{object.metaObject(), object.delegateClass()}];
    if (known)
        return *known;
    known = std::make_unique<ScriptClass>(object);
    const auto count = static_cast<quint32>(known->members().size());
    QJSValue list = engine_.newArray(count);
    for (quint32 i = 0; i < count; ++i) {
        const ScriptMember& member = known->members()[i];
        QJSValue entry = engine_.newArray(3);
        entry.setProperty(0, static_cast<int>(members_.size()));
        entry.setProperty(1, member.name);
        entry.setProperty(2, member.isMethod);
        list.setProperty(i, entry);
        members_.push_back({known.get(), static_cast<int>(i)});
    }
    known->prototype = helper("makeClass").call({QJSValue(known->name()), list});
    return *known;
}

QJSValue Bridge::facade(const ScriptObjectPtr& object) {
    if (!object)
        return QJSValue(QJSValue::NullValue);
    QPointer<ScriptHandle>& known = handles_[object.get()];
    if (known && known->object() == object) {
        const QJSValue facade = engine_.newQObject(known).property(QStringLiteral("facade"));
        if (facade.isObject() || facade.isCallable())
            return facade;
    }
    if (++handlesSinceSweep_ > kHandlesPerSweep) {
        handlesSinceSweep_ = 0;
        deleteGivenUp();
        std::erase_if(shared_, [](const auto& entry) { return entry.second.expired(); });
        std::erase_if(handles_,
                      [&](const auto& entry) { return !entry.second && entry.first != object.get(); });
    }
    const ScriptClass& scriptClass = classOf(*object);
    auto* handle = new ScriptHandle(object, scriptClass);
    handles_[object.get()] = handle;
    QJSValue wrapper = engine_.newQObject(handle);
    const QJSValue maker = object->isCallable() ? helper("makeCallableFacade") : facadeMaker_;
    const QJSValue facade = maker.call({scriptClass.prototype, wrapper});
    wrapper.setProperty(QStringLiteral("facade"), facade);
    return facade;
}

QJSValue Bridge::makeArguments(const QString& className, const QStringList& names,
                               const QList<QJSValue>& values) {
    QJSValue& maker = argumentMakers_[className];
    if (!maker.isCallable()) {
        QJSValue list = engine_.newArray(static_cast<uint>(names.size()));
        for (int i = 0; i < names.size(); ++i)
            list.setProperty(static_cast<quint32>(i), names.at(i));
        maker = helper("makeArgumentMaker").call({QJSValue(className), list});
    }
    return maker.call(values);
}

QJSValue Bridge::invoke(const QJSValue& function, const QJSValue& argument) {
    const QJSValue outcome = invoker_.call({function, argument});
    const bool ended = !outcome.isError() && !outcome.hasOwnProperty(QStringLiteral("thrown"));
    if (ended)
        return outcome.property(QStringLiteral("value"));
    const QJSValue thrown = outcome.isError() ? outcome : outcome.property(QStringLiteral("thrown"));
    keepFailure(thrown);
    const QJSValue number = thrown.property(QStringLiteral("number"));
    const QString message =
        thrown.isError() ? thrown.property(QStringLiteral("message")).toString() : thrown.toString();
    throw Error(number.isNumber() ? static_cast<std::uint32_t>(number.toNumber()) : kErrInvalidCall, message);
}

void Bridge::failHandler(const Error& error) {
    keepFailure(makeError(error));
    throw error;
}

void Bridge::keepFailure(const QJSValue& thrown) {
    if (frame_)
        frame_->fail(thrown);
    else if (!strayFailure_)
        strayFailure_ = thrown;
}

void Bridge::locate(const QJSValue& error) {
    if (error.isError())
        helper("locate").call({error});
}

QJSValue Bridge::makeError(const Error& error) {
    return helper("makeError")
        .call({QJSValue(error.number()), QJSValue(error.description()), QJSValue(error.source())});
}

QJSValue Bridge::guarded(const std::function<QJSValue()>& work) {
    CallFrame frame(frame_);
    QJSValue result;
    std::optional<Error> failure;
    try {
        if (frame.depth() > kDeepestCall)
            throw Error(kErrInvalidCall, QStringLiteral("handlers call each other too deeply"));
        result = work();
    } catch (const Error& error) {
        failure = error;
    } catch (const std::exception& error) {
        failure = Error(kErrInvalidCall, QString::fromUtf8(error.what()));
    }
    if (frame.failure())
        engine_.throwError(*frame.failure());
    else if (failure)
        engine_.throwError(makeError(*failure));
    else
        return result;
    return {};
}

const ScriptMember& Bridge::memberOf(const ScriptHandle* handle, int id) const {
    const MemberPlace& place = members_.at(static_cast<std::size_t>(id));
    const ScriptMember& member = place.owner->members()[static_cast<std::size_t>(place.index)];
    if (!handle || &handle->scriptClass() != place.owner) {
        throw Error(kErrObjectNotSet,
                    QStringLiteral("%1 is asked of no %2").arg(member.name, place.owner->name()));
    }
    return member;
}

QJSValue Bridge::get(ScriptHandle* handle, int id) {
    return guarded([&] {
        const ScriptMember& member = memberOf(handle, id);
        // The object lives through the call, even when a handler drops the script's last hold on it.
        const ScriptObjectPtr object = handle->object();
        if (!member.property.isValid())
            throw Error(kErrNoSuchMember, QStringLiteral("%1 can only be written").arg(member.name));
        return values_.toScript(member.property.read(&targetOf(*object, member)));
    });
}

void Bridge::set(ScriptHandle* handle, int id, const QJSValue& value) {
    guarded([&] {
        const ScriptMember& member = memberOf(handle, id);
        const ScriptObjectPtr object = handle->object();
        QObject& target = targetOf(*object, member);
        if (!member.property.isValid()) {
            callSetter(target, member, value, values_);
        } else if (!member.property.isWritable()) {
            throw Error(kErrNoSuchMember, QStringLiteral("%1 can only be read").arg(member.name));
        } else {
            const QMetaType type = member.property.metaType();
            if (value.isUndefined())
                throw Error(kErrTypeMismatch, QStringLiteral("%1 can't be undefined").arg(member.name));
            member.property.write(&target, values_.fromScript(value, type, member.name));
        }
        return QJSValue();
    });
}

QJSValue Bridge::call(ScriptHandle* handle, int id, int count, const QJSValue& arguments) {
    return guarded([&] {
        const ScriptMember& member = memberOf(handle, id);
        const ScriptObjectPtr object = handle->object();
        QObject& target = targetOf(*object, member);
        const bool givesNothing = member.overloads.front().returnMetaType() == QMetaType::fromType<void>();
        const QVariant result = callMethod(target, member, count, arguments, values_);
        return givesNothing ? QJSValue() : values_.toScript(result);
    });
}

QJSValue Bridge::create(const QString& className, int argumentCount) {
    return guarded([&] {
        if (argumentCount > 0) {
            throw Error(kErrArgumentCount, QStringLiteral("new %1() takes no arguments").arg(className));
        }
        return facade(constructors_.value(className)());
    });
}

void Bridge::print(const QString& line) {
    if (printer_)
        printer_(line);
}

} // namespace zkp::script
