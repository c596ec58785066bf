#include "host/scripted_host.h"

#include "print_qt.h"

#include <gtest/gtest.h>

using namespace zkp;
using zkp::test::u;

TEST(ScriptedHost, EveryBoxIsRecordedAndAnsweredOkOrYes) {
    ScriptedHost host;
    EXPECT_EQ(host.msgBox(u("Σφάλμα"), kMsgBoxCritical, u("τίτλος")), kAnswerOk);
    EXPECT_EQ(host.msgBox(u("?"), kMsgBoxQuestion + 4, {}), kAnswerYes);
    EXPECT_EQ(host.msgBox(u("?"), kMsgBoxQuestion + 3, {}), kAnswerYes);
    EXPECT_EQ(host.msgBox(u("?"), kMsgBoxExclamation + 1, {}), kAnswerOk);
    ASSERT_EQ(host.messages.size(), 4u);
    EXPECT_EQ(host.messages[0].text, u("Σφάλμα"));
    EXPECT_EQ(host.messages[0].style, 16);
    EXPECT_EQ(host.messages[0].title, u("τίτλος"));
}

TEST(ScriptedHost, AGivenFunctionAnswers) {
    ScriptedHost host;
    host.onMsgBox = [](const ScriptedHost::Message& box) { return box.style == 36 ? kAnswerNo : kAnswerOk; };
    host.onInputBox = [](const QString& prompt, const QString&, const QString& text) {
        return prompt + text;
    };
    host.onSaveDialog = [](const QString&, const QString&, const QString& file) { return file; };
    host.onColorDialog = [](std::uint32_t start) { return start + 1; };
    host.onFontDialog = [](const FontChoice& start) { return start; };
    EXPECT_EQ(host.msgBox(u("?"), 36, {}), kAnswerNo);
    EXPECT_EQ(host.inputBox(u("a"), {}, u("b")), u("ab"));
    EXPECT_EQ(host.saveDialog({}, {}, u("f.xlsx")), u("f.xlsx"));
    EXPECT_EQ(host.colorDialog(7), 8u);
    FontChoice font;
    font.FontName = u("Arial");
    EXPECT_EQ(host.fontDialog(font)->FontName, u("Arial"));
}

TEST(ScriptedHost, OtherDialogsAreCancelledByDefault) {
    ScriptedHost host;
    EXPECT_FALSE(host.inputBox(u("a"), {}, u("b")));
    EXPECT_FALSE(host.saveDialog({}, {}, u("f")));
    EXPECT_FALSE(host.colorDialog(7));
    EXPECT_FALSE(host.fontDialog({}));
}

TEST(ScriptedHost, FilesBeepsPointerAndPendingEvents) {
    ScriptedHost host;
    EXPECT_EQ(host.shellOpen(u("a.xlsx"), u("open"), {}, {}, 1), 33);
    host.shellResult = 2;
    EXPECT_EQ(host.shellOpen(u("b"), {}, {}, {}, 1), 2);
    EXPECT_EQ(host.opened, (QStringList{u("a.xlsx"), u("b")}));
    host.beep();
    EXPECT_EQ(host.beeps, 1);
    host.setPointer(kPointerHourglass);
    EXPECT_EQ(host.pointer(), 11);
    int runs = 0;
    host.runPendingEvents();
    host.onPendingEvents = [&] { ++runs; };
    host.runPendingEvents();
    EXPECT_EQ(runs, 1);
}
