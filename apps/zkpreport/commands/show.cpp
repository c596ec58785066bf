#include "commands/arguments.h"
#include "commands/command.h"

#include "database/database_place.h"
#include "host/scripted_host.h"
#include "window/report_text.h"
#include "window/report_window.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QMessageBox>
#include <QThread>
#include <QWindow>

namespace zkp::app {

namespace {

constexpr int kRowsAsText = 20;

/// Without a screen Qt can't start; its off-screen platform can.
void chooseOffscreenWithoutDisplay() {
    const bool hasScreen = !qEnvironmentVariableIsEmpty("DISPLAY") ||
                           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
                           !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
#ifdef Q_OS_LINUX
    if (!hasScreen)
        qputenv("QT_QPA_PLATFORM", "offscreen");
#else
    Q_UNUSED(hasScreen)
#endif
}

bool hasDisplay() {
    return QGuiApplication::platformName() != QLatin1String("offscreen") &&
           QGuiApplication::platformName() != QLatin1String("minimal");
}

/// Nobody could answer a box that stands off screen: it becomes a line on standard error.
class ConsoleHost : public ScriptedHost {
public:
    int msgBox(const QString& text, int style, const QString& title) override {
        printError(text.simplified());
        return ScriptedHost::msgBox(text, style, title);
    }
};

constexpr int kLongestWaitForScreen = 1000; // milliseconds

/// A load lets no events in and shows how it goes all the same, on a window that is on screen already.
void waitUntilOnScreen(const QWidget& window) {
    QElapsedTimer clock;
    clock.start();
    while (window.windowHandle() && !window.windowHandle()->isExposed() &&
           clock.elapsed() < kLongestWaitForScreen) {
        QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        QThread::msleep(2);
    }
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

int showWindow(const QString& database, const FirstReport& first) {
    ReportWindow window;
    window.show();
    waitUntilOnScreen(window);
    window.showDatabase(database, first);
    if (!window.hasDatabase()) {
        printError(window.message());
        QMessageBox::critical(&window, window.windowTitle(), window.message());
        return kExitFailed;
    }
    return QApplication::exec();
}

int drawPicture(const QString& database, const FirstReport& first, const QString& picture) {
    ReportWindow window(std::make_shared<ConsoleHost>());
    const bool isLoaded = window.showDatabase(database, first);
    QApplication::processEvents();
    if (!isLoaded) {
        if (!window.message().isEmpty())
            printError(window.message());
        return kExitFailed;
    }
    printLine(reportText(window.grid().MSFlexGrid1(), kRowsAsText));
    if (!window.grab().save(picture)) {
        printError(QStringLiteral("zkpreport show: can't write the picture %1").arg(picture));
        return kExitFailed;
    }
    printLine(QStringLiteral("\nThere is no display. The window is in the picture %1")
                  .arg(QDir::toNativeSeparators(QFileInfo(picture).absoluteFilePath())));
    return kExitDone;
}

void addOptions(QCommandLineParser& parser) {
    parser.addPositionalArgument(QStringLiteral("DB"), QStringLiteral("The same as --database."),
                                 QStringLiteral("[DB]"));
    parser.addOption(databaseOption());
    parser.addOption({QStringLiteral("picture"), QStringLiteral("Where the picture goes (plain_report.png)."),
                      QStringLiteral("FILE"), QStringLiteral("plain_report.png")});
    parser.addOption({QStringLiteral("report"),
                      QStringLiteral("Source or title of the report to open (the first one)."),
                      QStringLiteral("NAME")});
    parser.addOption(
        {QStringLiteral("user"), QStringLiteral("Whose rights hold (all rows)."), QStringLiteral("ID")});
    parser.addOption({QStringLiteral("filter"),
                      QStringLiteral("Condition in keys of the report's dictionary, as PREMIUM>1000."),
                      QStringLiteral("TEXT")});
    parser.addOption({QStringLiteral("group"),
                      QStringLiteral("Up to four keys to group by, outermost first, as REGION,BRANCH."),
                      QStringLiteral("KEYS")});
    parser.addOption({QStringLiteral("totals"), QStringLiteral("One row for each group.")});
}

} // namespace

int runShow(Start start, const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Shows the reports of a database in a window. Without a display it draws the window into a\n"
        "picture and prints the first rows as text."));
    addOptions(parser);
    // The parser's help asks for an application, which a wrong option must not need.
    chooseOffscreenWithoutDisplay();
    const QApplication application(start.argc, start.argv);
    if (const auto exitCode = parseArguments(parser, QStringLiteral("show"), arguments))
        return *exitCode;

    const QStringList named = parser.positionalArguments();
    if (named.size() > 1 || (named.size() == 1 && parser.isSet(QStringLiteral("database")))) {
        printError(QStringLiteral("zkpreport show: name one database"));
        return kExitUsage;
    }
    if (parser.isSet(QStringLiteral("totals")) && parser.value(QStringLiteral("group")).isEmpty()) {
        printError(QStringLiteral("zkpreport show: --totals needs --group"));
        return kExitUsage;
    }
    const QString database = named.isEmpty() ? parser.value(QStringLiteral("database")) : named.front();
    if (const DatabasePlace place(database); place.isMissing()) {
        printError(QStringLiteral("zkpreport show: there is no file %1; zkpreport demo-db %1 makes a "
                                  "demonstration database")
                       .arg(withoutPasswords(place.file())));
        return kExitUsage;
    }
    const FirstReport first{parser.value(QStringLiteral("report")), parser.value(QStringLiteral("user")),
                            parser.value(QStringLiteral("filter")),
                            parser.value(QStringLiteral("group")).split(u',', Qt::SkipEmptyParts),
                            parser.isSet(QStringLiteral("totals"))};
    return hasDisplay() ? showWindow(database, first)
                        : drawPicture(database, first, parser.value(QStringLiteral("picture")));
}

} // namespace zkp::app
