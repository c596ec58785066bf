#include "commands/command.h"

#include "database/database_place.h"
#include "zkpreport_version.h"

#include <array>
#include <cstdio>

namespace zkp::app {

namespace {

constexpr std::array kCommands{
    Command{"show", "[--database DB] [OPTION...]", "shows the reports of a database; the usual command",
            runShow},
    Command{"run", "FILE.js [ARGUMENT...]", "runs a script, with no window and no display", runRun},
    Command{"demo-db", "FILE|--into CONNECTION [--rows N] [--seed S]", "makes the demonstration database",
            runDemoDb},
    Command{"template", "list | export NAME FILE | import NAME FILE", "saved report shapes as text",
            runTemplate},
    Command{"shots", "FOLDER [--database DB]", "draws the window's reports into pictures", runShots},
};

void printHelp() {
    printLine(QStringLiteral("Usage: zkpreport [COMMAND] [ARGUMENT...]\n"));
    printLine(QStringLiteral("Commands:"));
    for (const Command& command : commands()) {
        const QString usage =
            QStringLiteral("%1 %2").arg(QLatin1String(command.name), QLatin1String(command.arguments));
        printLine(QStringLiteral("  %1  %2").arg(usage, -42).arg(QLatin1String(command.summary)));
    }
    printLine(QStringLiteral("\n  --help, -h     tells this; COMMAND --help tells a command's options\n"
                             "  --version, -v  tells the version"));
}

const Command* findCommand(const QString& name) {
    for (const Command& command : commands()) {
        if (name == QLatin1String(command.name))
            return &command;
    }
    return nullptr;
}

void printBytes(std::FILE* to, const QString& line) {
    const QByteArray bytes = line.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), to);
    std::fflush(to);
}

} // namespace

std::span<const Command> commands() {
    return kCommands;
}

void printLine(const QString& line) {
    printBytes(stdout, line);
}
void printError(const QString& line) {
    printBytes(stderr, line);
}

int runCommandLine(Start start) {
    QStringList arguments;
    for (int i = 1; i < start.argc; ++i)
        arguments.append(QString::fromLocal8Bit(start.argv[i]));

    const QString first = arguments.isEmpty() ? QStringLiteral("show") : arguments.front();
    if (first == QLatin1String("--help") || first == QLatin1String("-h")) {
        printHelp();
        return kExitDone;
    }
    if (first == QLatin1String("--version") || first == QLatin1String("-v")) {
        printLine(QStringLiteral("zkpreport " ZKPREPORT_VERSION));
        return kExitDone;
    }
    const Command* command = findCommand(first);
    if (!command) {
        printError(QStringLiteral("zkpreport: there is no command %1; zkpreport --help lists them")
                       .arg(withoutPasswords(first)));
        return kExitUsage;
    }
    return command->run(start, arguments.mid(1));
}

} // namespace zkp::app
