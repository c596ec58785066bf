#include "script/script_runner.h"

#include "core/enums.h"
#include "script/ado_objects.h"
#include "script/bag_objects.h"
#include "script/grid_object.h"
#include "script/host_object.h"

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QRegularExpression>

namespace zkp::script {

namespace {

constexpr int kEnded = 0;
constexpr int kFailed = 1;
constexpr int kNotReadable = 2;

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

ScriptRunner::ScriptRunner(Writer output, Writer errors)
    : output_(std::move(output))
    , errors_(std::move(errors))
    , engine_(std::make_unique<QJSEngine>())
    , bridge_(std::make_unique<Bridge>(*engine_))
    , host_(std::make_shared<ScriptsHost>(*bridge_)) {
    bridge_->setPrinter(output_);
    addGlobals();
}

ScriptRunner::~ScriptRunner() {
    // No handler runs any more, whatever the controls do on their way out.
    for (const auto& control : controls_) {
        if (const auto alive = control.lock(); alive && !alive->isDestroyed())
            alive->handlers().clear();
    }
    host_->release();
    bridge_.reset();
    engine_.reset();
    // What the script engine gave up earlier waits for an event loop that may never run.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QLocale::setDefault(formerLocale_);
}

void ScriptRunner::addGlobals() {
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

ScriptObjectPtr ScriptRunner::makeGrid() {
    std::erase_if(controls_, [](const auto& control) { return control.expired(); });
    const auto control = std::make_shared<ScriptControl>(*bridge_, host_);
    controls_.push_back(control);
    return std::make_shared<GridObject>(control);
}

void ScriptRunner::setLocale(const QLocale& locale) {
    QLocale::setDefault(locale);
    for (const auto& control : controls_) {
        if (const auto alive = control.lock(); alive && !alive->isDestroyed())
            alive->grid().setLocale(locale);
    }
}

int ScriptRunner::runFile(const QString& file, const QStringList& arguments) {
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly)) {
        errors_(QStringLiteral("zkpreport: can't read %1: %2").arg(file, source.errorString()));
        return kNotReadable;
    }
    QString text = QString::fromUtf8(source.readAll());
    // A script may name its interpreter; the line stays, so that the others keep their numbers.
    if (text.startsWith(QLatin1String("#!")))
        text.prepend(QLatin1String("//"));
    return runText(text, file, arguments);
}

int ScriptRunner::runText(const QString& text, const QString& file, const QStringList& arguments) {
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
    return kEnded;
}

int ScriptRunner::fail(const QString& file, const QJSValue& thrown, const QStringList& trace) {
    bridge_->locate(thrown);
    const bool isError = thrown.isError();
    const int line = isError ? thrown.property(QStringLiteral("lineNumber")).toInt() : lineInTrace(trace);
    const QString message =
        isError ? thrown.property(QStringLiteral("message")).toString() : thrown.toString();
    errors_(QStringLiteral("%1:%2: %3").arg(file, QString::number(line), message));
    return kFailed;
}

} // namespace zkp::script
