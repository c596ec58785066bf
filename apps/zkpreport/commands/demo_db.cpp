#include "commands/arguments.h"
#include "commands/command.h"
#include "commands/database_copy.h"

#include "base/error.h"
#include "database/database_place.h"
#include "demo/demo_database.h"

#include <QCoreApplication>
#include <QTemporaryDir>

namespace zkp::app {

namespace {

/// A whole number that an option gives, or nothing when it gives none.
template <class Number>
std::optional<Number> numberOf(const QCommandLineParser& parser, const QString& option, Number usual) {
    if (!parser.isSet(option))
        return usual;
    bool isNumber = false;
    const qlonglong number = parser.value(option).toLongLong(&isNumber);
    if (!isNumber || number < 0 || number > std::numeric_limits<Number>::max()) {
        printError(QStringLiteral("zkpreport demo-db: --%1 needs a whole number, not %2")
                       .arg(option, parser.value(option)));
        return std::nullopt;
    }
    return static_cast<Number>(number);
}

/// Into a server, by way of a file that goes again. The server is asked first, the file takes longer.
void makeInto(demo::Options options, const DatabasePlace& server) {
    const auto into = server.open();
    into->setCommandTimeout(0);
    mustBeEmpty(into, server.name());
    const QTemporaryDir folder;
    options.file = folder.filePath(QStringLiteral("demo.db"));
    demo::makeDatabase(options);
    copyDemoDatabase(DatabasePlace(options.file).open(), into);
}

/// Where the data are to go, or nothing when that is not told well.
std::optional<DatabasePlace> placeOf(const QCommandLineParser& parser) {
    const bool isInto = parser.isSet(QStringLiteral("into"));
    const QStringList files = parser.positionalArguments();
    if (files.size() != (isInto ? 0 : 1)) {
        printError(QStringLiteral("zkpreport demo-db: name one file to make, or --into one database"));
        return std::nullopt;
    }
    const DatabasePlace place(isInto ? parser.value(QStringLiteral("into")) : files.front());
    if (place.isServer() == isInto)
        return place;
    printError(isInto
                   ? QStringLiteral("zkpreport demo-db: --into takes the connection string of a server, "
                                    "which %1 is not")
                         .arg(withoutPasswords(place.file()))
                   : QStringLiteral("zkpreport demo-db: a server's connection string stands behind --into"));
    return std::nullopt;
}

} // namespace

int runDemoDb(Start start, const QStringList& arguments) {
    const QCoreApplication application(start.argc, start.argv);
    demo::Options options;
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Makes the demonstration database of an insurance office."));
    parser.addPositionalArgument(QStringLiteral("FILE"),
                                 QStringLiteral("Where it goes; must not exist yet."));
    parser.addOption({QStringLiteral("into"),
                      QStringLiteral("In place of a file: into an empty PostgreSQL or MariaDB database."),
                      QStringLiteral("CONNECTION")});
    parser.addOption({QStringLiteral("rows"), QStringLiteral("How many policies (%1).").arg(options.policies),
                      QStringLiteral("N")});
    parser.addOption(
        {QStringLiteral("seed"),
         QStringLiteral("The same seed and number of policies give the same data (%1).").arg(options.seed),
         QStringLiteral("S")});
    if (const auto exitCode = parseArguments(parser, QStringLiteral("demo-db"), arguments))
        return *exitCode;
    const auto place = placeOf(parser);
    if (!place)
        return kExitUsage;
    const auto rows = numberOf<int>(parser, QStringLiteral("rows"), options.policies);
    const auto seed = numberOf<std::uint32_t>(parser, QStringLiteral("seed"), options.seed);
    if (!rows || !seed)
        return kExitUsage;
    options.policies = *rows;
    options.seed = *seed;
    try {
        if (place->isServer()) {
            makeInto(options, *place);
        } else {
            options.file = place->file();
            demo::makeDatabase(options);
        }
    } catch (const Error& error) {
        printError(QStringLiteral("zkpreport demo-db: %1").arg(error.description()));
        return kExitFailed;
    }
    return kExitDone;
}

} // namespace zkp::app
