#include "window/report_list.h"
#include "window/statement_panel.h"
#include "base/texts/filters.h"
#include "window/texts.h"
#include "window_fixture.h"

namespace {

using namespace zkp::app;
namespace texts = zkp::app::texts;

TEST_F(WindowTest, ListsTheReportsOfTheDatabaseAndOpensTheFirst) {
    ASSERT_TRUE(open());
    EXPECT_EQ(titles(), (QStringList{QStringLiteral("Συμβόλαια"), QStringLiteral("Ζημίες"),
                                     QStringLiteral("Δείκτης Ζημιών"), QStringLiteral("Προϊόντα")}));
    EXPECT_EQ(recordCount(), 600);
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Συμβόλαια – demo.db"));
    EXPECT_EQ(window->message(), QString());
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(WindowTest, ColumnsComeFromTheDictionary) {
    ASSERT_TRUE(open());
    EXPECT_EQ(grid().Cols(), 10);
    EXPECT_EQ(grid().ColDataField(0), QStringLiteral("POLICYNO"));
    EXPECT_EQ(grid().ColCaption(0), QStringLiteral("Αρ. Συμβολαίου"));
    EXPECT_EQ(grid().ColWidth(0), 1600);
    EXPECT_TRUE(captions().contains(QStringLiteral("Μικτά Ασφάλιστρα")));
    const auto premium = static_cast<int>(captions().indexOf(QStringLiteral("Μικτά Ασφάλιστρα")));
    EXPECT_EQ(grid().Columns().ofGridColumn(premium).Alignment, 7) << "right";
    EXPECT_FALSE(captions().contains(QStringLiteral("Κωδικός"))) << "a field that is not visible";
    EXPECT_TRUE(grid().SqlOnRunTime());
    EXPECT_EQ(grid().SourceType(), zkp::ZKP_Table_QUERY);
    EXPECT_EQ(grid().clmns(), QStringLiteral("POLICIESCLMNS"));
}

TEST_F(WindowTest, EachReportOpensWithItsOwnRows) {
    ASSERT_TRUE(open());
    const QStringList sources{QStringLiteral("POLICIESDATA"),
                              QStringLiteral("CLAIMSDATA WHERE STATUS <> 'Άκυρη'"),
                              QStringLiteral("LOSSRATIODATA"), QStringLiteral("QRYPRODUCT")};
    for (int i = 3; i >= 0; --i) {
        chooseReport(i);
        EXPECT_EQ(recordCount(), number(QStringLiteral("SELECT COUNT(*) FROM ") + sources[i]))
            << qPrintable(sources[i]);
        EXPECT_TRUE(host->messages.empty()) << qPrintable(sources[i]);
        EXPECT_GE(grid().Cols(), 7);
    }
    chooseReport(3);
    EXPECT_FALSE(grid().SqlOnRunTime()) << "a report without a master table";
}

TEST_F(WindowTest, AUserSeesTheRowsOfTheirOwnAndOfTheirPart) {
    ASSERT_TRUE(open());
    EXPECT_EQ(users().itemText(0), texts::allRows());
    EXPECT_EQ(users().count(), 14);
    chooseUser(QStringLiteral("P0019"));
    EXPECT_EQ(recordCount(), number(QStringLiteral("SELECT COUNT(*) FROM POLICIESDATA WHERE "
                                                   "ProductIdentity='P0019' OR UnitIdentity='U02'")));
    EXPECT_EQ(rights(), texts::ownRowsAndUnit(QStringLiteral("U02")));
    chooseUser(QStringLiteral("P0001"));
    EXPECT_EQ(recordCount(),
              number(QStringLiteral("SELECT COUNT(*) FROM POLICIESDATA WHERE ProductIdentity='P0001'")));
    EXPECT_EQ(rights(), texts::ownRows(QStringLiteral("0")));
    users().setCurrentIndex(0);
    EXPECT_EQ(recordCount(), 600);
    EXPECT_EQ(rights(), QString());
}

TEST_F(WindowTest, ALevelWithoutAConditionIsShownAsSuch) {
    ASSERT_TRUE(open({{}, QStringLiteral("P0015"), {}}));
    EXPECT_EQ(recordCount(), 600);
    EXPECT_EQ(rights(), texts::noCondition(QStringLiteral("7")));
}

TEST_F(WindowTest, ARestrictedUserIsNotOfferedPrivateFields) {
    ASSERT_TRUE(open({QStringLiteral("CLAIMSDATA"), {}, {}}));
    EXPECT_TRUE(captions().contains(QStringLiteral("Πελάτης")));
    chooseUser(QStringLiteral("P0019"));
    EXPECT_FALSE(captions().contains(QStringLiteral("Πελάτης")));
}

TEST_F(WindowTest, EnterAppliesTheFilterAndABlankOneShowsAllAgain) {
    ASSERT_TRUE(open());
    filter().setText(QStringLiteral("BRANCH='Βόλος' or BRANCH='Πάτρα'"));
    EXPECT_EQ(recordCount(), 600) << "nothing before Enter";
    QTest::keyClick(&filter(), Qt::Key_Return);
    const auto expected =
        number(QStringLiteral("SELECT COUNT(*) FROM POLICIESDATA WHERE BRANCH IN ('Βόλος', 'Πάτρα')"));
    EXPECT_EQ(recordCount(), expected);
    QTest::keyClick(&filter(), Qt::Key_Return);
    EXPECT_EQ(recordCount(), expected) << "the filter is set afresh for each load";
    applyFilter(QStringLiteral("  "));
    EXPECT_EQ(recordCount(), 600);
    EXPECT_TRUE(host->messages.empty());
}

TEST_F(WindowTest, TheStandingConditionHoldsWithAndWithoutAFilter) {
    ASSERT_TRUE(open({QStringLiteral("Ζημίες"), {}, {}}));
    const QString query = QStringLiteral("SELECT COUNT(*) FROM CLAIMSDATA WHERE STATUS<>'Άκυρη'");
    EXPECT_EQ(recordCount(), number(query));
    applyFilter(QStringLiteral("PAID>0"));
    EXPECT_EQ(recordCount(), number(query + QStringLiteral(" AND PAID>0")));
    // The builders leave the condition out of a filter that holds its text.
    applyFilter(QStringLiteral("1=1 or STATUS<>'Άκυρη'"));
    EXPECT_EQ(recordCount(), number(query));
    EXPECT_LT(recordCount(), number(QStringLiteral("SELECT COUNT(*) FROM CLAIMSDATA")));
}

TEST_F(WindowTest, ARefusedFilterIsToldAndLeavesTheRows) {
    ASSERT_TRUE(open());
    applyFilter(QStringLiteral("PREMIUM>100"));
    const int before = recordCount();
    applyFilter(QStringLiteral("1=1) or (1=1"));
    EXPECT_EQ(window->message(), zkp::texts::bracketClosedFirst(4));
    EXPECT_EQ(recordCount(), before);
    EXPECT_EQ(filter().text(), QStringLiteral("1=1) or (1=1"));
    QTest::keyClick(&filter(), Qt::Key_Escape);
    EXPECT_EQ(filter().text(), QStringLiteral("PREMIUM>100")) << "Escape brings back what is in force";
    applyFilter(QStringLiteral("PREMIUM>100"));
    EXPECT_EQ(window->message(), QString());
}

TEST_F(WindowTest, AFilterThatTheDatabaseRefusesShowsABoxAndNoRows) {
    ASSERT_TRUE(open());
    applyFilter(QStringLiteral("NOSUCHFIELD=1"));
    ASSERT_EQ(host->messages.size(), 1u);
    EXPECT_EQ(window->message(), texts::loadFailed());
    EXPECT_EQ(recordCount(), 0);
    auto& panel = *window->findChild<StatementPanel*>();
    EXPECT_TRUE(panel.built().contains(QStringLiteral("( NOSUCHFIELD=1 )"))) << qPrintable(panel.built());
    EXPECT_TRUE(panel.sent().contains(QStringLiteral("NOSUCHFIELD=1"))) << qPrintable(panel.sent());
    applyFilter(QString());
    EXPECT_EQ(recordCount(), 600);
}

TEST_F(WindowTest, AFilterThatFindsNothingShowsNoRowsAndItsStatement) {
    ASSERT_TRUE(open());
    applyFilter(QStringLiteral("PREMIUM>99999999"));
    EXPECT_EQ(recordCount(), 0);
    EXPECT_EQ(window->message(), QString());
    auto& panel = *window->findChild<StatementPanel*>();
    EXPECT_TRUE(panel.sent().contains(QStringLiteral("99999999"))) << qPrintable(panel.sent());
    EXPECT_TRUE(panel.figures().startsWith(QStringLiteral("0 εγγραφές"))) << qPrintable(panel.figures());
}

TEST_F(WindowTest, AnotherReportStartsWithoutTheFilterAnotherUserKeepsIt) {
    ASSERT_TRUE(open({{}, {}, QStringLiteral("PREMIUM>100")}));
    EXPECT_EQ(recordCount(), number(QStringLiteral("SELECT COUNT(*) FROM POLICIESDATA WHERE PREMIUM>100")));
    chooseUser(QStringLiteral("P0001"));
    EXPECT_EQ(recordCount(), number(QStringLiteral("SELECT COUNT(*) FROM POLICIESDATA WHERE PREMIUM>100 "
                                                   "AND ProductIdentity='P0001'")));
    chooseReport(1);
    EXPECT_EQ(filter().text(), QString());
    EXPECT_EQ(recordCount(), number(QStringLiteral("SELECT COUNT(*) FROM CLAIMSDATA WHERE STATUS<>'Άκυρη' "
                                                   "AND ProductIdentity='P0001'")));
}

TEST_F(WindowTest, ThePanelOpensByKeysAndShowsTheStatement) {
    ASSERT_TRUE(open());
    auto& panel = *window->findChild<StatementPanel*>();
    EXPECT_FALSE(panel.isVisible());
    QTest::keyClick(window.get(), Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(panel.isVisible());
    applyFilter(QStringLiteral("BRANCH='Βόλος'"));
    EXPECT_TRUE(panel.built().startsWith(QStringLiteral("SELECT [POLICIES].[PolicyNo] AS [POLICYNO], ")));
    EXPECT_TRUE(panel.built().contains(QStringLiteral(" Where ( [BRANCHES].[BRANCHNAME]='ΒΌΛΟΣ' ) ")));
    EXPECT_TRUE(panel.sent().startsWith(QStringLiteral("SELECT [POLICIES].[PolicyNo]")));
    EXPECT_TRUE(panel.sent().contains(QStringLiteral("COLLATE"))) << qPrintable(panel.sent());
    EXPECT_EQ(panel.built(), grid().SQLRun().toString());
    EXPECT_TRUE(panel.figures().startsWith(QStringLiteral("%1 εγγραφές · εντολή ").arg(recordCount())));
    QTest::keyClick(window.get(), Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_FALSE(panel.isVisible());
}

TEST_F(WindowTest, AColumnStaysAsWideAsTheUserMadeIt) {
    ASSERT_TRUE(open());
    grid().setColWidth(0, 2100);
    applyFilter(QStringLiteral("PREMIUM>100"));
    EXPECT_EQ(grid().ColWidth(0), 2100);
    chooseReport(2);
    settle();
    EXPECT_EQ(questions, 1) << "the width is lost unless it is saved";
    EXPECT_EQ(grid().ColDataField(0), QStringLiteral("POLICYNO"));
    EXPECT_EQ(grid().ColWidth(0), 1350) << "another report has widths of its own";
}

TEST_F(WindowTest, UnknownReportsAndUsersAreTold) {
    EXPECT_FALSE(open({QStringLiteral("NOSUCH"), {}, {}}));
    EXPECT_EQ(window->message(), texts::noSuchReport(QStringLiteral("NOSUCH")));
    EXPECT_EQ(titles().size(), 4) << "the list is there all the same";
    EXPECT_FALSE(open({{}, QStringLiteral("x' or '1'='1"), {}}));
    EXPECT_EQ(window->message(), texts::noSuchUser(QStringLiteral("x' or '1'='1")));
    EXPECT_EQ(recordCount(), 0);
    EXPECT_FALSE(open({{}, {}, QStringLiteral("PREMIUM>1 --")}));
    EXPECT_EQ(window->message(), zkp::texts::commentInFilter(11));
    EXPECT_EQ(recordCount(), 0);
}

TEST_F(OtherDatabase, WithoutTheTableReportsThereIsAMessage) {
    EXPECT_FALSE(openWith({}));
    EXPECT_EQ(window->message(), texts::noReportsTable());
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(host->messages.empty());
    EXPECT_EQ(users().count(), 1);
    EXPECT_FALSE(users().isEnabled());
    EXPECT_FALSE(filter().isEnabled());
    EXPECT_FALSE(reports().isVisible());
}

TEST_F(OtherDatabase, AFileThatIsNoDatabaseIsNamedWithoutABox) {
    const QString file = folder.filePath(QStringLiteral("σημειώσεις.txt"));
    QFile notes(file);
    ASSERT_TRUE(notes.open(QIODevice::WriteOnly));
    notes.write("not a database, but longer than its signature");
    notes.close();
    ASSERT_TRUE(open());
    EXPECT_FALSE(window->showDatabase(file));
    EXPECT_EQ(window->message(), texts::noDatabase(QStringLiteral("σημειώσεις.txt")));
    EXPECT_TRUE(host->messages.empty());
    EXPECT_FALSE(reports().isVisible());
    EXPECT_FALSE(filter().isEnabled());
    EXPECT_FALSE(groupList(1).isEnabled());
    EXPECT_EQ(recordCount(), 0);
    QTest::keyClick(window->focusWidget() ? window->focusWidget() : window.get(), Qt::Key_F2);
    EXPECT_NE(window->message(), QString()) << "it stands in the report's place";
    EXPECT_FALSE(window->showDatabase(folder.filePath(QStringLiteral("none.db"))));
    EXPECT_EQ(window->message(), texts::noFile(QStringLiteral("none.db")));
    EXPECT_TRUE(open()) << "and another file opens";
    EXPECT_TRUE(filter().isEnabled());
    EXPECT_TRUE(groupList(1).isEnabled());
}

TEST_F(WindowTest, AMessageMovesNothingAndGoesWithTheNextKeyOrClick) {
    ASSERT_TRUE(open());
    const QPoint place = view().mapTo(window.get(), QPoint());
    applyFilter(QStringLiteral("BRANCH='"));
    ASSERT_EQ(window->message(), zkp::texts::quoteLeftOpen(8));
    EXPECT_EQ(view().mapTo(window.get(), QPoint()), place);
    filter().setFocus();
    QTest::keyClick(&filter(), Qt::Key_Escape);
    EXPECT_EQ(window->message(), QString());
    applyFilter(QStringLiteral("BRANCH='"));
    ASSERT_EQ(window->message(), zkp::texts::quoteLeftOpen(8));
    QTest::mouseClick(view().viewport(), Qt::LeftButton, Qt::NoModifier,
                      view().page().cellRect(3, 1).center());
    EXPECT_EQ(window->message(), QString());
    EXPECT_EQ(view().mapTo(window.get(), QPoint()), place);
}

TEST_F(WindowTest, FourFactorsFitASmallWindow) {
    ASSERT_TRUE(open({{},
                      {},
                      {},
                      {QStringLiteral("REGION"), QStringLiteral("BRANCH"), QStringLiteral("CATEGORY"),
                       QStringLiteral("PRODUCTNAME")}}));
    QTest::keyClick(window.get(), Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    settle();
    EXPECT_LE(window->minimumSizeHint().width(), 800);
    window->resize(window->minimumSizeHint().width(), 600);
    settle();
    EXPECT_GE(filter().width(), 12 * filter().fontMetrics().averageCharWidth());
    EXPECT_EQ(groupList(4).currentData().toString(), QStringLiteral("PRODUCTNAME"));
    EXPECT_TRUE(groupList(4).isVisible());
    window->resize(1600, 800);
    settle();
    EXPECT_EQ(groupList(4).width(), groupList(1).width());
    EXPECT_GT(groupList(4).width(), 150) << "with room they have the width that they like";
}

TEST_F(OtherDatabase, AnEmptyTableReportsAndAReportWithoutADictionaryAreTold) {
    EXPECT_FALSE(openWith({QStringLiteral("CREATE TABLE Reports (RecSource TEXT, MasterTable TEXT)")}));
    EXPECT_EQ(window->message(), texts::noReports());
    QFile::remove(folder.filePath(QStringLiteral("other.db")));
    EXPECT_FALSE(openWith({QStringLiteral("CREATE TABLE Reports (RecSource TEXT, MasterTable TEXT)"),
                           QStringLiteral("INSERT INTO Reports VALUES ('OTHER', NULL)")}));
    EXPECT_EQ(titles(), QStringList{QStringLiteral("OTHER")}) << "without a title the source stands there";
    EXPECT_EQ(window->message(), texts::noDictionary(QStringLiteral("OTHER")));
}

TEST_F(OtherDatabase, AMissingDictionaryTableShowsABox) {
    EXPECT_FALSE(openWith({QStringLiteral("CREATE TABLE Reports (RecSource TEXT, Dictionary TEXT)"),
                           QStringLiteral("INSERT INTO Reports VALUES ('OTHER', 'NOSUCH')")}));
    EXPECT_EQ(host->messages.size(), 1u);
    EXPECT_EQ(recordCount(), 0);
}

TEST_F(OtherDatabase, AUserWhomTheDatabaseDoesNotKnowSeesNoRows) {
    const QStringList tables{
        QStringLiteral("CREATE TABLE Reports (RecSource TEXT, Dictionary TEXT)"),
        QStringLiteral("INSERT INTO Reports VALUES ('OTHER', 'FIELDS')"),
        QStringLiteral("CREATE TABLE FIELDS (dtfld TEXT, Cptn TEXT, wdth INTEGER, Algn INTEGER, visbl "
                       "INTEGER, IsPublic INTEGER, isgroup INTEGER, isTot INTEGER, [Sum] INTEGER, [Avg] "
                       "INTEGER, [Min] INTEGER, [Max] INTEGER, crosstabdate INTEGER, SOURCEFIELDNAME "
                       "TEXT, SourceTableName TEXT, Expr TEXT, KeyMaster TEXT, foreignkey TEXT)"),
        QStringLiteral("INSERT INTO FIELDS (dtfld, Cptn, wdth, visbl, IsPublic) VALUES ('A', 'a', 900, 1, "
                       "1), ('B', 'b', 900, 1, 1), ('C', 'c', 900, 1, 1), ('D', 'd', 900, 1, 1)"),
        QStringLiteral("INSERT INTO OTHER VALUES ('1', '2', '3', '4')"),
        QStringLiteral("CREATE TABLE SECUSERS (UserID TEXT, FullName TEXT)"),
        QStringLiteral("INSERT INTO SECUSERS VALUES ('U1', 'Χωρίς δικαιώματα'), ('U''2', 'Απόστροφος')")};
    EXPECT_TRUE(openWith(tables)) << qPrintable(window->message());
    EXPECT_EQ(recordCount(), 1);
    chooseUser(QStringLiteral("U1")); // there is no procedure that knows the rights
    EXPECT_EQ(recordCount(), 0);
    EXPECT_EQ(host->messages.size(), 1u);
    chooseUser(QStringLiteral("U'2"));
    EXPECT_EQ(recordCount(), 0);
    EXPECT_EQ(window->message(), texts::badIdentity(QStringLiteral("U'2")));
}

} // namespace
