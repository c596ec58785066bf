#pragma once

#include "demo/demo_database.h"
#include "host/scripted_host.h"
#include "print_qt.h"
#include "widgets/band/band_bar.h"
#include "widgets/grid/grid_view.h"
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

using testing::ElementsAre;

inline QString demoFile() {
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

/// A user at the window with the control's own commands behind it: a report of five columns, two group
/// factors and three plain ones.
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

} // namespace zkp
