#include "commands/arguments.h"
#include "commands/command.h"
#include "commands/database_copy.h"

#include "base/error.h"
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

/// Into a server, by way of a file that goes again.
void makeInto(demo::Options options, const QString& connectionString) {
    const QTemporaryDir folder;
    options.file = folder.filePath(QStringLiteral("demo.db"));
    demo::makeDatabase(options);
    const auto from = std::make_shared<ado::Connection>();
    from->Open(QStringLiteral("sqlite:") + options.file);
    const auto into = std::make_shared<ado::Connection>();
    into->setCommandTimeout(0);
    into->Open(connectionString);
    copyDemoDatabase(from, into);
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
    const QString into = parser.value(QStringLiteral("into"));
    if (parser.positionalArguments().size() != (into.isEmpty() ? 1 : 0)) {
        printError(QStringLiteral("zkpreport demo-db: name one file to make, or --into one database"));
        return kExitUsage;
    }
    const auto rows = numberOf<int>(parser, QStringLiteral("rows"), options.policies);
    const auto seed = numberOf<std::uint32_t>(parser, QStringLiteral("seed"), options.seed);
    if (!rows || !seed)
        return kExitUsage;
    options.policies = *rows;
    options.seed = *seed;
    try {
        if (into.isEmpty()) {
            options.file = parser.positionalArguments().front();
            demo::makeDatabase(options);
        } else {
            makeInto(options, into);
        }
    } catch (const Error& error) {
        printError(QStringLiteral("zkpreport demo-db: %1").arg(error.description()));
        return kExitFailed;
    }
    return kExitDone;
}

} // namespace zkp::app
