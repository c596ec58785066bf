#pragma once

#include <QCommandLineParser>

#include <optional>

namespace zkp::app {

/// Reads a command's options. Gives the exit code when the command is not to run: after `--help`,
/// which is printed, or after an error, which is told with the command's name.
std::optional<int> parseArguments(QCommandLineParser& parser, const QString& command,
                                  const QStringList& arguments);

/// `--database`, with demo.db where it is not given.
QCommandLineOption databaseOption();

} // namespace zkp::app
