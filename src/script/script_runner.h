#pragma once

#include "script/script_control.h"
#include "script/scripts_host.h"

#include <QJSEngine>
#include <QStringList>

#include <functional>
#include <memory>
#include <vector>

namespace zkp::script {

/// Runs scripts against the engine, with no window. One runner is one world: what a script leaves in
/// the globals is there for the next text.
class ScriptRunner {
public:
    using Writer = std::function<void(const QString& line)>;

    /// `output` gets the lines that scripts print, `errors` what ends a run.
    ScriptRunner(Writer output, Writer errors);
    ~ScriptRunner();

    /// 0 when the script ends, 1 when it fails ("FILE:LINE: message" goes to `errors`), 2 when the
    /// file can't be read.
    int runFile(const QString& file, const QStringList& arguments);
    int runText(const QString& text, const QString& file, const QStringList& arguments);

private:
    void addGlobals();
    ScriptObjectPtr makeGrid();
    void setLocale(const QLocale& locale);
    int fail(const QString& file, const QJSValue& thrown, const QStringList& trace);

    Writer output_;
    Writer errors_;
    QLocale formerLocale_;
    std::unique_ptr<QJSEngine> engine_;
    std::unique_ptr<Bridge> bridge_;
    std::shared_ptr<ScriptsHost> host_;
    std::vector<std::weak_ptr<ScriptControl>> controls_;
};

} // namespace zkp::script
