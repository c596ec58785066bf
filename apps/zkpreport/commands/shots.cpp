#include "commands/arguments.h"
#include "commands/command.h"

#include "base/error.h"
#include "database/database_place.h"
#include "demo/demo_database.h"
#include "host/scripted_host.h"
#include "window/window_pictures.h"

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>

namespace zkp::app {

namespace {

constexpr int kPolicies = 110; // few enough for several subtotals on a page

const QStringList kGroups{QStringLiteral("CATEGORY"), QStringLiteral("PRODUCTNAME")};

struct Shot {
    const char* file;
    FirstReport report;
    void (*pose)(ReportWindow&) = nullptr; ///< what the user is doing
    double scale = 1;
    bool isDark = false;
};

/// The pictures in the order of the printed list.
std::vector<Shot> shots() {
    const FirstReport plain;
    const FirstReport grouped{{}, {}, {}, kGroups};
    const FirstReport totals{{}, {}, {}, kGroups, true};
    return {
        {"plain_report.png", plain},
        {"grouped_report.png", grouped},
        {"totals_report.png", totals},
        {"context_menu.png", grouped, openContextMenu},
        {"column_drag.png", grouped, dragHeading},
        {"grouped_report_200.png", grouped, nullptr, 2},
        {"grouped_report_dark.png", grouped, nullptr, 1, true},
        {"totals_report_dark.png", totals, nullptr, 1, true},
        {"context_menu_dark_200.png", grouped, openContextMenu, 2, true},
    };
}

bool take(const Shot& shot, const QString& database, const QString& file) {
    QApplication::setPalette(shot.isDark ? darkPalette() : QPalette());
    ReportWindow window(std::make_shared<ScriptedHost>());
    window.show();
    QApplication::setActiveWindow(&window);
    if (!window.showDatabase(database, shot.report)) {
        printError(QStringLiteral("zkpreport shots: no report for %1 %2")
                       .arg(QLatin1String(shot.file), window.message()));
        return false;
    }
    window.findChild<GridView*>()->setFocus();
    letEventsRun();
    if (shot.pose)
        shot.pose(window);
    if (!pictureOf(window, shot.scale).save(file)) {
        printError(QStringLiteral("zkpreport shots: can't write the picture %1").arg(file));
        return false;
    }
    printLine(QDir::toNativeSeparators(file));
    return true;
}

int takeAll(const QString& database, const QDir& folder) {
    for (const Shot& shot : shots())
        if (!take(shot, database, folder.filePath(QLatin1String(shot.file))))
            return kExitFailed;
    return kExitDone;
}

} // namespace

/// The pictures are the same wherever they are made: with no screen, in the toolkit's own style.
int runShots(Start start, const QStringList& arguments) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(start.argc, start.argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Draws the window's reports into pictures."));
    parser.addPositionalArgument(QStringLiteral("FOLDER"), QStringLiteral("Where the pictures go."));
    parser.addOption({QStringLiteral("database"),
                      QStringLiteral("SQLite file, or the connection string of a server (a demonstration "
                                     "database made for it)."),
                      QStringLiteral("DB")});
    if (const auto exitCode = parseArguments(parser, QStringLiteral("shots"), arguments))
        return *exitCode;
    const QDir folder(parser.positionalArguments().value(0));
    if (parser.positionalArguments().size() != 1 || !folder.mkpath(QStringLiteral("."))) {
        printError(QStringLiteral("zkpreport shots: name one folder that can be written to"));
        return kExitUsage;
    }
    const QTemporaryDir made;
    demo::Options options;
    options.policies = kPolicies;
    options.file = made.filePath(QStringLiteral("demo.db"));
    const QString database = parser.value(QStringLiteral("database"));
    if (const DatabasePlace place(database); !database.isEmpty() && place.isMissing()) {
        printError(
            QStringLiteral("zkpreport shots: there is no file %1").arg(withoutPasswords(place.file())));
        return kExitUsage;
    }
    try {
        if (database.isEmpty())
            demo::makeDatabase(options);
        return takeAll(database.isEmpty() ? options.file : database, folder);
    } catch (const Error& error) {
        printError(QStringLiteral("zkpreport shots: %1").arg(error.description()));
        return kExitFailed;
    }
}

} // namespace zkp::app
