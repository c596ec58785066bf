// Pictures of the window for the eye, under the build folder: pictures/*.png.

#include "window_picture_fixture.h"

#include <QAction>

namespace {

class WindowPictures : public WindowPictureTest {
protected:
    void makeDark() {
        QPalette dark;
        dark.setColor(QPalette::Window, QColor(45, 45, 48));
        dark.setColor(QPalette::WindowText, QColor(220, 220, 220));
        dark.setColor(QPalette::Base, QColor(30, 30, 30));
        dark.setColor(QPalette::Text, QColor(220, 220, 220));
        dark.setColor(QPalette::PlaceholderText, QColor(140, 140, 140));
        dark.setColor(QPalette::Button, QColor(53, 53, 56));
        dark.setColor(QPalette::ButtonText, QColor(220, 220, 220));
        dark.setColor(QPalette::Mid, QColor(75, 75, 80));
        window->setPalette(dark);
    }
    void openPanel() { QTest::keyClick(window.get(), Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier); }
};

TEST_F(WindowPictures, TheStatementPanelIsOpen) {
    ASSERT_TRUE(open());
    openPanel();
    paint("window_statement");
    paint("window_statement_200", 2);
}

TEST_F(WindowPictures, ARestrictedUserWithAFilter) {
    ASSERT_TRUE(open(
        {QStringLiteral("CLAIMSDATA"), QStringLiteral("P0010"), QStringLiteral("PAID>500 or RESERVE>500")}));
    openPanel();
    paint("window_restricted");
}

TEST_F(WindowPictures, ARefusedFilter) {
    ASSERT_TRUE(open());
    applyFilter(QStringLiteral("PREMIUM>100 or (BRANCH='Βόλος'"));
    paint("window_refused");
}

TEST_F(WindowPictures, DarkPalette) {
    makeDark();
    ASSERT_TRUE(open());
    openPanel();
    paint("window_dark");
}

TEST_F(WindowPictures, AGroupedReport) {
    ASSERT_TRUE(open({{}, {}, {}, {QStringLiteral("REGION"), QStringLiteral("BRANCH")}}));
    grid().MSFlexGrid1().setCol(columnOf(QStringLiteral("PREMIUM")));
    QTest::keyClick(window.get(), Qt::Key_T, Qt::ControlModifier | Qt::ShiftModifier);
    paint("window_groups");
    paint("window_groups_200", 2);
    makeDark();
    paint("window_groups_dark");
    grid().MSFlexGrid1().setTopRow(grid().Rows() - 30);
    paint("window_groups_end_dark");
    window->setPalette(QPalette());
    paint("window_groups_end");
}

TEST_F(WindowPictures, ATotalsReport) {
    ASSERT_TRUE(open({{}, {}, {}, {QStringLiteral("CATEGORY"), QStringLiteral("PRODUCTNAME")}, true}));
    paint("window_totals");
    paint("window_totals_200", 2);
    makeDark();
    paint("window_totals_dark");
    ASSERT_TRUE(open({QStringLiteral("LOSSRATIODATA"),
                      {},
                      {},
                      {QStringLiteral("REGION"), QStringLiteral("BRANCH"), QStringLiteral("CATEGORY")},
                      true}));
    window->setPalette(QPalette());
    paint("window_ratios");
}

TEST_F(WindowPictures, ReportsWithTemplates) {
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("demo.db"));
    QFile::copy(demoFile(), file);
    ASSERT_TRUE(window->showDatabase(file));
    chooseGroup(1, QStringLiteral("REGION"));
    grid().setSubTotalsBackColor(0x00D7E4BC);
    for (const char* name : {"Πωλητές με ασυνήθιστα μεγάλο όνομα", "Εβδομαδιαίο", "Μηνιαίο ανά περιφέρεια"}) {
        host->onInputBox = [name](auto&&...) { return QString::fromUtf8(name); };
        QTest::keyClick(window.get(), Qt::Key_F12);
    }
    QTest::keyClick(&part<QListView>("templates"), Qt::Key_Return);
    paint("window_templates");
    paint("window_templates_200", 2);
    makeDark();
    paint("window_templates_dark");
}

TEST_F(WindowPictures, FourFactorsInASmallWindow) {
    ASSERT_TRUE(open({QStringLiteral("CLAIMSDATA"),
                      QStringLiteral("P0010"),
                      {},
                      {QStringLiteral("REGION"), QStringLiteral("BRANCH"), QStringLiteral("CATEGORY"),
                       QStringLiteral("PRODUCTNAME")}}));
    openPanel();
    window->resize(800, 600);
    paint("window_small");
    paint("window_small_200", 2);
    const QTemporaryDir folder;
    QFile notes(folder.filePath(QStringLiteral("σημειώσεις.txt")));
    ASSERT_TRUE(notes.open(QIODevice::WriteOnly));
    notes.write("not a database at all");
    notes.close();
    EXPECT_FALSE(window->showDatabase(notes.fileName()));
    paint("window_no_database");
    ASSERT_TRUE(open({QStringLiteral("CLAIMSDATA"), {}, {}}));
    window->resize(1500, 700);
    paint("window_claims");
}

TEST_F(WindowPictures, NoReports) {
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("empty.db"));
    EXPECT_TRUE(QFile(file).open(QIODevice::WriteOnly));
    EXPECT_FALSE(window->showDatabase(file));
    paint("window_no_reports");
}

} // namespace
