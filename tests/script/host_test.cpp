#include "script/host_object.h"
#include "script_fixture.h"

namespace {

class ScriptHostGlobal : public ScriptTest {};

TEST_F(ScriptHostGlobal, ListsEveryBoxAsTextStyleAndTitle) {
    EXPECT_EQ(
        linesOf(QStringLiteral("grid.MSFlexGrid1.userKey(35, 2);"
                               "print(host.messages.length, host.messages[0].text, host.messages[0].style, "
                               "host.messages[0].title === '');"
                               "host.messages = []; print(host.messages.length);")),
        (QStringList{QStringLiteral("1 HitBottom 0 true"), QStringLiteral("0")}));
}

TEST_F(ScriptHostGlobal, ALocaleReachesControlsMadeBeforeAndAfter) {
    EXPECT_EQ(
        linesOf(QStringLiteral("var before = makeGrid(); host.locale = 'en_US'; var after = makeGrid();"
                               "before.refresh(); after.refresh();"
                               "print(before.TextMatrix(1, 1), after.TextMatrix(1, 1), host.locale);"
                               "host.locale = 'el_GR'; before.refresh(); print(before.TextMatrix(1, 1));")),
        (QStringList{QStringLiteral("1,234.50 1,234.50 en_US"), QStringLiteral("1.234,50")}));
    EXPECT_EQ(errorNumber(QStringLiteral("host.locale = 'nonesuch'")), 5);
}

TEST_F(ScriptHostGlobal, AnswersAreFunctionsOrNull) {
    EXPECT_EQ(errorNumber(QStringLiteral("host.onMsgBox = 5")), 13);
    EXPECT_EQ(errorNumber(QStringLiteral("host.onMsgBox = null")), 0);
    EXPECT_EQ(errorNumber(QStringLiteral("host.onMsg = null")), 438);
    EXPECT_EQ(linesOf(QStringLiteral("function f() {} host.onMsgBox = f; print(host.onMsgBox === f)")),
              QStringList{QStringLiteral("true")});
}

TEST_F(ScriptHostGlobal, PointerAndBeepsAreNumbers) {
    EXPECT_EQ(linesOf(QStringLiteral("print(host.pointer, host.beeps, host.opened.length)")),
              QStringList{QStringLiteral("0 0 0")});
}

TEST_F(ScriptHostGlobal, AFailingAnswerEndsTheRun) {
    EXPECT_EQ(
        run(QStringLiteral(
            "host.onMsgBox = function (e) { throw new Error(e.text); };\ngrid.MSFlexGrid1.userKey(35, 2);")),
        1);
    EXPECT_EQ(errors, QStringList{QStringLiteral("test.js:1: HitBottom")});
}

/// The host as the control sees it, with a script behind it.
class Answers : public testing::Test {
protected:
    Answers() {
        bridge.addGlobal(QStringLiteral("host"), bridge.facade(std::make_shared<zkp::script::HostObject>(
                                                     host, [](const QLocale&) {})));
    }
    ~Answers() override { host->release(); }

    QString eval(const char* text) { return engine.evaluate(QString::fromUtf8(text)).toString(); }

    struct Application {
        Application() { needApplication(); }
    } application;
    QJSEngine engine;
    zkp::script::Bridge bridge{engine};
    std::shared_ptr<zkp::script::ScriptsHost> host = std::make_shared<zkp::script::ScriptsHost>(bridge);
};

TEST_F(Answers, WithoutAFunctionABoxIsAnsweredOkOrYesAndAllElseIsCancelled) {
    EXPECT_EQ(host->msgBox(QStringLiteral("x"), 48, {}), zkp::kAnswerOk);
    EXPECT_EQ(host->msgBox(QStringLiteral("x"), 4 + 32, {}), zkp::kAnswerYes); // Yes and No
    EXPECT_EQ(host->inputBox({}, {}, {}), std::nullopt);
    EXPECT_EQ(host->saveDialog({}, {}, {}), std::nullopt);
    EXPECT_EQ(host->colorDialog(0), std::nullopt);
    EXPECT_FALSE(host->fontDialog({}));
}

TEST_F(Answers, ABoxIsAnsweredByTheFunctionsNumber) {
    eval("host.onMsgBox = function (e) { said = e.text + e.style + e.title; return 7; }");
    EXPECT_EQ(host->msgBox(QStringLiteral("τι;"), 36, QStringLiteral("Τίτλος")), zkp::kAnswerNo);
    EXPECT_EQ(eval("said"), QStringLiteral("τι;36Τίτλος"));
    EXPECT_EQ(eval("host.messages[0].title"), QStringLiteral("Τίτλος"));
    EXPECT_EQ(host->messages.size(), 1u);
}

TEST_F(Answers, AnInputBoxGivesTheTextAndAnEmptyOneCancels) {
    eval("host.onInputBox = function (e) { return e.prompt + e.title + e.text; }");
    EXPECT_EQ(host->inputBox(QStringLiteral("α"), QStringLiteral("β"), QStringLiteral("γ")),
              QStringLiteral("αβγ"));
    eval("host.onInputBox = function (e) { return ''; }");
    EXPECT_EQ(host->inputBox({}, {}, {}), std::nullopt);
}

TEST_F(Answers, ASaveDialogGivesAPath) {
    eval("host.onSaveDialog = function (e) { return '/tmp/' + e.fileName; }");
    EXPECT_EQ(host->saveDialog({}, {}, QStringLiteral("a.xls")), QStringLiteral("/tmp/a.xls"));
}

TEST_F(Answers, AColourDialogGivesAColourOrNull) {
    eval("host.onColorDialog = function (e) { return e.Color + 1; }");
    EXPECT_EQ(host->colorDialog(0x0000ff), 0x000100u);
    eval("host.onColorDialog = function (e) { return null; }");
    EXPECT_EQ(host->colorDialog(1), std::nullopt);
}

TEST_F(Answers, AFontDialogGivesFiveValuesAndKeepsWhatIsLeftOut) {
    eval("host.onFontDialog = function (e) { return {FontName: 'Verdana', FontSize: e.FontSize + 1, "
         "FontBold: true}; }");
    zkp::FontChoice start;
    start.FontSize = 9;
    start.FontItalic = true;
    const auto chosen = host->fontDialog(start);
    ASSERT_TRUE(chosen);
    EXPECT_EQ(chosen->FontName, QStringLiteral("Verdana"));
    EXPECT_EQ(chosen->FontSize, 10);
    EXPECT_TRUE(chosen->FontBold);
    EXPECT_TRUE(chosen->FontItalic);
    EXPECT_FALSE(chosen->FontUnderline);
    eval("host.onFontDialog = function () { return null; }");
    EXPECT_FALSE(host->fontDialog(start));
}

TEST_F(Answers, BeepsAndFilesHandedToTheShellAreListed) {
    host->beep();
    host->shellOpen(QStringLiteral("/tmp/a.xlsx"), {}, {}, {}, 1);
    EXPECT_EQ(eval("host.beeps"), QStringLiteral("1"));
    EXPECT_EQ(eval("host.opened[0]"), QStringLiteral("/tmp/a.xlsx"));
}

} // namespace
