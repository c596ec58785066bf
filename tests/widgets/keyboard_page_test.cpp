// Presses every key that docs/keyboard.md lists for the control.

#include "ado/connection.h"
#include "host/scripted_host.h"
#include "print_qt.h"
#include "widgets/band/band_bar.h"
#include "widgets/grid/grid_view.h"
#include "widgets/zkp_grid_widget.h"

#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QToolButton>
#include <QVBoxLayout>
#include <QtTest/QTest>

#include <gmock/gmock.h>

#include <map>
#include <set>

using namespace Qt::StringLiterals;

namespace zkp {
namespace {

/// The keys of the page's section about the control, in its order.
QStringList keysOfPage() {
    QFile file(QStringLiteral(ZKP_SOURCE_DIR "/docs/keyboard.md"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QStringList keys;
    bool here = false;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n')) {
        if (line.startsWith(u"## "))
            here = line == u"## The control";
        const QString key = line.section(u'|', 1, 1).trimmed();
        if (here && line.startsWith(u'|') && key != u"Key" && !key.startsWith(u'-'))
            keys += key;
    }
    return keys;
}

struct Stroke {
    Qt::Key key;
    Qt::KeyboardModifiers with;
};

Stroke strokeOf(const QString& name) {
    static const std::map<QString, Qt::Key> keys{
        {u"Up"_s, Qt::Key_Up},       {u"Down"_s, Qt::Key_Down},      {u"Left"_s, Qt::Key_Left},
        {u"Right"_s, Qt::Key_Right}, {u"Page Up"_s, Qt::Key_PageUp}, {u"Page Down"_s, Qt::Key_PageDown},
        {u"Home"_s, Qt::Key_Home},   {u"End"_s, Qt::Key_End},        {u"A"_s, Qt::Key_A},
        {u"Menu"_s, Qt::Key_Menu},   {u"F10"_s, Qt::Key_F10},        {u"F6"_s, Qt::Key_F6},
        {u"Tab"_s, Qt::Key_Tab},     {u"Escape"_s, Qt::Key_Escape},
    };
    const QStringList parts = name.split(u'+');
    const auto found = keys.find(parts.back());
    if (found == keys.end())
        return {Qt::Key_unknown, {}};
    Stroke stroke{found->second, {}};
    stroke.with.setFlag(Qt::ControlModifier, parts.contains(u"Ctrl"));
    stroke.with.setFlag(Qt::ShiftModifier, parts.contains(u"Shift"));
    stroke.with.setFlag(Qt::AltModifier, parts.contains(u"Alt"));
    return stroke;
}

/// A control of 60 rows and 4 columns of 100 pixels between two entry fields; row 30, column 1 is current.
class Form {
public:
    Form() {
        auto* layout = new QVBoxLayout(&form);
        layout->addWidget(before);
        layout->addWidget(widget);
        layout->addWidget(after);
        form.resize(600, 400);
        ZkpGrid& grid = widget->grid();
        grid.setCols(4);
        grid.setRows(60);
        grid.setRowHeight(-1, 300);
        for (int col = 0; col < 4; ++col) {
            grid.setColWidth(col, 1500);
            grid.setColCaption(col, u"Στήλη"_s);
        }
        widget->grid().Picture1().Refresh();
        form.show();
        form.activateWindow();
        surface().Select(30, 1);
        surface().setTopRow(25);
        settle();
        widget->setFocus();
        settle();
        host->messages.clear();
        QObject::connect(&widget->grid().events(), &Events::MouseDown, widget,
                         [this](MouseArgs& e) { pressed = e.Button; });
        surface().notifications.headingDropped = [this](int from, int to) {
            dropped = {from, to};
            return true;
        };
    }
    ~Form() {
        if (QWidget* menu = QApplication::activePopupWidget())
            menu->close();
    }

    static void settle() {
        for (int i = 0; i < 3; ++i)
            QApplication::processEvents();
    }
    GridSurface& surface() { return widget->grid().MSFlexGrid1(); }
    GridView& view() { return widget->view(); }
    int page() { return view().page().wholeRows() - 1; }
    bool isInTools(const QWidget* focus) { return widget->band().isAncestorOf(focus); }

    void press(const Stroke& stroke) {
        if (stroke.key == Qt::Key_Menu) { // the window system makes it a request for the menu
            QContextMenuEvent event(QContextMenuEvent::Keyboard, {5, 5}, view().mapToGlobal(QPoint(5, 5)));
            QApplication::sendEvent(view().viewport(), &event);
        } else {
            QTest::keyClick(&view(), stroke.key, stroke.with);
        }
        settle();
    }

    std::shared_ptr<ScriptedHost> host = std::make_shared<ScriptedHost>();
    QWidget form;
    QLineEdit* before = new QLineEdit;
    ZkpGridWidget* widget = new ZkpGridWidget(host);
    QLineEdit* after = new QLineEdit;
    int pressed = 0;
    std::pair<int, int> dropped{-1, -1};
};

using Check = std::function<void(Form&)>;

Check current(int row, int col) {
    return [=](Form& form) {
        EXPECT_EQ(form.surface().selection(), (CellRange{row, col, row, col}));
        EXPECT_TRUE(form.surface().RowIsVisible(row));
        EXPECT_TRUE(form.host->messages.empty());
    };
}

/// From the current cell to another corner.
Check selected(int row, int col) {
    return [=](Form& form) {
        EXPECT_EQ(form.surface().Row(), 30);
        EXPECT_EQ(form.surface().Col(), 1);
        EXPECT_EQ(form.surface().RowSel(), row);
        EXPECT_EQ(form.surface().ColSel(), col);
        EXPECT_TRUE(form.surface().RowIsVisible(row));
    };
}

Check hitsBottom(const Check& check) {
    return [=](Form& form) {
        ASSERT_EQ(form.host->messages.size(), 1u);
        EXPECT_EQ(form.host->messages[0].text, u"HitBottom"_s);
        form.host->messages.clear();
        check(form);
    };
}

Check width(int twips) {
    return [=](Form& form) { EXPECT_EQ(form.surface().ColWidth(1), twips); };
}

Check dropped(int from, int to) {
    return [=](Form& form) { EXPECT_EQ(form.dropped, std::pair(from, to)); };
}

Check byPage(int direction, bool extends) {
    return [=](Form& form) {
        EXPECT_GT(form.page(), 5);
        const int row = 30 + direction * form.page();
        (extends ? selected(row, 1) : current(row, 1))(form);
    };
}

void opensMenu(Form& form) {
    EXPECT_EQ(form.pressed, 2) << "a right press";
    EXPECT_EQ(form.surface().Row(), 30);
    EXPECT_EQ(form.surface().Col(), 1);
}

/// What each key leads to.
std::map<QString, Check> effects() {
    return {
        {u"Up"_s, current(29, 1)},
        {u"Down"_s, current(31, 1)},
        {u"Left"_s, current(30, 0)},
        {u"Right"_s, current(30, 2)},
        {u"Ctrl+Up"_s, current(1, 1)},
        {u"Ctrl+Down"_s, current(59, 1)},
        {u"Ctrl+Left"_s, current(30, 0)},
        {u"Ctrl+Right"_s, current(30, 3)},
        {u"Page Up"_s, byPage(-1, false)},
        {u"Page Down"_s, byPage(1, false)},
        {u"Home"_s, current(30, 0)},
        {u"End"_s, current(30, 3)},
        {u"Ctrl+Home"_s, current(1, 0)},
        {u"Ctrl+End"_s, hitsBottom(current(59, 3))},
        {u"Shift+Up"_s, selected(29, 1)},
        {u"Shift+Down"_s, selected(31, 1)},
        {u"Shift+Left"_s, selected(30, 0)},
        {u"Shift+Right"_s, selected(30, 2)},
        {u"Shift+Page Up"_s, byPage(-1, true)},
        {u"Shift+Page Down"_s, byPage(1, true)},
        {u"Shift+Home"_s, selected(30, 0)},
        {u"Shift+End"_s, selected(30, 3)},
        {u"Ctrl+Shift+Up"_s, selected(1, 1)},
        {u"Ctrl+Shift+Down"_s, selected(59, 1)},
        {u"Ctrl+Shift+Left"_s, selected(30, 0)},
        {u"Ctrl+Shift+Right"_s, selected(30, 3)},
        {u"Ctrl+Shift+Home"_s, selected(1, 0)},
        {u"Ctrl+Shift+End"_s, hitsBottom(selected(59, 3))},
        {u"Ctrl+A"_s,
         [](Form& form) {
             EXPECT_EQ(form.surface().selection(), (CellRange{1, 0, 59, 3}));
         }},
        {u"Alt+Left"_s, width(1500 - 8 * 15)},
        {u"Alt+Right"_s, width(1500 + 8 * 15)},
        {u"Alt+Down"_s, [](Form& form) { EXPECT_LT(form.surface().ColWidth(1), 1500); }},
        {u"Ctrl+Shift+Page Up"_s, dropped(1, 0)},
        {u"Ctrl+Shift+Page Down"_s, dropped(1, 2)},
        {u"Menu"_s, opensMenu},
        {u"Shift+F10"_s, opensMenu},
        {u"F6"_s, [](Form& form) { EXPECT_TRUE(form.isInTools(form.form.focusWidget())); }},
        {u"Tab"_s, [](Form& form) { EXPECT_EQ(form.form.focusWidget(), form.after); }},
        {u"Shift+Tab"_s, [](Form& form) { EXPECT_TRUE(form.isInTools(form.form.focusWidget())); }},
        {u"Escape"_s, dropped(-1, -1)},
    };
}

/// What must go before a key for its effect to show.
void prepare(Form& form, const QString& key) {
    if (key != u"Escape")
        return;
    QWidget* port = form.view().viewport();
    QTest::mousePress(port, Qt::LeftButton, {}, {350, 5});
    QMouseEvent move(QEvent::MouseMove, QPoint(50, 5), port->mapToGlobal(QPoint(50, 5)), Qt::NoButton,
                     Qt::LeftButton, {});
    QApplication::sendEvent(port, &move);
}

void finish(Form& form, const QString& key) {
    if (key == u"Escape")
        QTest::mouseRelease(form.view().viewport(), Qt::LeftButton, {}, {50, 5});
}

TEST(KeyboardPage, EachKeyThatItListsDoesWhatItSaysAndNoOtherIsTested) {
    const QStringList keys = keysOfPage();
    const std::map<QString, Check> checks = effects();
    EXPECT_EQ(std::set<QString>(keys.begin(), keys.end()).size(), static_cast<std::size_t>(keys.size()));
    EXPECT_EQ(static_cast<std::size_t>(keys.size()), checks.size());
    for (const QString& key : keys) {
        SCOPED_TRACE(key.toStdString());
        const auto check = checks.find(key);
        const Stroke stroke = strokeOf(key);
        if (check == checks.end() || stroke.key == Qt::Key_unknown) {
            ADD_FAILURE() << "nothing is known of this key";
            continue;
        }
        Form form;
        prepare(form, key);
        form.press(stroke);
        finish(form, key);
        check->second(form);
    }
}

TEST(Keyboard, TheTabKeyGoesThroughTheToolsToTheSurfaceAndOut) {
    Form form;
    form.before->setFocus();
    QTest::keyClick(form.before, Qt::Key_Tab);
    int tools = 0;
    int lastX = -1;
    while (form.isInTools(form.form.focusWidget()) && tools < 100) {
        EXPECT_GT(form.form.focusWidget()->x(), lastX) << "in the order in which they stand";
        lastX = form.form.focusWidget()->x();
        ++tools;
        QTest::keyClick(form.form.focusWidget(), Qt::Key_Tab);
    }
    EXPECT_GT(tools, 1);
    EXPECT_EQ(form.form.focusWidget(), &form.view());
    QTest::keyClick(&form.view(), Qt::Key_Tab);
    EXPECT_EQ(form.form.focusWidget(), form.after);
}

TEST(Keyboard, TheTabKeyFollowsToolsThatWereMadeAnew) {
    Form form;
    MenuBar& bar = form.widget->grid().Picture1();
    Tool more;
    more.Name = u"mine"_s;
    more.Caption = u"Δικό μου"_s;
    bar.addTool(bar.Bands(u"BndTemplate"), more);
    bar.Refresh();
    Form::settle();
    form.before->setFocus();
    QTest::keyClick(form.before, Qt::Key_Tab);
    EXPECT_TRUE(form.isInTools(form.form.focusWidget()));
}

TEST(Keyboard, EscapeAndF6LeadBackFromATool) {
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_F6}) {
        Form form;
        QTest::keyClick(&form.view(), Qt::Key_F6);
        ASSERT_TRUE(form.isInTools(form.form.focusWidget()));
        QTest::keyClick(form.form.focusWidget(), key);
        EXPECT_EQ(form.form.focusWidget(), &form.view());
    }
}

TEST(Keyboard, ArrowsGoFromToolToToolAndSpacePressesOne) {
    Form form;
    const auto connection = std::make_shared<ado::Connection>();
    connection->Open(u"sqlite:"_s);
    // A command that failed would end the round before the click is heard here.
    form.widget->grid().Fill(connection, u"SELECT 1"_s, ZKP_SQLStatement);
    form.widget->grid().setRefreshOnChange(false); // and the rows stay
    QString clicked;
    const Listening clicks =
        form.widget->grid().Picture1().toolClicked.add([&](Tool& tool) { clicked = tool.Name; });
    auto* refresh = form.widget->band().findChild<QToolButton*>(u"mnuRefresh"_s);
    ASSERT_NE(refresh, nullptr);
    refresh->setFocus();
    QTest::keyClick(refresh, Qt::Key_Space);
    EXPECT_EQ(clicked, u"mnuRefresh"_s);
    refresh->setFocus();
    QTest::keyClick(refresh, Qt::Key_Right);
    QWidget* next = form.form.focusWidget();
    EXPECT_TRUE(form.isInTools(next));
    EXPECT_GT(next->x(), refresh->x());
    QTest::keyClick(next, Qt::Key_Left);
    EXPECT_EQ(form.form.focusWidget(), refresh);
}

TEST(Keyboard, EnterAndEscapeInAListOrTextLeadBackToTheReport) {
    for (const QString& name : {u"mnuField"_s, u"mnuCaption"_s})
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
            SCOPED_TRACE(name.toStdString());
            Form form;
            auto* tool = form.widget->band().findChild<QWidget*>(name);
            ASSERT_NE(tool, nullptr);
            tool->setEnabled(true);
            tool->setFocus();
            ASSERT_EQ(form.form.focusWidget(), tool);
            QTest::keyClick(tool, key);
            EXPECT_EQ(form.form.focusWidget(), &form.view());
        }
}

TEST(Keyboard, WithoutAToolF6IsTheForms) {
    Form form;
    form.widget->grid().setChoicesVisible(false);
    form.widget->grid().UserControl_Resize();
    Form::settle();
    QKeyEvent event(QEvent::KeyPress, Qt::Key_F6, Qt::NoModifier);
    QApplication::sendEvent(&form.view(), &event);
    EXPECT_FALSE(event.isAccepted());
    EXPECT_EQ(form.form.focusWidget(), &form.view());
}

TEST(Keyboard, AHostThatSwallowsAKeyKeepsItFromTheSurface) {
    Form form;
    QObject::connect(&form.widget->grid().events(), &Events::KeyDown, form.widget, [](KeyArgs& e) {
        if (e.KeyCode == 65 || e.KeyCode == 37)
            e.KeyCode = 0;
    });
    form.press({Qt::Key_A, Qt::ControlModifier});
    form.press({Qt::Key_Left, Qt::AltModifier});
    current(30, 1)(form);
    width(1500)(form);
}

TEST(Keyboard, AColumnGetsNoNarrowerThanItCanBeSeen) {
    Form form;
    for (int i = 0; i < 40; ++i)
        form.press({Qt::Key_Left, Qt::AltModifier});
    EXPECT_EQ(form.surface().ColWidth(1), 8 * 15);
}

TEST(Keyboard, TheCurrentCellFollowsAColumnThatIsDragged) {
    Form form;
    form.surface().setTextMatrix(0, 1, u"Η πρώτη"_s);
    for (int i = 0; i < 3; ++i) // the last time there is nowhere to go
        form.press({Qt::Key_PageDown, Qt::ControlModifier | Qt::ShiftModifier});
    EXPECT_EQ(form.surface().TextMatrix(0, 3), u"Η πρώτη"_s);
    current(30, 3)(form);
    form.surface().notifications.headingDropped = [](int, int) { return false; };
    form.press({Qt::Key_PageUp, Qt::ControlModifier | Qt::ShiftModifier});
    current(30, 3)(form);
}

TEST(Keyboard, AColumnAtTheEdgeIsDraggedNowhere) {
    Form form;
    form.surface().Select(30, 0);
    form.press({Qt::Key_PageUp, Qt::ControlModifier | Qt::ShiftModifier});
    dropped(-1, -1)(form);
    EXPECT_EQ(form.surface().Row(), 30) << "nor does the key move anything else";
    EXPECT_EQ(form.surface().RowSel(), 30);
}

TEST(Keyboard, TheMenuThatTheKeyboardAsksForStandsAtTheCell) {
    Form form;
    std::optional<QPoint> place;
    QObject::connect(&form.widget->grid().events(), &Events::MouseDown, form.widget,
                     [&](MouseArgs&) { place = form.view().menuPlace(); });
    form.press({Qt::Key_F10, Qt::ShiftModifier});
    const QRect cell = form.view().page().cellRect(30, 1);
    EXPECT_EQ(place, form.view().viewport()->mapToGlobal(cell.bottomLeft()));
    EXPECT_EQ(form.view().menuPlace(), std::nullopt) << "and not after that";
}

TEST(Keyboard, TheControlMayBeDestroyedByAnyKeyOfThePage) {
    for (const QString& key : keysOfPage()) {
        SCOPED_TRACE(key.toStdString());
        Form form;
        const QPointer<ZkpGrid> grid = &form.widget->grid();
        const auto destroy = [grid] { delete grid.data(); };
        form.surface().notifications.headingDropped = {};
        QObject::connect(&form.widget->grid().events(), &Events::Selecting, &form.form, destroy);
        QObject::connect(&form.widget->grid().events(), &Events::MouseDown, &form.form,
                         [destroy](MouseArgs&) { destroy(); });
        QObject::connect(&form.widget->grid().events(), &Events::PropertyChanged, &form.form,
                         [destroy](PropertyArgs&) { destroy(); });
        form.press(strokeOf(key));
    }
}

} // namespace
} // namespace zkp
