#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

namespace zkp {
class ZkpGrid;
}

namespace zkp::script {

/// How a run of a script ended.
enum RunResult { kScriptEnded = 0, kScriptFailed = 1, kScriptNotReadable = 2 };

/// Runs scripts against the engine. One runner is one world: what a script leaves in the globals is
/// there for the next text. Scripts make controls of their own, which need no window, and reach those
/// that the host offers.
///
/// It wants a QCoreApplication and belongs to the thread of its controls. While it lives, `host.locale`
/// of a script is the process's default locale; the one before comes back with its end.
class ScriptRunner {
public:
    using Writer = std::function<void(const QString& line)>;

    /// `output` gets the lines that scripts print, `errors` what ends a run. A failure that is not the
    /// script's own begins with the name of the program, where one is given.
    ScriptRunner(Writer output, Writer errors, const QString& program = {});
    ~ScriptRunner();

    /// Offers a control of the host's to scripts, under a global name. Its boxes go to its own host, and a
    /// script can't destroy it. It may be gone before the runner: then it is an error to use it.
    void addControl(const QString& name, ZkpGrid& grid);

    /// Runs a file in UTF-8; scripts find the arguments in `args`. What ends it in a failure goes to
    /// `errors`: "FILE:LINE: message", or "PROGRAM: can't read FILE: reason".
    RunResult runFile(const QString& file, const QStringList& arguments = {});
    /// Runs a text; `file` is what it goes by in failures.
    RunResult runText(const QString& text, const QString& file, const QStringList& arguments = {});

private:
    class World;
    std::unique_ptr<World> world_;
};

} // namespace zkp::script
