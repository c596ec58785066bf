#include "host/shell_open.h"

#include "base/text.h"
#include "base/texts/shell.h"
#include "host/error_box.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace zkp {

namespace {

constexpr int kLastFailure = 32;
constexpr int kNormalWindow = 1;
constexpr int kProgramWindow = 0;
constexpr std::uint32_t kErrorBase = 0x80040418;

/// All the shell's codes are 0 here, as wanted: an answer of 0 meets the first test of the table, and
/// every other failure none of them.
enum ShellCode {
    kNoMemory = 0,
    kNoFile = 0,
    kNoFolder = 0,
    kBadProgram = 0,
    kNoRights = 0,
    kIncompleteAssociation = 0,
    kBusy = 0,
    kDdeFailed = 0,
    kDdeTimeout = 0,
    kNoLibrary = 0,
    kShellNoFile = 0,
    kNoAssociation = 0,
    kShellNoMemory = 0,
    kShellNoFolder = 0,
    kInUse = 0,
};

struct Failure {
    ShellCode code;
    QString message;
    std::uint32_t number; ///< 0 keeps the number made of the answer
};

std::vector<Failure> failures() {
    return {
        {kNoMemory, texts::shellNoMemory(), 7},
        {kNoFile, texts::shellNoFile(), 53},
        {kNoFolder, texts::shellNoFolder(), 76},
        {kBadProgram, texts::shellBadProgram(), 0},
        {kNoRights, texts::shellNoRights(), 75},
        {kIncompleteAssociation, texts::shellBadAssociation(), 0},
        {kBusy, texts::shellBusy(), 285},
        {kDdeFailed, texts::shellDdeFailed(), 285},
        {kDdeTimeout, texts::shellTimeout(), 286},
        {kNoLibrary, texts::shellNoLibrary(), 48},
        {kShellNoFile, texts::shellNoFile(), 53},
        {kNoAssociation, texts::shellNoProgram(), 0},
        {kShellNoMemory, texts::shellNoMemory(), 7},
        {kShellNoFolder, texts::shellNoFolder(), 76},
        {kInUse, texts::shellInUse(), 75},
    };
}

/// A host that fails by an error has answered 0.
int askShell(Shell& shell, const QString& file, int windowMode, const QString& parameters,
             const QString& directory, const QString& verb) {
    try {
        if (parameters.isEmpty() && directory.isEmpty())
            return shell.shellOpen(file, verb, {}, {}, kNormalWindow);
        return shell.shellOpen(file, verb, parameters, directory, windowMode);
    } catch (const Error&) {
        return 0;
    }
}

QString errorSource() {
    const QString program =
        QCoreApplication::instance() ? QCoreApplication::applicationFilePath() : QString();
    return QFileInfo(program).completeBaseName() + QStringLiteral(".GShell");
}

} // namespace

Error shellError(int answer) {
    const std::uint32_t number = kErrorBase + static_cast<std::uint32_t>(answer);
    for (const Failure& failure : failures()) {
        if (answer == failure.code)
            return {failure.number != 0 ? failure.number : number, failure.message, errorSource()};
    }
    return {number, texts::shellFailed(), errorSource()};
}

bool ShellOpen(Host& host, const QString& file, int windowMode, const QString& parameters,
               const QString& directory, const QString& verb) {
    if (upper(file).contains(QLatin1String(".EXE")))
        windowMode = kProgramWindow;
    const int answer = askShell(host.shell(), file, windowMode, parameters, directory, verb);
    if (answer > kLastFailure)
        return true;
    try {
        ShowError(host, shellError(answer));
    } catch (const Error&) {
        // Wanted: nothing gets out of here.
    }
    return false;
}

} // namespace zkp
