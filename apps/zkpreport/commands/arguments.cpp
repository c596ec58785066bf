#include "commands/arguments.h"

#include "commands/command.h"

namespace zkp::app {

std::optional<int> parseArguments(QCommandLineParser& parser, const QString& command,
                                  const QStringList& arguments) {
    const QCommandLineOption help = parser.addHelpOption();
    // The parser takes the first entry for the program.
    const QString program = QStringLiteral("zkpreport %1").arg(command);
    if (!parser.parse(QStringList{program} + arguments)) {
        printError(QStringLiteral("%1: %2").arg(program, parser.errorText()));
        return kExitUsage;
    }
    if (parser.isSet(help)) {
        printLine(parser.helpText().trimmed());
        return kExitDone;
    }
    return std::nullopt;
}

} // namespace zkp::app
