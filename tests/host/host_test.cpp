#include "host/host.h"

#include "host/error_box.h"
#include "host/scripted_host.h"
#include "print_qt.h"

#include <gtest/gtest.h>

using namespace zkp;
using zkp::test::u;

namespace {

constexpr int kOkCancel = 1;
constexpr int kYesNoCancel = 3;
constexpr int kYesNo = 4;
constexpr int kLastShellFailure = 32;

class Dialog : public OwnDialog {
public:
    QString Name() const override { return u("frmprop"); }
    QString Title() const override { return u("Ιδιότητες"); }
};

/// Gives boxes alone, which answer No.
class BoxesOnly : public Host, public MessageBoxes {
public:
    using Host::Host;

    QStringList told;

    MessageBoxes& boxes() override { return *this; }
    int msgBox(const QString& text, int /*style*/, const QString& /*title*/) override {
        told += text;
        return kAnswerNo;
    }
};

} // namespace

TEST(Host, ABoxThatNobodyShowsIsAnsweredOkOrYes) {
    Host host;
    EXPECT_EQ(host.boxes().msgBox(u("τέλος")), kAnswerOk);
    EXPECT_EQ(host.boxes().msgBox(u("σφάλμα"), kMsgBoxCritical), kAnswerOk);
    EXPECT_EQ(host.boxes().msgBox(u("?"), kMsgBoxExclamation + kOkCancel), kAnswerOk);
    EXPECT_EQ(host.boxes().msgBox(u("?"), kMsgBoxQuestion + kYesNoCancel), kAnswerYes);
    EXPECT_EQ(host.boxes().msgBox(u("?"), kMsgBoxQuestion + kYesNo), kAnswerYes);
}

TEST(Host, EveryOtherQuestionThatNobodyShowsIsCancelled) {
    Host host;
    EXPECT_FALSE(host.boxes().inputBox(u("Όνομα"), {}, u("Παλιό")));
    EXPECT_FALSE(host.styleDialogs().colorDialog(7));
    EXPECT_FALSE(host.styleDialogs().fontDialog({}));
    EXPECT_FALSE(host.fileDialogs().saveDialog({}, {}, u("a.xlsx")));
    EXPECT_FALSE(host.fileDialogs().openDialog({}, {}, u("a.png")));
}

TEST(Host, WithoutAScreenTheRestDoesNothingAndThePointerIsRemembered) {
    Host host;
    Dialog dialog;
    host.ownDialogs().showDialog(dialog); // left at once
    host.printer().print({u("chart")});
    host.bell().beep();
    host.pendingEvents().runPendingEvents();
    EXPECT_LE(host.shell().shellOpen(u("a.xlsx"), u("open"), {}, {}, 1), kLastShellFailure);
    EXPECT_EQ(host.screenPointer().pointer(), kPointerDefault);
    host.screenPointer().setPointer(kPointerHourglass);
    EXPECT_EQ(host.screenPointer().pointer(), kPointerHourglass);
}

TEST(Host, AHostMayGiveOneServiceAlone) {
    BoxesOnly host;
    EXPECT_EQ(host.Host::boxes().msgBox(u("?"), kYesNo), kAnswerYes) << "what it would have answered";
    ShowError(host, Error(kErrDatabase, u("κλειδωμένη")));
    ASSERT_EQ(host.told.size(), 1);
    EXPECT_TRUE(host.told[0].contains(u("ΚΛΕΙΔΩΜΈΝΗ")));
    EXPECT_FALSE(host.styleDialogs().colorDialog(7));
    EXPECT_FALSE(host.fileDialogs().saveDialog({}, {}, {}));
}

TEST(Host, AHostMayReplaceOneServiceOfAnother) {
    const auto below = std::make_shared<ScriptedHost>();
    below->onColorDialog = [](std::uint32_t start) { return start + 1; };
    below->onOpenDialog = [](const QString&, const QString&, const QString& file) { return file; };
    QStringList dialogs;
    below->onDialog = [&](OwnDialog& dialog) { dialogs += dialog.Name() + u'|' + dialog.Title(); };
    int runs = 0;
    below->onPendingEvents = [&] { ++runs; };
    BoxesOnly host(below);
    Dialog dialog;

    EXPECT_EQ(host.boxes().msgBox(u("?"), kYesNo, {}), kAnswerNo);
    EXPECT_TRUE(below->messages.empty());
    EXPECT_EQ(host.styleDialogs().colorDialog(7), 8u);
    EXPECT_EQ(host.fileDialogs().openDialog({}, {}, u("a.png")), u("a.png"));
    host.ownDialogs().showDialog(dialog);
    EXPECT_EQ(dialogs, QStringList{u("frmprop|Ιδιότητες")});
    host.printer().print({u("chart")});
    EXPECT_EQ(below->printed, QStringList{u("chart")});
    EXPECT_EQ(host.shell().shellOpen(u("a.xlsx"), {}, {}, {}, 1), 33);
    EXPECT_EQ(below->opened, QStringList{u("a.xlsx")});
    host.screenPointer().setPointer(kPointerHourglass);
    EXPECT_EQ(below->pointer(), kPointerHourglass);
    host.bell().beep();
    EXPECT_EQ(below->beeps, 1);
    host.pendingEvents().runPendingEvents();
    EXPECT_EQ(runs, 1);
}
