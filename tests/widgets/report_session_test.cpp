// A user at the window with the control's own commands behind it.

#include "demo/demo_database.h"
#include "platform/scripted_host.h"
#include "print_qt.h"
#include "widgets/band_bar.h"
#include "widgets/grid_view.h"
#include "widgets/zkp_grid_widget.h"

#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QTemporaryDir>
#include <QToolButton>
#include <QtTest/QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zkp {
namespace {

using testing::ElementsAre;

QString demoFile() {
    static const QTemporaryDir folder;
    static const QString file = [] {
        demo::Options options;
        options.file = folder.filePath(QStringLiteral("demo.db"));
        options.policies = 300;
        demo::makeDatabase(options);
        return options.file;
    }();
    return file;
}

/// A report of five columns: two group factors and three plain ones.
class ReportSession : public testing::Test {
protected:
    ReportSession() {
        widget.resize(900, 500);
        widget.show();
        QApplication::setActiveWindow(&widget);
        widget.setFocus();
        load(false);
    }
    ~ReportSession() override {
        while (QWidget* popup = QApplication::activePopupWidget())
            popup->close();
    }
    void load(bool isTotals) {
        const auto connection = std::make_shared<ado::Connection>();
        connection->Open(QStringLiteral("sqlite:") + demoFile());
        grid().setLocale(QLocale(QLocale::Greek, QLocale::Greece));
        grid().setclmns(QStringLiteral("POLICIESCLMNS"));
        grid().setSqlOnRunTime(true);
        grid().setTotalForm(isTotals);
        grid().Fill(connection, QStringLiteral("POLICIESDATA"), ZKP_Table_QUERY, {});
        const QStringList fields{QStringLiteral("REGION"), QStringLiteral("BRANCH"),
                                 QStringLiteral("CATEGORY"), QStringLiteral("PREMIUM"),
                                 QStringLiteral("NET")};
        grid().setCols(static_cast<int>(fields.size()));
        for (int col = 0; col < fields.size(); ++col) {
            grid().setColDataField(col, fields[col]);
            grid().setColCaption(col, fields[col].toLower());
            grid().setColWidth(col, 2000);
            grid().setColForTot(col, col < 2);
            grid().setColTotals(col, col > 2);
            grid().setColAlignment(col, col > 2 ? 6 : 0);
        }
        grid().refresh();
        settle();
        ASSERT_THAT(boxes(), ElementsAre());
        ASSERT_GT(grid().Rows(), 20);
    }

    static void settle() {
        for (int i = 0; i < 3; ++i)
            QApplication::processEvents();
    }
    ZkpGrid& grid() { return widget.grid(); }
    GridSurface& surface() { return grid().MSFlexGrid1(); }
    QWidget* port() { return widget.view().viewport(); }
    template <class Widget>
    Widget& tool(const char* name) {
        auto* found = widget.band().findChild<Widget*>(QLatin1String(name));
        if (!found)
            throw std::runtime_error(name);
        return *found;
    }
    QPoint cell(int row, int col) { return widget.view().page().cellRect(row, col).center(); }
    void click(int row, int col) {
        QTest::mouseClick(port(), Qt::LeftButton, {}, cell(row, col));
        settle();
    }
    void move(QPoint at) {
        QMouseEvent event(QEvent::MouseMove, at, port()->mapToGlobal(at), Qt::NoButton, Qt::LeftButton,
                          Qt::NoModifier);
        QApplication::sendEvent(port(), &event);
        settle();
    }
    /// Leaves the button pressed over the target.
    void drag(int from, int to) {
        QTest::mousePress(port(), Qt::LeftButton, {}, cell(0, from));
        move((cell(0, from) + cell(0, to)) / 2);
        move(cell(0, to));
    }
    void drop(int col) {
        QTest::mouseRelease(port(), Qt::LeftButton, {}, cell(0, col));
        settle();
    }
    void choose(const char* name) {
        QTest::mouseClick(&tool<QToolButton>(name), Qt::LeftButton, {}, {6, 8});
        settle();
    }
    static QMenu* menu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }
    static void key(Qt::Key key) {
        QTest::keyClick(QApplication::activePopupWidget(), key);
        settle();
    }
    /// Goes down to an entry of the open menu and chooses it.
    static void chooseEntry(const char* name) {
        ASSERT_NE(menu(), nullptr) << name;
        const auto isActive = [&] {
            const QAction* action = menu()->activeAction();
            return action && (action->menu() ? action->menu()->objectName() : action->objectName()) ==
                                 QLatin1String(name);
        };
        for (int i = 0; i < 40 && !isActive(); ++i)
            key(Qt::Key_Down);
        ASSERT_TRUE(isActive()) << name;
        key(Qt::Key_Return);
    }
    void openMenuByKey() {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(1, 1), port()->mapToGlobal(QPoint(1, 1)),
                                Qt::NoModifier);
        QApplication::sendEvent(&widget.view(), &event);
        settle();
    }
    std::vector<QString> boxes() {
        std::vector<QString> texts;
        for (const auto& message : host->messages)
            texts.push_back(message.text);
        return texts;
    }
    std::vector<QString> fields() {
        std::vector<QString> all;
        for (int col = 0; col < grid().Cols(); ++col)
            all.push_back(grid().ColDataField(col));
        return all;
    }
    QImage picture() {
        settle();
        return widget.grab().toImage();
    }

    std::shared_ptr<ScriptedHost> host = std::make_shared<ScriptedHost>();
    ZkpGridWidget widget{host};
};

TEST_F(ReportSession, TheRowFollowsTheCurrentColumn) {
    click(4, 3);
    EXPECT_TRUE(tool<QToolButton>("mnuAlignRight").isChecked());
    EXPECT_EQ(tool<QLineEdit>("mnuCaption").text(), QStringLiteral("premium"));
    EXPECT_EQ(tool<QComboBox>("mnuField").currentText(), QStringLiteral("Μικτά Ασφάλιστρα"));
    EXPECT_TRUE(tool<QToolButton>("mnuSort").isEnabled());
    click(4, 0);
    EXPECT_TRUE(tool<QToolButton>("mnuAlignLeft").isChecked());
    EXPECT_FALSE(tool<QToolButton>("mnuSort").isEnabled()) << "a group factor";
}

TEST_F(ReportSession, AToolAlignsTheCurrentColumn) {
    click(4, 3);
    const QImage before = picture();
    choose("mnuAlignLeft");
    EXPECT_EQ(grid().ColAlignment(3), 0);
    EXPECT_TRUE(tool<QToolButton>("mnuAlignLeft").isChecked());
    EXPECT_FALSE(tool<QToolButton>("mnuAlignRight").isChecked());
    EXPECT_NE(picture(), before);
}

TEST_F(ReportSession, ARightPressChoosesTheColumnAndOpensItsMenu) {
    QTest::mousePress(port(), Qt::RightButton, {}, cell(4, 3));
    settle();
    EXPECT_EQ(surface().Col(), 3);
    ASSERT_NE(menu(), nullptr);
    QStringList captions;
    for (const QAction* action : menu()->actions())
        captions += action->text();
    EXPECT_EQ(captions, (QStringList{QStringLiteral("Στήλη"), QStringLiteral("Μορφοποίηση"),
                                     QStringLiteral("Υπόδειγμα"), QStringLiteral("Γράφημα"),
                                     QStringLiteral("Ταξινόμηση")}));
    EXPECT_FALSE(menu()->actions()[3]->isEnabled()) << "no chart of a detail report";
}

TEST_F(ReportSession, TheMenuKeyOpensTheMenuBelowTheCurrentCell) {
    click(4, 3);
    openMenuByKey();
    ASSERT_NE(menu(), nullptr);
    EXPECT_EQ(menu()->pos(), port()->mapToGlobal(widget.view().page().cellRect(4, 3).bottomLeft()));
    key(Qt::Key_Escape);
    EXPECT_EQ(menu(), nullptr);
    QTest::keyClick(&widget.view(), Qt::Key_F10, Qt::ShiftModifier);
    settle();
    EXPECT_NE(menu(), nullptr);
}

TEST_F(ReportSession, AColumnIsDeletedByKeysAlone) {
    click(4, 2);
    openMenuByKey();
    chooseEntry("mnuColumn");
    chooseEntry("mnuDelColumn");
    EXPECT_THAT(fields(), ElementsAre(QStringLiteral("REGION"), QStringLiteral("BRANCH"),
                                      QStringLiteral("PREMIUM"), QStringLiteral("NET")));
    EXPECT_EQ(surface().Cols(), 4);
}

TEST_F(ReportSession, AColourIsChosenByKeysThreeMenusDeep) {
    host->onColorDialog = [](std::uint32_t) { return std::optional<std::uint32_t>(0x00FF00FF); };
    click(4, 2);
    const QImage before = picture();
    openMenuByKey();
    chooseEntry("mnuFormat");
    chooseEntry("mnuBackColor");
    chooseEntry("mnuFixedBackColor");
    EXPECT_EQ(grid().BackColorFixed(), 0x00FF00FFu);
    const QPoint heading = widget.view().page().cellRect(0, 2).bottomRight() - QPoint(3, 3);
    const QImage after = picture();
    EXPECT_EQ(after.pixelColor(port()->mapTo(&widget, heading)), QColor(255, 0, 255));
    EXPECT_NE(before, after);
}

TEST_F(ReportSession, ACancelledColourChangesNothing) {
    const auto before = grid().BackColorFixed();
    host->onColorDialog = [](std::uint32_t) { return std::optional<std::uint32_t>(); };
    openMenuByKey();
    chooseEntry("mnuFormat");
    chooseEntry("mnuBackColor");
    chooseEntry("mnuFixedBackColor");
    EXPECT_EQ(grid().BackColorFixed(), before);
    EXPECT_THAT(boxes(), ElementsAre());
}

TEST_F(ReportSession, AFontIsChosenForTheHeadings) {
    host->onFontDialog = [](const FontChoice& start) {
        FontChoice chosen = start;
        chosen.FontSize = 16;
        return std::optional<FontChoice>(chosen);
    };
    const QImage before = picture();
    openMenuByKey();
    chooseEntry("mnuFormat");
    chooseEntry("mnuFonts");
    chooseEntry("mnuFixedFont");
    EXPECT_DOUBLE_EQ(grid().FixedFontSize(), 16);
    EXPECT_NE(picture(), before);
}

TEST_F(ReportSession, ACaptionIsTypedInGreek) {
    click(4, 2);
    auto& box = tool<QLineEdit>("mnuCaption");
    box.setFocus();
    box.selectAll();
    const QImage before = picture();
    QInputMethodEvent event;
    event.setCommitString(QStringLiteral("Είδος ασφάλισης"));
    QApplication::sendEvent(&box, &event);
    EXPECT_EQ(grid().ColCaption(2), QStringLiteral("Είδος ασφάλισης"));
    EXPECT_EQ(surface().TextMatrix(0, 2), QStringLiteral("Είδος ασφάλισης"));
    EXPECT_NE(picture(), before);
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_EQ(widget.focusWidget(), &widget.view());
}

TEST_F(ReportSession, AFieldIsPickedInTheList) {
    grid().setRefreshOnChange(true);
    click(4, 2);
    auto& list = tool<QComboBox>("mnuField");
    const int index = list.findText(QStringLiteral("Πελάτης"));
    ASSERT_GE(index, 0);
    list.setFocus();
    while (list.currentIndex() < index)
        QTest::keyClick(&list, Qt::Key_Down);
    while (list.currentIndex() > index)
        QTest::keyClick(&list, Qt::Key_Up);
    settle();
    EXPECT_EQ(grid().ColDataField(2), QStringLiteral("CUSTOMER"));
    EXPECT_EQ(surface().TextMatrix(0, 2), QStringLiteral("Πελάτης"));
    EXPECT_EQ(tool<QLineEdit>("mnuCaption").text(), QStringLiteral("Πελάτης"));
}

TEST_F(ReportSession, AHeadingIsDraggedToAnotherPlace) {
    const QString premium = surface().TextMatrix(4, 3);
    drag(4, 3);
    EXPECT_EQ(port()->cursor().shape(), Qt::DragMoveCursor);
    const QPoint line(widget.view().page().cellRect(0, 3).left(), 60);
    EXPECT_EQ(picture().pixelColor(port()->mapTo(&widget, line)),
              widget.palette().color(QPalette::Highlight));
    drop(3);
    EXPECT_THAT(fields(),
                ElementsAre(QStringLiteral("REGION"), QStringLiteral("BRANCH"), QStringLiteral("CATEGORY"),
                            QStringLiteral("NET"), QStringLiteral("PREMIUM")));
    EXPECT_EQ(surface().TextMatrix(0, 4), QStringLiteral("premium"));
    EXPECT_EQ(surface().TextMatrix(4, 4), premium) << "the data stay under their heading";
    EXPECT_EQ(port()->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(ReportSession, AHeadingIsNotDroppedOnAGroupFactor) {
    const auto before = fields();
    drag(4, 1);
    EXPECT_EQ(port()->cursor().shape(), Qt::ForbiddenCursor);
    const QPoint line(widget.view().page().cellRect(0, 1).left(), 60);
    EXPECT_NE(picture().pixelColor(port()->mapTo(&widget, line)),
              widget.palette().color(QPalette::Highlight));
    drop(1);
    EXPECT_EQ(fields(), before);
    EXPECT_EQ(port()->cursor().shape(), Qt::ArrowCursor);
    EXPECT_THAT(boxes(), ElementsAre());
}

TEST_F(ReportSession, AGroupFactorOfADetailReportIsNotDragged) {
    drag(1, 0);
    EXPECT_EQ(port()->cursor().shape(), Qt::ArrowCursor);
    drop(0);
    EXPECT_EQ(fields()[0], QStringLiteral("REGION"));
}

TEST_F(ReportSession, TheFactorsOfATotalsReportChangePlaces) {
    load(true);
    host->onMsgBox = [](const ScriptedHost::Message&) { return int(kAnswerYes); };
    drag(1, 0);
    drop(0);
    ASSERT_EQ(boxes().size(), 1u);
    EXPECT_EQ(fields()[0], QStringLiteral("BRANCH"));
    EXPECT_EQ(surface().TextMatrix(0, 0), QStringLiteral("branch"));
}

TEST_F(ReportSession, AColumnMadeNarrowIsRememberedAndItsSortKeepsIt) {
    const Span span = *spanOf(widget.view().page().cols, 2);
    const QPoint border(span.end() - 1, 5);
    QTest::mousePress(port(), Qt::LeftButton, {}, border);
    move(border - QPoint(40, 0));
    QTest::mouseRelease(port(), Qt::LeftButton, {}, border - QPoint(40, 0));
    EXPECT_DOUBLE_EQ(grid().ColWidth(2), (span.size - 40) * 15);
    click(4, 2);
    choose("mnuSort");
    EXPECT_DOUBLE_EQ(grid().ColWidth(2), (span.size - 40) * 15);
}

TEST_F(ReportSession, TheWheelScrollsAndPaintsWhatComes) {
    const QPoint at = cell(4, 2);
    QWheelEvent wheel(at, port()->mapToGlobal(at), {}, {0, -240}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(port(), &wheel);
    settle();
    EXPECT_GT(surface().TopRow(), 1);
}

TEST_F(ReportSession, WhatIsNotBuiltYetSaysSo) {
    click(4, 2);
    choose("ExportToExcel");
    EXPECT_THAT(boxes(), ElementsAre(QStringLiteral("Δεν υπάρχει ακόμη: Export")));
}

TEST_F(ReportSession, TheRowOfToolsStaysUsableWhenItIsNarrow) {
    widget.resize(260, 400);
    settle();
    auto& more = tool<QToolButton>("more");
    ASSERT_TRUE(more.isVisible());
    Q_EMIT more.menu()->aboutToShow();
    for (QAction* action : more.menu()->actions())
        if (action->objectName() == QStringLiteral("mnuAlignCenter"))
            action->trigger();
    EXPECT_EQ(grid().ColAlignment(surface().Col()), 3);
}

TEST_F(ReportSession, AnEmptyControlTakesEveryToolWithoutHarm) {
    ZkpGridWidget empty(host);
    empty.resize(1400, 300);
    empty.show();
    settle();
    for (auto* button : empty.band().findChildren<QToolButton*>())
        if (button->isVisible() && button->popupMode() != QToolButton::InstantPopup)
            QTest::mouseClick(button, Qt::LeftButton, {}, {6, 8});
    settle();
    EXPECT_FALSE(empty.grab().isNull());
}

} // namespace
} // namespace zkp
