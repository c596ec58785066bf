#pragma once

#include <QObject>
#include <QVariant>

#include <memory>

namespace zkp::script {

/// Something that a script can hold. Its Qt properties and invokables are what the script sees; those
/// of `delegate()` stand behind them, so that an object of the engine is offered without listing it.
/// Objects are owned by shared pointers; the script engine owns only a handle to one.
class ScriptObject : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// The name that error texts and `toString` give.
    virtual QString className() const = 0;
    /// An object whose members are offered too, or null. Error kErrObjectNotSet when it is gone.
    virtual QObject* delegate() const { return nullptr; }
    virtual const QMetaObject* delegateClass() const { return nullptr; }
    /// What stands for the object where the engine wants a value, e.g. a RecordsetPtr.
    virtual QVariant engineValue() const { return {}; }
    /// True when calling the object itself means calling its `Item`.
    virtual bool isCallable() const { return false; }
};

using ScriptObjectPtr = std::shared_ptr<ScriptObject>;

class ScriptClass;

/// What the script engine owns: a share in an object. Dies when the script can't reach it any more.
class ScriptHandle : public QObject {
    Q_OBJECT

public:
    ScriptHandle(ScriptObjectPtr object, const ScriptClass& scriptClass)
        : object_(std::move(object))
        , class_(scriptClass) {}
    const ScriptObjectPtr& object() const { return object_; }
    const ScriptClass& scriptClass() const { return class_; }

private:
    ScriptObjectPtr object_;
    const ScriptClass& class_;
};

} // namespace zkp::script
