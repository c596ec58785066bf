#include "band_bar_fixture.h"

namespace zkp {
namespace {

/// The looks of the row and what happens when it gets narrow.
class BandRow : public BandBarTest {
protected:
    /// What stands behind the button, by name.
    QStringList behindTheButton() {
        auto* more = tool<QToolButton>("more");
        if (!more->isVisible())
            return {};
        Q_EMIT more->menu()->aboutToShow();
        QStringList names;
        for (const QAction* action : more->menu()->actions())
            names += action->menu() ? action->menu()->objectName() : action->objectName();
        return names;
    }
    QStringList inTheRow() {
        QStringList names;
        for (const QString& name :
             {QStringLiteral("mnuRefresh"), QStringLiteral("mnuField"), QStringLiteral("mnuCaption")})
            if (row->findChild<QWidget*>(name)->isVisible())
                names += name;
        return names;
    }
};

TEST_F(BandRow, NoToolIsLostAtAnyWidth) {
    const QStringList all = inTheRow();
    ASSERT_EQ(all.size(), 3);
    for (int width = 400; width > 0; width -= 13) {
        resize(width);
        EXPECT_EQ(inTheRow() + behindTheButton(), all) << width;
        if (width > 100) {
            EXPECT_TRUE(tool<QLabel>("txtRecs")->isVisible()) << width;
        }
        for (const QString& name : inTheRow())
            EXPECT_LE(row->findChild<QWidget*>(name)->geometry().right(), width) << name.toStdString();
    }
}

TEST_F(BandRow, ListAndTextGetNarrowerBeforeAToolGoes) {
    const int wide = tool<QComboBox>("mnuField")->width();
    resize(300);
    EXPECT_EQ(inTheRow().size(), 3);
    EXPECT_LT(tool<QComboBox>("mnuField")->width(), wide);
    EXPECT_GE(tool<QComboBox>("mnuField")->width(), 70);
}

TEST_F(BandRow, ATitleShowsItsBeginning) {
    const QString title = QStringLiteral("Ασφαλισμένα Κεφάλαια Συμβολαίου");
    bar.Tools(u"mnuCaption").Text = title;
    bar.Refresh();
    EXPECT_EQ(tool<QLineEdit>("mnuCaption")->cursorPosition(), 0);
}

TEST_F(BandRow, AListEntryWithoutRoomEndsWithAnEllipsisAndShowsUnderTheRestingPointer) {
    const QString entry = QStringLiteral("Μικτά Ασφάλιστρα (Άθροισμα) όλων των Υποκαταστημάτων");
    bar.Tools(u"mnuField").list = QStringList{entry, QStringLiteral("Κλάδος")};
    bar.Tools(u"mnuField").ListIndex = 0;
    bar.Refresh();
    resize(300);
    auto* list = tool<QComboBox>("mnuField");
    const auto rest = [&] {
        QHelpEvent event(QEvent::ToolTip, {5, 5}, list->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(list, &event);
        return QToolTip::text();
    };
    EXPECT_TRUE(rest().contains(entry)) << rest().toStdString();
    const QImage cut = list->grab().toImage();
    bar.Tools(u"mnuField").list = QStringList{entry + entry, QStringLiteral("Κλάδος")};
    bar.Refresh();
    EXPECT_EQ(list->grab().toImage(), cut) << "no letter is cut in two";
    bar.Tools(u"mnuField").list = QStringList{QStringLiteral("Κλάδος")};
    bar.Refresh();
    EXPECT_FALSE(rest().contains(QStringLiteral("Κλάδος")));
}

TEST_F(BandRow, ACheckedToolIsPressed) {
    add(bar.Bands(kBand), QStringLiteral("mnuAlignLeft"), ToolKind::Check);
    bar.Refresh();
    const QImage before = row->grab().toImage();
    bar.Tools(u"mnuAlignLeft").Checked = true;
    bar.Refresh();
    EXPECT_TRUE(tool<QToolButton>("mnuAlignLeft")->isChecked());
    EXPECT_NE(row->grab().toImage(), before);
}

TEST_F(BandRow, AClickOnACheckThatChangesNothingLeavesNoMark) {
    add(bar.Bands(kBand), QStringLiteral("mnuAlignLeft"), ToolKind::Check);
    bar.Refresh();
    QTest::mouseClick(tool<QToolButton>("mnuAlignLeft"), Qt::LeftButton);
    EXPECT_FALSE(tool<QToolButton>("mnuAlignLeft")->isChecked());
}

TEST_F(BandRow, AButtonWithASubbandHasAnArrowThatOpensIt) {
    Tool sort;
    sort.Name = sort.subBand = QStringLiteral("mnuSort");
    bar.addTool(bar.Bands(kBand), sort);
    add(bar.addBand(QStringLiteral("MNUSORT")), QStringLiteral("mnuSortDesc"), ToolKind::Button);
    QStringList done;
    clicks = bar.toolClicked.add([&](Tool& t) { done += t.Name; });
    bar.Refresh();
    auto* button = tool<QToolButton>("mnuSort");
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(button->popupMode(), QToolButton::MenuButtonPopup);
    QTest::mouseClick(button, Qt::LeftButton, {}, {6, button->height() / 2});
    Q_EMIT button->menu()->aboutToShow();
    ASSERT_EQ(button->menu()->actions().size(), 1);
    button->menu()->actions()[0]->trigger();
    EXPECT_EQ(done, (QStringList{QStringLiteral("mnuSort"), QStringLiteral("mnuSortDesc")}));
}

TEST_F(BandRow, TooltipsAndPlaceholdersAreTheCaptions) {
    bar.Tools(u"mnuField").Caption = QStringLiteral("Πεδίο");
    bar.Tools(u"mnuCaption").Caption = QStringLiteral("&Επικεφαλίδα");
    bar.Refresh();
    EXPECT_EQ(tool<QComboBox>("mnuField")->toolTip(), QStringLiteral("Πεδίο"));
    EXPECT_EQ(tool<QComboBox>("mnuField")->placeholderText(), QStringLiteral("Πεδίο"));
    EXPECT_EQ(tool<QLineEdit>("mnuCaption")->placeholderText(), QStringLiteral("Επικεφαλίδα"));
    EXPECT_EQ(tool<QToolButton>("more")->toolTip(), QStringLiteral("Περισσότερες εντολές"));
}

TEST_F(BandRow, IconsFollowThePalette) {
    const auto hasLight = [this] {
        const QImage image = tool<QToolButton>("mnuRefresh")->grab().toImage();
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixelColor(x, y) == QColor(255, 0, 255))
                    return true;
        return false;
    };
    EXPECT_FALSE(hasLight());
    QPalette palette = row->palette();
    palette.setColor(QPalette::WindowText, QColor(255, 0, 255));
    row->setPalette(palette);
    settle();
    EXPECT_TRUE(hasLight());
}

TEST_F(BandRow, GreekIsTypedIntoTheCaption) {
    QStringList typed;
    texts = bar.textChanged.add([&](Tool& t) { typed += t.Text; });
    auto* box = tool<QLineEdit>("mnuCaption");
    box->selectAll();
    QInputMethodEvent event;
    event.setCommitString(QStringLiteral("Ασφάλιστρα"));
    QApplication::sendEvent(box, &event);
    EXPECT_EQ(typed, QStringList{QStringLiteral("Ασφάλιστρα")});
}

TEST_F(BandRow, AWheelOverTheListChoosesNothing) {
    int chosen = 0;
    lists = bar.listChanged.add([&](Tool&) { ++chosen; });
    auto* list = tool<QComboBox>("mnuField");
    list->setFocus();
    QWheelEvent wheel({5, 5}, list->mapToGlobal(QPoint(5, 5)), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(list, &wheel);
    EXPECT_EQ(chosen, 0);
    EXPECT_EQ(list->currentIndex(), -1);
}

TEST_F(BandRow, ARowThatIsInLineIsLeftAlone) {
    row->sync();
    int told = 0;
    struct Counter : QObject {
        int& told;
        explicit Counter(int& count)
            : told(count) {}
        bool eventFilter(QObject*, QEvent* event) override {
            told += event->type() == QEvent::ToolTipChange || event->type() == QEvent::UpdateRequest;
            return false;
        }
    } counter(told);
    tool<QToolButton>("mnuRefresh")->installEventFilter(&counter);
    tool<QComboBox>("mnuField")->installEventFilter(&counter);
    row->sync();
    EXPECT_EQ(told, 0);
}

TEST_F(BandRow, EnterAndEscapeLeaveTheRow) {
    int left = 0;
    QObject::connect(row.get(), &BandBar::left, row.get(), [&] { ++left; });
    QTest::keyClick(tool<QLineEdit>("mnuCaption"), Qt::Key_Return);
    QTest::keyClick(tool<QComboBox>("mnuField"), Qt::Key_Escape);
    EXPECT_EQ(left, 2);
}

} // namespace
} // namespace zkp
