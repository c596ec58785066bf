#include "script/script_runner.h"

#include "core/enums.h"
#include "script/ado_objects.h"
#include "script/bag_objects.h"
#include "script/grid_object.h"
#include "script/host_object.h"
#include "script/script_control.h"
#include "script/scripts_host.h"

#include <QFile>
#include <QRegularExpression>

#include <vector>

namespace zkp::script {

namespace {

/// The line of the first entry of a trace ("function:line:column:file") that is not the bridge's.
int lineInTrace(const QStringList& trace) {
    static const QRegularExpression entry(QStringLiteral("^[^:]*:(-?\\d+):-?\\d+:(.*)$"));
    for (const QString& line : trace) {
        const QRegularExpressionMatch match = entry.match(line);
        if (match.hasMatch() && match.captured(2) != Bridge::bridgeFile())
            return match.captured(1).toInt();
    }
    return 0;
}

} // namespace

/// The script engine with all that scripts find in it.
class ScriptRunner::World {
public:
    World(Writer output, Writer errors, QString program);
    ~World();

    void addControl(const QString& name, ZkpGrid& grid);
    RunResult runFile(const QString& file, const QStringList& arguments);
    RunResult runText(const QString& text, const QString& file, const QStringList& arguments);

private:
    void addGlobals();
    ScriptObjectPtr makeGrid();
    ScriptObjectPtr objectOf(const ScriptControlPtr& control);
    void setLocale(const QLocale& locale);
    RunResult fail(const QString& file, const QJSValue& thrown, const QStringList& trace);

    Writer errors_;
    QString program_;
    QLocale formerLocale_;
    std::unique_ptr<QJSEngine> engine_;
    std::unique_ptr<Bridge> bridge_;
    std::shared_ptr<ScriptsHost> host_;
    std::vector<std::weak_ptr<ScriptControl>> controls_;
};

ScriptRunner::World::World(Writer output, Writer errors, QString program)
    : errors_(std::move(errors))
    , program_(std::move(program))
    , engine_(std::make_unique<QJSEngine>())
    , bridge_(std::make_unique<Bridge>(*engine_))
    , host_(std::make_shared<ScriptsHost>(*bridge_)) {
    bridge_->setPrinter(std::move(output));
    addGlobals();
}

ScriptRunner::World::~World() {
    // No handler runs any more, whatever the controls do on their way out.
    for (const auto& control : controls_) {
        if (const auto alive = control.lock(); alive && !alive->isDestroyed())
            alive->handlers().clear();
    }
    host_->release();
    for (const auto& control : controls_) {
        if (const auto alive = control.lock())
            alive->destroy();
    }
    bridge_.reset();
    engine_.reset();
    Bridge::deleteGivenUp();
    QLocale::setDefault(formerLocale_);
}

void ScriptRunner::World::addGlobals() {
    bridge_->addConstructor(QStringLiteral("ZkpGrid"), [this] { return makeGrid(); });
    bridge_->addConstructor(QStringLiteral("Connection"), [this] {
        return ConnectionObject::of(*bridge_, std::make_shared<ado::Connection>());
    });
    bridge_->addConstructor(QStringLiteral("Recordset"), [this] {
        return RecordsetObject::of(*bridge_, std::make_shared<ado::Recordset>());
    });
    bridge_->addConstructor(QStringLiteral("Command"),
                            [this] { return CommandObject::of(*bridge_, std::make_shared<ado::Command>()); });
    bridge_->addConstructor(QStringLiteral("PropertyBag"), [] {
        return std::make_shared<PropertyBagObject>(std::make_shared<PropertyBag>());
    });
    bridge_->addGlobal(QStringLiteral("host"),
                       bridge_->facade(std::make_shared<HostObject>(
                           host_, [this](const QLocale& locale) { setLocale(locale); })));
#define ZKP_ENUM_GLOBAL(name) bridge_->addGlobal(QStringLiteral(#name), static_cast<int>(name));
    ZKP_ENUM_VALUES(ZKP_ENUM_GLOBAL)
#undef ZKP_ENUM_GLOBAL
}

ScriptObjectPtr ScriptRunner::World::makeGrid() {
    return objectOf(std::make_shared<ScriptControl>(*bridge_, host_));
}

ScriptObjectPtr ScriptRunner::World::objectOf(const ScriptControlPtr& control) {
    std::erase_if(controls_, [](const auto& known) { return known.expired(); });
    controls_.push_back(control);
    return std::make_shared<GridObject>(control);
}

void ScriptRunner::World::addControl(const QString& name, ZkpGrid& grid) {
    const ScriptObjectPtr object = objectOf(std::make_shared<ScriptControl>(*bridge_, grid));
    bridge_->addGlobal(name, bridge_->facade(object));
}

/// Controls of the host's keep theirs.
void ScriptRunner::World::setLocale(const QLocale& locale) {
    QLocale::setDefault(locale);
    for (const auto& control : controls_) {
        if (const auto alive = control.lock(); alive && alive->isScripts())
            alive->grid().setLocale(locale);
    }
}

RunResult ScriptRunner::World::runFile(const QString& file, const QStringList& arguments) {
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly)) {
        const QString failure = QStringLiteral("can't read %1: %2").arg(file, source.errorString());
        errors_(program_.isEmpty() ? failure : QStringLiteral("%1: %2").arg(program_, failure));
        return kScriptNotReadable;
    }
    QString text = QString::fromUtf8(source.readAll());
    // A script may name its interpreter; the line stays, so that the others keep their numbers.
    if (text.startsWith(QLatin1String("#!")))
        text.prepend(QLatin1String("//"));
    return runText(text, file, arguments);
}

RunResult ScriptRunner::World::runText(const QString& text, const QString& file,
                                       const QStringList& arguments) {
    QJSValue list = engine_->newArray(static_cast<uint>(arguments.size()));
    for (int i = 0; i < arguments.size(); ++i)
        list.setProperty(static_cast<quint32>(i), arguments.at(i));
    bridge_->addGlobal(QStringLiteral("args"), list);

    QStringList trace;
    const QJSValue result = engine_->evaluate(text, file, 1, &trace);
    if (!trace.isEmpty())
        return fail(file, result, trace);
    if (const auto& stray = bridge_->strayFailure())
        return fail(file, *stray, {});
    return kScriptEnded;
}

RunResult ScriptRunner::World::fail(const QString& file, const QJSValue& thrown, const QStringList& trace) {
    bridge_->locate(thrown);
    const bool isError = thrown.isError();
    const int line = isError ? thrown.property(QStringLiteral("lineNumber")).toInt() : lineInTrace(trace);
    const QString message =
        isError ? thrown.property(QStringLiteral("message")).toString() : thrown.toString();
    errors_(QStringLiteral("%1:%2: %3").arg(file, QString::number(line), message));
    return kScriptFailed;
}

ScriptRunner::ScriptRunner(Writer output, Writer errors, const QString& program)
    : world_(std::make_unique<World>(std::move(output), std::move(errors), program)) {}

ScriptRunner::~ScriptRunner() = default;

void ScriptRunner::addControl(const QString& name, ZkpGrid& grid) {
    world_->addControl(name, grid);
}

RunResult ScriptRunner::runFile(const QString& file, const QStringList& arguments) {
    return world_->runFile(file, arguments);
}

RunResult ScriptRunner::runText(const QString& text, const QString& file, const QStringList& arguments) {
    return world_->runText(text, file, arguments);
}

} // namespace zkp::script
