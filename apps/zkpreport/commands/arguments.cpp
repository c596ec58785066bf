#include "commands/arguments.h"

#include "commands/command.h"

#include <QCoreApplication>

namespace zkp::app {

std::optional<int> parseArguments(QCommandLineParser& parser, const QString& command,
                                  const QStringList& arguments) {
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Tells this."));
    parser.addOption(help);
    // The parser takes the first entry for the program.
    const QString program = QStringLiteral("zkpreport %1").arg(command);
    if (!parser.parse(QStringList{program} + arguments)) {
        printError(QStringLiteral("%1: %2").arg(program, parser.errorText()));
        return kExitUsage;
    }
    if (parser.isSet(help)) {
        // The parser names the program by the path that it was started with.
        printLine(parser.helpText().replace(QCoreApplication::arguments().front(), program).trimmed());
        return kExitDone;
    }
    return std::nullopt;
}

QCommandLineOption databaseOption() {
    return {QStringLiteral("database"),
            QStringLiteral("SQLite file, or the connection string of a server (demo.db)."),
            QStringLiteral("DB"), QStringLiteral("demo.db")};
}

} // namespace zkp::app
