#pragma once

#include "base/value.h"
#include "demo/demo_database.h"
#include "host/scripted_host.h"
#include "print_qt.h"
#include "widgets/grid/grid_view.h"
#include "window/report_window.h"
#include "window/texts.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QTemporaryDir>
#include <QtTest/QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

inline void settle() {
    for (int i = 0; i < 3; ++i)
        QApplication::processEvents();
}

/// A demonstration database of 600 policies, made once for all tests.
inline QString demoFile() {
    static const QTemporaryDir folder;
    static const QString file = [] {
        zkp::demo::Options options;
        options.file = folder.filePath(QStringLiteral("demo.db"));
        options.policies = 600;
        zkp::demo::makeDatabase(options);
        return options.file;
    }();
    return file;
}

/// The window with its real widgets, and what its user does.
class WindowSteps {
protected:
    WindowSteps() {
        host = std::make_shared<zkp::ScriptedHost>();
        host->onMsgBox = [this](const zkp::ScriptedHost::Message& box) { return answerTo(box); };
        window = std::make_unique<zkp::app::ReportWindow>(host);
        window->show();
        QApplication::setActiveWindow(window.get());
    }

    /// A user who keeps nothing unless the test says so; all else is answered with OK or Yes.
    int answerTo(const zkp::ScriptedHost::Message& box) {
        constexpr int kButtons = 7;
        if (box.text != zkp::app::texts::keepChanges())
            return (box.style & kButtons) < 3 ? zkp::kAnswerOk : zkp::kAnswerYes;
        host->messages.pop_back();
        ++questions;
        return keepAnswer;
    }

    bool open(const zkp::app::FirstReport& first = {}) {
        const bool isOpen = window->showDatabase(demoFile(), first);
        settle();
        return isOpen;
    }

    template <class Widget>
    Widget& part(const char* name) {
        auto* found = window->findChild<Widget*>(QLatin1String(name));
        EXPECT_TRUE(found) << name;
        return *found;
    }
    QListView& reports() { return part<QListView>("reports"); }
    QComboBox& users() { return part<QComboBox>("users"); }
    QLineEdit& filter() { return part<QLineEdit>("filter"); }
    QString rights() { return part<QLabel>("rights").text(); }

    QStringList titles() {
        QStringList all;
        for (int row = 0; row < reports().model()->rowCount(); ++row)
            all += reports().model()->index(row, 0).data().toString();
        return all;
    }
    void chooseReport(int row) { reports().setCurrentIndex(reports().model()->index(row, 0)); }
    void chooseUser(const QString& id) {
        for (int i = 0; i < users().count(); ++i)
            if (users().itemText(i).contains(QStringLiteral("(%1)").arg(id)))
                users().setCurrentIndex(i);
    }
    void applyFilter(const QString& text) {
        filter().setText(text);
        QTest::keyClick(&filter(), Qt::Key_Return);
        settle();
    }

    QComboBox& groupList(int place) {
        return part<QComboBox>(qPrintable(QStringLiteral("group%1").arg(place)));
    }
    QCheckBox& totals() { return part<QCheckBox>("totals"); }
    /// Chooses a factor in one of the lists, counted from 1; an empty key takes it away.
    void chooseGroup(int place, const QString& key) {
        QComboBox& list = groupList(place);
        const int index = list.findData(key);
        ASSERT_GE(index, 0) << qPrintable(key);
        list.setCurrentIndex(index);
        Q_EMIT list.activated(index);
        settle();
    }
    void toggleTotals() {
        QTest::keyClick(&totals(), Qt::Key_Space);
        settle();
    }

    zkp::GridView& view() { return *window->findChild<zkp::GridView*>(); }
    /// The middle of a column's heading.
    QPoint heading(int column) {
        const zkp::PageLayout& page = view().page();
        const zkp::Span* span = zkp::spanOf(page.cols, column);
        return span ? QPoint(span->start + span->size / 2, page.bodyTop() / 2) : QPoint(-1, -1);
    }
    void clickHeading(int column) {
        const QPoint at = heading(column);
        QTest::mousePress(view().viewport(), Qt::LeftButton, Qt::NoModifier, at);
        settle(); // a finger is slower than the event loop
        QTest::mouseRelease(view().viewport(), Qt::LeftButton, Qt::NoModifier, at);
        settle();
    }

    zkp::ZkpGrid& grid() { return window->grid(); }
    int recordCount() { return static_cast<int>(grid().RecCount()); }
    /// Each row's cells, joined; sorted, for comparison.
    QStringList rows() {
        QStringList all;
        const zkp::GridSurface& surface = grid().MSFlexGrid1();
        for (int row = surface.FixedRows(); row < surface.FixedRows() + recordCount(); ++row) {
            QStringList cells;
            for (int col = 0; col < surface.Cols(); ++col)
                cells += surface.TextMatrix(row, col);
            all += cells.join(u'|');
        }
        all.sort();
        return all;
    }
    int columnOf(const QString& field) {
        for (int col = 0; col < grid().Cols(); ++col)
            if (grid().ColDataField(col) == field)
                return col;
        ADD_FAILURE() << "no column " << qPrintable(field);
        return 0;
    }
    /// The rows of a kind, from the top.
    std::vector<int> rowsOfKind(int kind) {
        std::vector<int> found;
        const zkp::GridSurface& surface = grid().MSFlexGrid1();
        for (int row = surface.FixedRows(); row < surface.Rows(); ++row)
            if (surface.RowData(row) == kind)
                found.push_back(row);
        return found;
    }
    QString cell(int row, const QString& field) { return grid().TextMatrix(row, columnOf(field)); }
    QStringList captions() {
        QStringList all;
        for (int col = 0; col < grid().Cols(); ++col)
            all += grid().ColCaption(col);
        return all;
    }

    /// The answer of a query of the test's own, straight from the database.
    static qlonglong number(const QString& query) {
        const auto connection = std::make_shared<zkp::ado::Connection>();
        connection->setMode(zkp::ado::adModeRead);
        connection->Open(QStringLiteral("sqlite:") + demoFile());
        return connection->Execute(query)->Fields().Item(0).Value().toLongLong();
    }

    static double amount(const QString& query) {
        const auto connection = std::make_shared<zkp::ado::Connection>();
        connection->setMode(zkp::ado::adModeRead);
        connection->Open(QStringLiteral("sqlite:") + demoFile());
        const QVariant value = connection->Execute(query)->Fields().Item(0).Value();
        return zkp::ToDouble(value, zkp::ReportLocale(QLocale::c())).toDouble();
    }
    /// As a Greek office writes it.
    static QString greek(double amount, int decimals = 2) {
        return QLocale(QLocale::Greek, QLocale::Greece).toString(amount, 'f', decimals);
    }

    int keepAnswer = zkp::kAnswerNo; // to the question whether to save what was reshaped
    int questions = 0;               // of that kind
    std::shared_ptr<zkp::ScriptedHost> host;
    std::unique_ptr<zkp::app::ReportWindow> window;
};

class WindowTest : public testing::Test, public WindowSteps {};

/// Databases other than the demonstration one.
class OtherDatabase : public WindowTest {
protected:
    bool openWith(const QStringList& statements) {
        const QString file = folder.filePath(QStringLiteral("other.db"));
        EXPECT_TRUE(QFile(file).open(QIODevice::WriteOnly));
        {
            const auto connection = std::make_shared<zkp::ado::Connection>();
            connection->Open(QStringLiteral("sqlite:") + file);
            connection->Execute(QStringLiteral("CREATE TABLE OTHER (A TEXT, B TEXT, C TEXT, D TEXT)"));
            for (const QString& statement : statements)
                connection->Execute(statement);
        }
        return window->showDatabase(file);
    }
    QTemporaryDir folder;
};
