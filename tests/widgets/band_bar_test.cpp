#include "band_bar_fixture.h"

namespace zkp {
namespace {

TEST_F(BandBarTest, TheRowShowsTheBandsToolsWithTheCountAtItsEnd) {
    EXPECT_EQ(tool<QLabel>("txtRecs")->text(), QStringLiteral("20.000"));
    EXPECT_GT(tool<QLabel>("txtRecs")->x(), tool<QLineEdit>("mnuCaption")->x());
    EXPECT_EQ(tool<QToolButton>("mnuRefresh")->toolTip(), QStringLiteral("Ανανέωση"));
    EXPECT_EQ(tool<QComboBox>("mnuField")->count(), 2);
    EXPECT_EQ(tool<QLineEdit>("mnuCaption")->text(), QStringLiteral("τίτλος"));
}

TEST_F(BandBarTest, TheRowFollowsTheModelWhenItIsRefreshed) {
    bar.Tools(u"txtRecs").Text = QStringLiteral("5");
    bar.Tools(u"mnuRefresh").Enabled = false;
    bar.Tools(u"mnuField").Visible = false;
    bar.Refresh();
    EXPECT_EQ(tool<QLabel>("txtRecs")->text(), QStringLiteral("5"));
    EXPECT_FALSE(tool<QToolButton>("mnuRefresh")->isEnabled());
    EXPECT_FALSE(tool<QComboBox>("mnuField")->isVisible());
}

TEST_F(BandBarTest, WhatNobodyListensToIsLeftOut) {
    const auto shown = [this] {
        return std::vector<bool>{
            tool<QToolButton>("mnuRefresh")->isVisible(), tool<QComboBox>("mnuField")->isVisible(),
            tool<QLineEdit>("mnuCaption")->isVisible(), tool<QLabel>("txtRecs")->isVisible()};
    };
    clicks.stop();
    bar.Refresh();
    EXPECT_EQ(shown(), (std::vector<bool>{false, true, true, true}));
    lists.stop();
    texts.stop();
    bar.Refresh();
    EXPECT_EQ(shown(), (std::vector<bool>{false, false, false, true}));
    clicks = bar.toolClicked.add([](Tool&) {});
    bar.Refresh();
    EXPECT_EQ(shown(), (std::vector<bool>{true, false, false, true}));
}

TEST_F(BandBarTest, SeparatorsOfOneNameComeAndGoWithTheRow) {
    const auto lines = [this] { return row->findChildren<QFrame*>(QStringLiteral("miSeparator")).size(); };
    Band& band = bar.Bands(kBand);
    add(band, QStringLiteral("miSeparator"), ToolKind::Separator);
    add(band, QStringLiteral("mnuPrint"), ToolKind::Button);
    add(band, QStringLiteral("miSeparator"), ToolKind::Separator);
    bar.Refresh();
    EXPECT_EQ(lines(), 2);
    add(band, QStringLiteral("mnuExport"), ToolKind::Button);
    bar.Refresh();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(lines(), 2);
}

TEST_F(BandBarTest, AToolAddedLaterShows) {
    add(bar.Bands(kBand), QStringLiteral("mnuPrint"), ToolKind::Button).Caption = QStringLiteral("Εκτύπωση");
    bar.Refresh();
    ASSERT_NE(tool<QToolButton>("mnuPrint"), nullptr);
}

TEST_F(BandBarTest, WhatTheUserDoesGoesToTheBar) {
    QStringList done;
    clicks = bar.toolClicked.add([&](Tool& t) { done += t.Name; });
    lists = bar.listChanged.add([&](Tool& t) { done += t.Text; });
    texts = bar.textChanged.add([&](Tool& t) { done += t.Text; });
    QTest::mouseClick(tool<QToolButton>("mnuRefresh"), Qt::LeftButton);
    QTest::keyClick(tool<QComboBox>("mnuField"), Qt::Key_Down);
    tool<QLineEdit>("mnuCaption")->end(false);
    QTest::keyClick(tool<QLineEdit>("mnuCaption"), Qt::Key_Backspace);
    EXPECT_EQ(done,
              (QStringList{QStringLiteral("mnuRefresh"), QStringLiteral("Κλάδος"), QStringLiteral("τίτλο")}));
}

TEST_F(BandBarTest, AnErrorOfAClickGoesToTheRelay) {
    QStringList failures;
    row->failed = [&](const Error& error) { failures += error.description(); };
    clicks = bar.toolClicked.add([](Tool&) { throw Error(kErrInvalidCall, QStringLiteral("λάθος")); });
    QTest::mouseClick(tool<QToolButton>("mnuRefresh"), Qt::LeftButton);
    EXPECT_EQ(failures, QStringList{QStringLiteral("λάθος")});
}

TEST_F(BandBarTest, TheRowMayGoAwayInItsClick) {
    clicks = bar.toolClicked.add([this](Tool&) { row.release()->deleteLater(); });
    QTest::mouseClick(tool<QToolButton>("mnuRefresh"), Qt::LeftButton);
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(bar.views.isEmpty());
}

TEST_F(BandBarTest, APopupShowsItsBandWithSubmenus) {
    Band& popup = bar.addBand(QStringLiteral("mnuPopup"));
    add(popup, QStringLiteral("mnuDelete"), ToolKind::Button).Caption = QStringLiteral("Διαγραφή");
    Tool& align = add(popup, QStringLiteral("mnuAlign"), ToolKind::SubMenu);
    align.Caption = QStringLiteral("Στοίχιση");
    align.subBand = QStringLiteral("bndAlign");
    add(bar.addBand(QStringLiteral("bndAlign")), QStringLiteral("mnuLeft"), ToolKind::Check).Checked = true;
    bar.popup(u"mnuPopup");
    auto* menu = row->findChild<QMenu*>();
    ASSERT_NE(menu, nullptr);
    ASSERT_EQ(menu->actions().size(), 2);
    QMenu* sub = menu->actions()[1]->menu();
    ASSERT_NE(sub, nullptr);
    EXPECT_TRUE(sub->actions()[0]->isChecked());
    QString clicked;
    clicks = bar.toolClicked.add([&](Tool& t) { clicked = t.Name; });
    menu->actions()[0]->trigger();
    EXPECT_EQ(clicked, QStringLiteral("mnuDelete"));
}

TEST_F(BandBarTest, ABandThatOpensItselfEnds) {
    Band& popup = bar.addBand(QStringLiteral("mnuPopup"));
    add(popup, QStringLiteral("again"), ToolKind::SubMenu).subBand = QStringLiteral("mnuPopup");
    bar.popup(u"mnuPopup");
    EXPECT_NE(row->findChild<QMenu*>(), nullptr);
}

} // namespace
} // namespace zkp
