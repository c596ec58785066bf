#include "host/shell_open.h"

#include "host/scripted_host.h"
#include "error_of.h"
#include "print_qt.h"

#include <QCoreApplication>
#include <QFileInfo>

using namespace Qt::StringLiterals;
using namespace zkp;

namespace {

/// Keeps what the shell was asked, and answers or fails as told.
class ShellHost : public ScriptedHost {
public:
    QString asked; ///< file|verb|parameters|directory|mode; "null" for a text that was not given
    bool fails = false;
    bool boxFails = false;

    int shellOpen(const QString& file, const QString& verb, const QString& parameters,
                  const QString& directory, int windowMode) override {
        const auto shown = [](const QString& text) { return text.isNull() ? u"null"_s : text; };
        asked = u"%1|%2|%3|%4|%5"_s.arg(file, verb, shown(parameters), shown(directory)).arg(windowMode);
        if (fails)
            throw Error(kErrInvalidCall, u"no shell"_s);
        return shellResult;
    }
    int msgBox(const QString& text, int style, const QString& title) override {
        const int answer = ScriptedHost::msgBox(text, style, title);
        if (boxFails)
            throw Error(kErrInvalidCall, u"no box"_s);
        return answer;
    }
};

QString boxed(const QString& text) {
    return u"Παρουσιάστικε Εξαίρεση : \r\r"_s + text + u"\r\r"_s;
}

} // namespace

TEST(ShellOpen, WithoutParametersAndFolderTheWindowModeIsOne) {
    ShellHost host;
    EXPECT_TRUE(ShellOpen(host, u"/tmp/a.xlsx"_s, 3, u""_s, u""_s, u"open"_s));
    EXPECT_EQ(host.asked, u"/tmp/a.xlsx|open|null|null|1"_s);
    EXPECT_TRUE(host.messages.empty());
}

TEST(ShellOpen, WithParametersOrAFolderEverythingIsHandedOver) {
    ShellHost host;
    EXPECT_TRUE(ShellOpen(host, u"a.doc"_s, 3, u"/p"_s, u""_s, u"print"_s));
    EXPECT_EQ(host.asked, u"a.doc|print|/p||3"_s);
    EXPECT_TRUE(ShellOpen(host, u"a.doc"_s, 3, u""_s, u"/tmp"_s, u""_s));
    EXPECT_EQ(host.asked, u"a.doc|||/tmp|3"_s);
}

TEST(ShellOpen, ExeAnywhereInTheNameIsWindowModeZeroWhereTheModeCounts) {
    ShellHost host;
    EXPECT_TRUE(ShellOpen(host, u"notes.exe.txt"_s, 3, u"/p"_s, u""_s, u"open"_s));
    EXPECT_EQ(host.asked, u"notes.exe.txt|open|/p||0"_s);
    EXPECT_TRUE(ShellOpen(host, u"C:\\CALC.Exe"_s, 3, u""_s, u""_s, u"open"_s));
    EXPECT_EQ(host.asked, u"C:\\CALC.Exe|open|null|null|1"_s);
}

TEST(ShellOpen, AMissingFileShowsTheGeneralSentence) {
    ShellHost host;
    host.shellResult = 2;
    host.setPointer(kPointerHourglass);
    EXPECT_FALSE(ShellOpen(host, u"missing.xls"_s, 1, u""_s, u""_s, u"open"_s));
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].text,
              boxed(u"AN ERROR OCCURRED OCCURRED WHILST TRYING TO OPEN OR PRINT THE SELECTED FILE."_s));
    EXPECT_EQ(host.messages[0].style, 16);
    EXPECT_EQ(host.messages[0].title, u"QRN Insurance"_s);
    EXPECT_EQ(host.pointer(), 0);
}

TEST(ShellOpen, SuccessIsAboveThirtyTwo) {
    ShellHost host;
    host.shellResult = 33;
    EXPECT_TRUE(ShellOpen(host, u"a"_s, 1, u""_s, u""_s, u""_s));
    host.shellResult = 32;
    EXPECT_FALSE(ShellOpen(host, u"a"_s, 1, u""_s, u""_s, u""_s));
    EXPECT_EQ(host.messages.size(), 1u);
}

TEST(ShellOpen, ErrorsOfTheHostPassSilentlyAndCountAsAnAnswerOfZero) {
    ShellHost host;
    host.fails = true;
    EXPECT_FALSE(ShellOpen(host, u"a"_s, 1, u""_s, u""_s, u""_s));
    ASSERT_EQ(host.messages.size(), 1u);
    EXPECT_EQ(host.messages[0].text, boxed(u"ΤΟ ΑΡΧΕΊΟ ΔΕΝ ΜΠΟΡΕΊ ΝΑ ΦΟΡΤΩΘΕΊ ΛΌΓΩ ΈΛΕΙΨΗΣ ΜΝΉΜΗΣ"_s));
    host.boxFails = true;
    EXPECT_FALSE(ShellOpen(host, u"a"_s, 1, u""_s, u""_s, u""_s));
}

TEST(ShellError, AnAnswerOfZeroIsTheFirstOfTheTable) {
    const Error error = shellError(0);
    EXPECT_EQ(error.number(), 7u);
    EXPECT_EQ(error.description(), u"Το αρχείο δεν μπορεί να φορτωθεί λόγω έλειψης μνήμης"_s);
}

// The shell's own codes among them (2 no file, 5 no rights, 31 no program) are not told apart.
TEST(ShellError, EveryOtherAnswerIsTheLastOfTheTable) {
    for (int answer = 1; answer <= 32; ++answer) {
        const Error error = shellError(answer);
        EXPECT_EQ(error.number(), 0x80040418u + static_cast<std::uint32_t>(answer));
        EXPECT_EQ(error.description(),
                  u"An error occurred occurred whilst trying to open or print the selected file."_s);
    }
}

TEST(ShellError, ItsSourceIsTheHostsProgram) {
    EXPECT_EQ(shellError(2).source(), u".GShell"_s); // a host that is no Qt application
    int count = 1;
    char name[] = "/opt/office/backoffice";
    char* arguments[] = {name, nullptr};
    const QCoreApplication application(count, arguments);
    EXPECT_EQ(shellError(2).source(),
              QFileInfo(QCoreApplication::applicationFilePath()).fileName() + u".GShell"_s);
}
