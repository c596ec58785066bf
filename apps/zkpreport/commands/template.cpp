#include "commands/arguments.h"
#include "commands/command.h"

#include "ado/recordset.h"
#include "bag/property_bag_text.h"
#include "base/error.h"
#include "database/database_place.h"
#include "template/template_rows.h"

#include <QCoreApplication>
#include <QFile>
#include <QSaveFile>

namespace zkp::app {

namespace {

constexpr int kFileNotReadable = 53;
constexpr int kFileNotWritable = 75;

ado::ConnectionPtr openDatabase(const QString& named) {
    const DatabasePlace place(named);
    if (place.isMissing())
        throw Error(kFileNotReadable,
                    QStringLiteral("there is no file %1").arg(withoutPasswords(place.file())));
    return place.open();
}

/// Every name that `export` takes: four characters and a number stand for a row of `frms`.
void listTemplates(const ado::ConnectionPtr& connection) {
    const auto print = [&](const QString& statement, const QString& prefix) {
        const ado::RecordsetPtr rows = connection->Execute(statement);
        for (; !rows->Eof(); rows->MoveNext())
            printLine(prefix + rows->Collect(QStringLiteral("lstCode")).toString());
    };
    print(QStringLiteral("select lstCode from frms where ZKP_ is not null and lstCode between 1 and 32767 "
                         "order by lstCode"),
          QStringLiteral("frms"));
    print(QStringLiteral("select lstCode from frms2 where ZKP_ is not null order by lstCode"), {});
}

/// Without the row of `frms` that a number stands for, the words would be about records only.
template <class F>
void inRow(const TemplatePlace& place, F call) {
    try {
        call();
    } catch (const Error& error) {
        if (!place.number || error.number() != kErrNoCurrentRecord)
            throw;
        throw Error(error.number(),
                    QStringLiteral("there is no row %1 in frms, which a name with a number from its fifth "
                                   "character on stands for; another name goes into frms2")
                        .arg(*place.number));
    }
}

void exportTemplate(const ado::ConnectionPtr& connection, const QString& name, const QString& file) {
    const TemplatePlace place = placeToOpen(name);
    QVariant bytes;
    inRow(place, [&] { bytes = TemplateRows(connection).read(place); });
    if (!bytes.isValid())
        throw Error(kErrNoCurrentRecord, QStringLiteral("there is no template %1").arg(name));
    PropertyBag bag;
    bag.setContents(bytes.toByteArray());
    QSaveFile target(file);
    if (!target.open(QIODevice::WriteOnly) || target.write(bagText(bag)) < 0 || !target.commit())
        throw Error(kFileNotWritable, QStringLiteral("can't write %1: %2").arg(file, target.errorString()));
}

void importTemplate(const ado::ConnectionPtr& connection, const QString& name, const QString& file) {
    QFile source(file);
    if (!source.open(QIODevice::ReadOnly))
        throw Error(kFileNotReadable, QStringLiteral("can't read %1: %2").arg(file, source.errorString()));
    const PropertyBag bag = bagFromText(source.readAll());
    const TemplatePlace place = placeToSave(name);
    inRow(place, [&] { TemplateRows(connection).store(place, bag.Contents()); });
}

/// One thing that the command does, with as many words behind its name.
struct Action {
    const char* name;
    int words;
    void (*run)(const ado::ConnectionPtr& connection, const QStringList& words);
};

constexpr Action kActions[] = {
    {"list", 0, [](const ado::ConnectionPtr& connection, const QStringList&) { listTemplates(connection); }},
    {"export", 2,
     [](const ado::ConnectionPtr& connection, const QStringList& words) {
         exportTemplate(connection, words[0], words[1]);
     }},
    {"import", 2,
     [](const ado::ConnectionPtr& connection, const QStringList& words) {
         importTemplate(connection, words[0], words[1]);
     }},
};

const Action* findAction(const QStringList& words) {
    for (const Action& action : kActions)
        if (!words.isEmpty() && words.front() == QLatin1String(action.name) &&
            words.size() == action.words + 1)
            return &action;
    return nullptr;
}

} // namespace

int runTemplate(Start start, const QStringList& arguments) {
    const QCoreApplication application(start.argc, start.argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "The saved report shapes of a database as sorted text, one key a line, to compare and to keep.\n"
        "  list                lists their names\n"
        "  export NAME FILE    writes one into a file\n"
        "  import NAME FILE    reads it back, exactly"));
    parser.addPositionalArgument(QStringLiteral("ACTION"), QStringLiteral("list, export or import."));
    parser.addPositionalArgument(QStringLiteral("NAME FILE"),
                                 QStringLiteral("The template, and the text file."),
                                 QStringLiteral("[NAME FILE]"));
    parser.addOption(databaseOption());
    if (const auto exitCode = parseArguments(parser, QStringLiteral("template"), arguments))
        return *exitCode;
    const QStringList words = parser.positionalArguments();
    const Action* action = findAction(words);
    if (!action) {
        printError(QStringLiteral("zkpreport template: say list, export NAME FILE or import NAME FILE"));
        return kExitUsage;
    }
    try {
        action->run(openDatabase(parser.value(QStringLiteral("database"))), words.mid(1));
    } catch (const Error& error) {
        printError(QStringLiteral("zkpreport template: %1").arg(error.description()));
        return kExitFailed;
    }
    return kExitDone;
}

} // namespace zkp::app
