#pragma once

#include "demo/demo_database.h"
#include "platform/scripted_host.h"
#include "print_qt.h"
#include "window/report_window.h"

#include <QApplication>
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
class WindowTest : public testing::Test {
protected:
    WindowTest() {
        host = std::make_shared<zkp::ScriptedHost>();
        window = std::make_unique<zkp::app::ReportWindow>(host);
        window->show();
        QApplication::setActiveWindow(window.get());
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

    std::shared_ptr<zkp::ScriptedHost> host;
    std::unique_ptr<zkp::app::ReportWindow> window;
};
