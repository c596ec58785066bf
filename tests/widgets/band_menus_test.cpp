#include "band_bar_fixture.h"

namespace zkp {
namespace {

/// The captions of a menu, a line for each separator.
QStringList captions(const QMenu& menu) {
    QStringList all;
    for (const QAction* action : menu.actions())
        all += action->isSeparator() ? QStringLiteral("-") : action->text();
    return all;
}

class BandMenus : public BandBarTest {
protected:
    BandMenus() {
        const auto changed = [this](Tool& t) { done += t.Name + u'=' + t.Text; };
        clicks = bar.toolClicked.add([this](Tool& t) { done += t.Name; });
        lists = bar.listChanged.add(changed);
        texts = bar.textChanged.add(changed);
    }
    ~BandMenus() override {
        while (QWidget* popup = QApplication::activePopupWidget())
            popup->close();
    }
    Tool& command(Band& band, const char16_t* name, const char16_t* caption) {
        Tool& made = add(band, QString::fromUtf16(name), ToolKind::Button);
        made.Caption = QString::fromUtf16(caption);
        return made;
    }
    Tool& opener(Band& band, const char16_t* name, const char16_t* caption, ToolKind kind) {
        Tool made;
        made.Name = made.subBand = QString::fromUtf16(name);
        made.Caption = QString::fromUtf16(caption);
        made.kind = kind;
        return bar.addTool(band, made);
    }
    Band& context() { return bar.addBand(QStringLiteral(" mnuContext")); }
    void key(Qt::Key key) {
        QTest::keyClick(QApplication::activePopupWidget(), key);
        settle();
    }
    QStringList done;
};

TEST_F(BandMenus, APopupShowsItsBandWithSubmenus) {
    Band& popup = bar.addBand(QStringLiteral("mnuPopup"));
    add(popup, QStringLiteral("mnuDelete"), ToolKind::Button).Caption = QStringLiteral("Διαγραφή");
    Tool& align = add(popup, QStringLiteral("mnuAlign"), ToolKind::SubMenu);
    align.Caption = QStringLiteral("Στοίχιση");
    align.subBand = QStringLiteral("bndAlign");
    add(bar.addBand(QStringLiteral("bndAlign")), QStringLiteral("mnuLeft"), ToolKind::Check).Checked = true;
    bar.popup(u"mnuPopup");
    QMenu* menu = openMenu();
    ASSERT_NE(menu, nullptr);
    ASSERT_EQ(menu->actions().size(), 2);
    QMenu* sub = menu->actions()[1]->menu();
    ASSERT_NE(sub, nullptr);
    EXPECT_TRUE(sub->actions()[0]->isChecked());
    menu->actions()[0]->trigger();
    EXPECT_EQ(done, QStringList{QStringLiteral("mnuDelete")});
}

TEST_F(BandMenus, ABandThatOpensItselfEnds) {
    Band& popup = bar.addBand(QStringLiteral("mnuPopup"));
    add(popup, QStringLiteral("again"), ToolKind::SubMenu).subBand = QStringLiteral("mnuPopup");
    bar.popup(u"mnuPopup");
    EXPECT_NE(openMenu(), nullptr);
}

TEST_F(BandMenus, SeparatorsStandBetweenTwoEntriesOnly) {
    Band& band = context();
    add(band, QStringLiteral("line"), ToolKind::Separator);
    command(band, u"first", u"Πρώτη");
    add(band, QStringLiteral("line"), ToolKind::Separator);
    command(band, u"gone", u"Κρυμμένη").Visible = false;
    add(band, QStringLiteral("line"), ToolKind::Separator);
    command(band, u"second", u"Δεύτερη");
    add(band, QStringLiteral("line"), ToolKind::Separator);
    bar.popup(u" mnuContext");
    EXPECT_EQ(captions(*openMenu()),
              (QStringList{QStringLiteral("Πρώτη"), QStringLiteral("-"), QStringLiteral("Δεύτερη")}));
}

TEST_F(BandMenus, AButtonWithASubbandKeepsItsOwnCommand) {
    opener(context(), u"mnuGraph", u"Γράφημα", ToolKind::Button);
    command(bar.addBand(QStringLiteral("mnuGraph")), u"mnuPieChart", u"Γράφημα Πίτας");
    bar.popup(u" mnuContext");
    const QMenu* sub = openMenu()->actions()[0]->menu();
    ASSERT_NE(sub, nullptr);
    EXPECT_EQ(captions(*sub),
              (QStringList{QStringLiteral("Γράφημα"), QStringLiteral("-"), QStringLiteral("Γράφημα Πίτας")}));
    sub->actions()[0]->trigger();
    sub->actions()[2]->trigger();
    EXPECT_EQ(done, (QStringList{QStringLiteral("mnuGraph"), QStringLiteral("mnuPieChart")}));
}

TEST_F(BandMenus, ABandWithNothingToShowOpensNoMenu) {
    command(context(), u"gone", u"Κρυμμένη").Visible = false;
    bar.popup(u" mnuContext");
    EXPECT_EQ(openMenu(), nullptr);
}

TEST_F(BandMenus, EntriesHaveTheIconsOfTheirTools) {
    command(context(), u"mnuRefresh", u"Ανανέωση");
    opener(context(), u"mnuColumn", u"Στήλη", ToolKind::SubMenu);
    bar.popup(u" mnuContext");
    for (const QAction* action : openMenu()->actions())
        EXPECT_FALSE(action->icon().isNull()) << action->text().toStdString();
}

TEST_F(BandMenus, TheKeyboardChoosesInASubmenu) {
    command(context(), u"mnuPrint", u"Εκτύπωση");
    opener(context(), u"mnuColumn", u"Στήλη", ToolKind::SubMenu);
    Band& sub = bar.addBand(QStringLiteral("mnuColumn"));
    command(sub, u"mnuAddColumn", u"Πρόσθεση Στήλης");
    command(sub, u"mnuDelColumn", u"Διαγραφή Στήλης");
    row->keyboardPlace = [] { return QPoint(100, 100); };
    bar.popup(u" mnuContext");
    settle();
    EXPECT_EQ(openMenu()->pos(), QPoint(100, 100));
    EXPECT_EQ(openMenu()->activeAction(), openMenu()->actions()[0]) << "for the keyboard";
    key(Qt::Key_Down);
    key(Qt::Key_Right);
    key(Qt::Key_Down);
    key(Qt::Key_Return);
    EXPECT_EQ(done, QStringList{QStringLiteral("mnuDelColumn")});
    EXPECT_EQ(openMenu(), nullptr);
}

TEST_F(BandMenus, EscapeLeavesASubmenuAndThenTheMenu) {
    opener(context(), u"mnuColumn", u"Στήλη", ToolKind::SubMenu);
    command(bar.addBand(QStringLiteral("mnuColumn")), u"mnuAddColumn", u"Πρόσθεση Στήλης");
    row->keyboardPlace = [] { return QPoint(100, 100); };
    bar.popup(u" mnuContext");
    QMenu* menu = openMenu();
    key(Qt::Key_Right);
    ASSERT_NE(openMenu(), menu);
    key(Qt::Key_Escape);
    EXPECT_EQ(openMenu(), menu);
    key(Qt::Key_Escape);
    EXPECT_EQ(openMenu(), nullptr);
    EXPECT_TRUE(done.isEmpty());
}

TEST_F(BandMenus, AMnemonicOfACaptionChooses) {
    command(context(), u"mnuGiantGraph", u"(ΧΥ) Γράφημα &Scatter");
    command(context(), u"mnuPrint", u"Εκτύπωση");
    bar.popup(u" mnuContext");
    key(Qt::Key_S);
    EXPECT_EQ(done, QStringList{QStringLiteral("mnuGiantGraph")});
}

TEST_F(BandMenus, AListAndATextWorkInAMenuToo) {
    resize(1); // what finds no room stands behind the button
    QToolButton* more = tool<QToolButton>("more");
    ASSERT_TRUE(more->isVisible());
    Q_EMIT more->menu()->aboutToShow();
    const QList<QAction*> entries = more->menu()->actions();
    ASSERT_EQ(entries.size(), 3);
    EXPECT_EQ(entries[0]->objectName(), QStringLiteral("mnuRefresh"));
    entries[1]->menu()->actions()[1]->trigger();
    auto* box = more->menu()->findChild<QLineEdit*>();
    ASSERT_NE(box, nullptr);
    box->setText(QStringLiteral("Νέα"));
    QTest::keyClick(box, Qt::Key_Return);
    EXPECT_EQ(done, (QStringList{QStringLiteral("mnuField=Πελάτης"), QStringLiteral("mnuCaption=Νέα")}));
}

} // namespace
} // namespace zkp
