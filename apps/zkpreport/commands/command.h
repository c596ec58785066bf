#pragma once

#include <QStringList>

#include <span>

namespace zkp::app {

/// How the program was started, for Qt's application object.
struct Start {
    int& argc;
    char** argv;
};

/// The program's exit codes.
enum ExitCode { kExitDone = 0, kExitFailed = 1, kExitUsage = 2 };

/// One command of the program.
struct Command {
    const char* name;
    const char* arguments; ///< as the help shows them
    const char* summary;   ///< one line
    /// `arguments` are those behind the command's name.
    int (*run)(Start start, const QStringList& arguments);
};

/// All commands, in the order of the help.
std::span<const Command> commands();

/// Runs what the command line asks for; `show` where it names no command.
int runCommandLine(Start start);

int runShow(Start start, const QStringList& arguments);
int runRun(Start start, const QStringList& arguments);
int runDemoDb(Start start, const QStringList& arguments);
int runShots(Start start, const QStringList& arguments);
int runTemplate(Start start, const QStringList& arguments);

/// One line to standard output or standard error, in UTF-8.
void printLine(const QString& line);
void printError(const QString& line);

} // namespace zkp::app
