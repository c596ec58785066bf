#include "commands/command.h"

#include "script/script_runner.h"

#include <QCoreApplication>

namespace zkp::app {

int runRun(Start start, const QStringList& arguments) {
    if (arguments.isEmpty()) {
        printError(QStringLiteral("zkpreport run: which script? zkpreport run FILE.js [ARGUMENT...]"));
        return kExitUsage;
    }
    if (arguments.front() == QLatin1String("--help") || arguments.front() == QLatin1String("-h")) {
        printLine(
            QStringLiteral("Usage: zkpreport run FILE.js [ARGUMENT...]\n\n"
                           "Runs a script against the report engine. The script finds the arguments in\n"
                           "`args`. Exit code 0: the script ended; 1: it failed, FILE:LINE: message is on\n"
                           "standard error; 2: it could not be read."));
        return kExitDone;
    }
    const QCoreApplication application(start.argc, start.argv);
    script::ScriptRunner runner(printLine, printError, QStringLiteral("zkpreport"));
    return runner.runFile(arguments.front(), arguments.mid(1));
}

} // namespace zkp::app
