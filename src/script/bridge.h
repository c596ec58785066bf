#pragma once

#include "base/error.h"
#include "script/call_frame.h"
#include "script/gate.h"
#include "script/script_class.h"
#include "script/value_conversion.h"

#include <QHash>
#include <QJSEngine>
#include <QPointer>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <tuple>

namespace zkp::script {

/// Between the script engine and the objects that scripts hold. Every call from a script comes in
/// through `guarded`, which turns failures into script errors, since a C++ exception must not pass
/// through the engine; every call into a script goes out through `invoke`.
class Bridge {
public:
    explicit Bridge(QJSEngine& engine);
    ~Bridge();
    Bridge(const Bridge&) = delete;
    Bridge& operator=(const Bridge&) = delete;

    QJSEngine& engine() { return engine_; }
    const ValueConversion& values() const { return values_; }

    /// Offers `new NAME()` to scripts.
    void addConstructor(const QString& name, std::function<ScriptObjectPtr()> make);
    void addGlobal(const QString& name, const QJSValue& value);
    void setPrinter(std::function<void(const QString&)> printer) { printer_ = std::move(printer); }

    /// The script's object for an object, the same each time as long as the script holds it; null for null.
    QJSValue facade(const ScriptObjectPtr& object);

    /// The object of class T for something of the engine at an address: the one that lives, or a new
    /// one. `owner` is what keeps the address from meaning something else while the object lives.
    template <class T, class... Args>
    std::shared_ptr<T> shared(const void* address, const void* owner, Args&&... args) {
        std::weak_ptr<ScriptObject>& known = shared_[{address, owner, &T::staticMetaObject}];
        if (const ScriptObjectPtr alive = known.lock())
            return std::static_pointer_cast<T>(alive);
        const auto made = std::make_shared<T>(std::forward<Args>(args)...);
        known = made;
        return made;
    }

    /// The argument object of an event or a question to the script's host.
    QJSValue makeArguments(const QString& className, const QStringList& names, const QList<QJSValue>& values);

    /// Calls a script's function. What it throws is kept as the failure of the present operation and
    /// comes back as an Error; the script that started the operation gets it when that has ended.
    QJSValue invoke(const QJSValue& function, const QJSValue& argument);

    /// The same for what is found wrong behind a handler, e.g. in the argument object it left.
    [[noreturn]] void failHandler(const Error& error);

    /// For failures that no script call is there to receive, e.g. of a handler that runs at the end.
    const std::optional<QJSValue>& strayFailure() const { return strayFailure_; }

    /// A thrown value's place in the script ("FILE:LINE") is set right if it points into the bridge.
    void locate(const QJSValue& error);
    /// What the script engine gave up waits for an event loop to delete it; where none runs, it goes now.
    static void deleteGivenUp();
    /// The file that bridge.js goes by in places and traces, in the engine's own form.
    static QString bridgeFile();

    // The gate's side: what a script does with an object.
    QJSValue get(ScriptHandle* handle, int member);
    void set(ScriptHandle* handle, int member, const QJSValue& value);
    QJSValue call(ScriptHandle* handle, int member, int count, const QJSValue& arguments);
    QJSValue create(const QString& className, int argumentCount);
    void print(const QString& line);

private:
    struct MemberPlace {
        const ScriptClass* owner = nullptr;
        int index = 0;
    };

    const ScriptClass& classOf(const ScriptObject& object);
    const ScriptMember& memberOf(const ScriptHandle* handle, int id) const;
    QJSValue guarded(const std::function<QJSValue()>& work);
    QJSValue makeError(const Error& error);
    QJSValue helper(const char* name) const;
    void keepFailure(const QJSValue& thrown);

    QJSEngine& engine_;
    ValueConversion values_;
    Gate gate_;
    QJSValue helpers_;
    QJSValue invoker_; ///< of the helpers, those that every event and object asks for
    QJSValue facadeMaker_;
    std::map<std::pair<const QMetaObject*, const QMetaObject*>, std::unique_ptr<ScriptClass>> classes_;
    std::vector<MemberPlace> members_;
    QHash<QString, std::function<ScriptObjectPtr()>> constructors_;
    QHash<QString, QJSValue> argumentMakers_;
    std::map<std::tuple<const void*, const void*, const QMetaObject*>, std::weak_ptr<ScriptObject>> shared_;
    std::map<const ScriptObject*, QPointer<ScriptHandle>> handles_;
    std::function<void(const QString&)> printer_;
    CallFrame* frame_ = nullptr;
    std::optional<QJSValue> strayFailure_;
    int handlesSinceSweep_ = 0;
};

} // namespace zkp::script
