#pragma once

#include "bag/property_bag.h"
#include "window/texts.h"
#include "window_fixture.h"

inline const QString kCategory = QStringLiteral("CATEGORY");
inline const QString kMonthly = QStringLiteral("Μηνιαίο");
inline const QString kOther = QStringLiteral("Άλλο");
inline constexpr zkp::Color kPink = 0x00C0C0FF;

/// The demonstration database in a copy of its own, with what a user does about templates.
class WindowTemplates : public WindowTest {
protected:
    WindowTemplates() {
        QFile::copy(demoFile(), file);
        host->onInputBox = [this](const QString&, const QString&, const QString& text) {
            offered = text;
            return answer;
        };
    }

    bool openCopy(const zkp::app::FirstReport& first = {}) {
        const bool isOpen = window->showDatabase(file, first);
        settle();
        return isOpen;
    }
    QListView& templates() { return part<QListView>("templates"); }
    QStringList names() {
        QStringList all;
        for (int row = 0; row < templates().model()->rowCount(); ++row)
            all += templates().model()->index(row, 0).data().toString();
        return all;
    }
    QStringList boldNames() {
        QStringList bold;
        for (int row = 0; row < templates().model()->rowCount(); ++row)
            if (const QModelIndex index = templates().model()->index(row, 0);
                index.data(Qt::FontRole).value<QFont>().bold())
                bold += index.data().toString();
        return bold;
    }
    void choose(const QString& name) {
        const auto row = static_cast<int>(names().indexOf(name));
        ASSERT_GE(row, 0) << qPrintable(name);
        templates().setCurrentIndex(templates().model()->index(row, 0));
    }
    void openTemplate(const QString& name) {
        choose(name);
        templates().setFocus();
        QTest::keyClick(&templates(), Qt::Key_Return);
        settle();
    }
    void saveAs(const QString& name) {
        answer = name;
        QTest::keyClick(window.get(), Qt::Key_F12);
        settle();
    }
    void save() {
        QTest::keyClick(window.get(), Qt::Key_S, Qt::ControlModifier);
        settle();
    }

    zkp::ado::ConnectionPtr database() const {
        const auto connection = std::make_shared<zkp::ado::Connection>();
        connection->Open(QStringLiteral("sqlite:") + file);
        return connection;
    }
    void execute(const QString& statement) const { database()->Execute(statement); }
    zkp::PropertyBag bagOf(const QString& name) const {
        zkp::PropertyBag bag;
        bag.setContents(database()
                            ->Execute(QStringLiteral("SELECT ZKP_ FROM frms2 WHERE lstCode='%1'").arg(name))
                            ->Fields()
                            .Item(0)
                            .Value()
                            .toByteArray());
        return bag;
    }
    /// Puts a bag into the database, as another program might.
    void store(const QString& name, const zkp::PropertyBag& bag) const {
        execute(QStringLiteral("DELETE FROM frms2 WHERE lstCode='%1'").arg(name));
        execute(QStringLiteral("INSERT INTO frms2 VALUES ('%1', x'%2', NULL)")
                    .arg(name, QString::fromLatin1(bag.Contents().toHex())));
    }

    /// One box with these words, and the report that was there before it.
    void expectRefusal(const QString& refusal, const QString& reason) {
        ASSERT_EQ(host->messages.size(), 1u);
        const QString box = host->messages.front().text;
        EXPECT_TRUE(box.startsWith(refusal)) << qPrintable(box);
        EXPECT_TRUE(box.contains(reason)) << qPrintable(box);
        EXPECT_EQ(host->messages.front().title, zkp::app::texts::templateBoxTitle());
        host->messages.clear();
    }

    QTemporaryDir folder;
    QString file = folder.filePath(QStringLiteral("demo.db"));
    QString answer;  // to the question for a name
    QString offered; // with that question
};
