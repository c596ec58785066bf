#include "window_fixture.h"

#include "commands/database_copy.h"

#include "base/error.h"

#include <QProcess>

// The window over a server's demonstration database does what it does over a file.

using namespace Qt::StringLiterals;

namespace {

using zkp::app::FirstReport;

const QString kPolicies = u"POLICIESDATA"_s; // servers give the reports in an order of their own

struct Server {
    const char* name;
    const char* variable; ///< names an administrator's connection
    const char* make;     ///< MariaDB's has a character set without Greek
    const char* drop;
};

const Server kPostgres{"PostgreSQL", "ZKP_TEST_POSTGRES", "CREATE DATABASE zkpwindow",
                       "DROP DATABASE IF EXISTS zkpwindow WITH (FORCE)"};
const Server kMariaDb{"MariaDB", "ZKP_TEST_MARIADB", "CREATE DATABASE zkpwindow CHARACTER SET latin1",
                      "DROP DATABASE IF EXISTS zkpwindow"};

void PrintTo(const Server& server, std::ostream* out) {
    *out << server.name;
}

zkp::ado::ConnectionPtr connectTo(const QString& text) {
    const auto connection = std::make_shared<zkp::ado::Connection>();
    connection->Open(text);
    return connection;
}

QStringList rowsOf(zkp::ZkpGrid& grid) {
    QStringList all;
    const zkp::GridSurface& surface = grid.MSFlexGrid1();
    for (int row = surface.FixedRows(); row < surface.Rows(); ++row) {
        QStringList cells;
        for (int col = 0; col < surface.Cols(); ++col)
            cells += surface.TextMatrix(row, col);
        all += cells.join(u'|');
    }
    all.sort(); // equal sort keys have no order
    return all;
}

/// A server with an empty database.
class EmptyDatabase : public testing::TestWithParam<Server> {
protected:
    EmptyDatabase() {
        dropDatabase();
        makeDatabase();
    }
    ~EmptyDatabase() override { dropDatabase(); }

    void makeDatabase() const { admin->Execute(QString::fromLatin1(GetParam().make)); }
    /// With the sessions in it.
    void dropDatabase() const {
        endSessions();
        admin->Execute(QString::fromLatin1(GetParam().drop));
    }

    bool isPostgres() const { return GetParam().variable == kPostgres.variable; }
    QString named() const { return adminString().replace(u"Database=zkp"_s, u"Database=zkpwindow"_s); }
    void fill() const {
        const auto into = connectTo(named());
        zkp::app::mustBeEmpty(into, u"zkpwindow"_s);
        zkp::app::copyDemoDatabase(connectTo(u"sqlite:"_s + demoFile()), into);
    }
    /// Ends what is connected to the database, as its administrator would.
    void endSessions() const {
        const auto sessions = admin->Execute(
            isPostgres()
                ? u"SELECT pg_terminate_backend(pid) FROM pg_stat_activity WHERE datname = 'zkpwindow'"_s
                : u"SELECT id FROM information_schema.processlist WHERE db = 'zkpwindow'"_s);
        for (; !isPostgres() && !sessions->Eof(); sessions->MoveNext())
            admin->Execute(u"KILL %1"_s.arg(sessions->Fields().Item(0).Value().toLongLong()));
        QTest::qWait(200); // it is done when they hear of it
    }
    /// The program's exit code; what it writes is in `written`.
    int start(const QStringList& arguments) {
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.setWorkingDirectory(folder.path());
        process.start(QStringLiteral(ZKPREPORT_PROGRAM), arguments);
        EXPECT_TRUE(process.waitForFinished(120'000));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        written = QString::fromUtf8(process.readAll());
        return process.exitCode();
    }

    QTemporaryDir folder;
    QString written;

private:
    QString adminString() const { return QString::fromUtf8(qgetenv(GetParam().variable)); }
    zkp::ado::ConnectionPtr admin = connectTo(adminString());
};
INSTANTIATE_TEST_SUITE_P(Servers, EmptyDatabase, testing::Values(kPostgres, kMariaDb),
                         [](const auto& server) { return std::string(server.param.name); });

TEST_P(EmptyDatabase, TheDemonstrationGoesInOnce) {
    fill();
    try {
        fill();
        ADD_FAILURE() << "a second time";
    } catch (const zkp::Error& error) {
        EXPECT_TRUE(error.description().startsWith(u"the database zkpwindow is not empty: it holds "_s))
            << qPrintable(error.description());
    }
    EXPECT_EQ(start({u"demo-db"_s, u"--into"_s, named(), u"--rows=5"_s}), 1);
    EXPECT_TRUE(written.contains(u"is not empty"_s)) << qPrintable(written);
    EXPECT_FALSE(written.contains(u"PWD"_s)) << qPrintable(written);
    EXPECT_EQ(connectTo(named())->Execute(u"SELECT * FROM POLICIES"_s)->RecordCount(), 600);
}

TEST_P(EmptyDatabase, ADemonstrationThatFailsLeavesNothing) {
    const QString file = folder.filePath(u"broken.db"_s);
    ASSERT_TRUE(QFile::copy(demoFile(), file));
    const auto broken = connectTo(u"sqlite:"_s + file);
    broken->Execute(u"CREATE VIEW LAST AS SELECT julianday('now') AS A"_s); // a server has no such word
    const auto into = connectTo(named());
    EXPECT_THROW(zkp::app::copyDemoDatabase(broken, into), zkp::Error);
    EXPECT_NO_THROW(zkp::app::mustBeEmpty(into, u"zkpwindow"_s));
}

TEST_P(EmptyDatabase, AWrongPasswordEndsTheProgramWithoutShowingIt) {
    const QString wrong = named().replace(u"PWD=zkp"_s, u"PWD=guessed"_s);
    EXPECT_EQ(start({u"show"_s, wrong}), 1);
    EXPECT_TRUE(written.contains(u"zkpwindow (127.0.0.1)"_s)) << qPrintable(written);
    EXPECT_FALSE(written.contains(u"guessed"_s)) << qPrintable(written);
    EXPECT_EQ(start({u"template"_s, u"list"_s, u"--database"_s, wrong}), 1);
    EXPECT_FALSE(written.contains(u"guessed"_s)) << qPrintable(written);
}

/// The window over a server's demonstration database.
class WindowServers : public EmptyDatabase, public WindowSteps {
protected:
    WindowServers() {
        fill();
        host->onInputBox = [this](const QString&, const QString&, const QString&) { return answer; };
    }
    ~WindowServers() override { window.reset(); }

    bool openServer(const FirstReport& first = {kPolicies, {}, {}}) {
        const bool isOpen = window->showDatabase(named(), first);
        settle();
        EXPECT_TRUE(isOpen) << qPrintable(window->message());
        return isOpen;
    }
    void TearDown() override {
        for (const auto& box : host->messages)
            ADD_FAILURE() << "a box: " << qPrintable(box.text);
    }
    QListView& templates() { return part<QListView>("templates"); }
    QString answer;
};
INSTANTIATE_TEST_SUITE_P(Servers, WindowServers, testing::Values(kPostgres, kMariaDb),
                         [](const auto& server) { return std::string(server.param.name); });

TEST_P(WindowServers, ShowsWhatItShowsOfAFile) {
    const QStringList groups{u"REGION"_s, u"BRANCH"_s};
    for (const FirstReport& first : {FirstReport{kPolicies, {}, {}}, FirstReport{kPolicies, {}, {}, groups},
                                     FirstReport{kPolicies, {}, {}, groups, true},
                                     FirstReport{kPolicies, u"P0001"_s, u"REGION='ΑΤΤΙΚΉ'"_s, {}}}) {
        ASSERT_TRUE(openServer(first));
        EXPECT_TRUE(window->windowTitle().endsWith(u" – zkpwindow (127.0.0.1)"_s))
            << qPrintable(window->windowTitle());
        const QStringList shown = rowsOf(grid());
        ASSERT_TRUE(window->showDatabase(demoFile(), first)) << qPrintable(window->message());
        EXPECT_GE(shown.size(), 3);
        EXPECT_EQ(shown, rowsOf(grid()));
    }
}

TEST_P(WindowServers, IsRegroupedFilteredSortedAndLookedAtByOthers) {
    ASSERT_TRUE(openServer());
    EXPECT_EQ(reports().model()->rowCount(), number(u"SELECT count(*) FROM Reports"_s));
    EXPECT_EQ(users().count(), number(u"SELECT count(*) FROM SECUSERS"_s) + 1);
    applyFilter(u"PREMIUM>1000"_s);
    EXPECT_EQ(recordCount(), number(u"SELECT count(*) FROM POLICIESDATA WHERE PREMIUM>1000"_s));
    chooseGroup(1, u"CATEGORY"_s);
    EXPECT_EQ(static_cast<qlonglong>(rowsOfKind(zkp::ZKPSubTotals).size()),
              number(u"SELECT count(DISTINCT CATEGORY) FROM POLICIESDATA WHERE PREMIUM>1000"_s));
    chooseGroup(1, {});
    const int premium = columnOf(u"PREMIUM"_s);
    grid().MSFlexGrid1().userSelect(1, premium);
    QTest::keyClick(window.get(), Qt::Key_T, Qt::ControlModifier | Qt::ShiftModifier);
    settle();
    EXPECT_EQ(grid().TextMatrix(1, premium),
              greek(amount(u"SELECT min(PREMIUM) FROM POLICIESDATA WHERE PREMIUM>1000"_s)));
    const int all = recordCount();
    users().setCurrentIndex(1);
    settle();
    EXPECT_FALSE(rights().isEmpty());
    EXPECT_LE(recordCount(), all);
}

TEST_P(WindowServers, ATemplateIsSavedOpenedAndTakenAlongAsText) {
    ASSERT_TRUE(openServer({kPolicies, {}, {}, {u"CATEGORY"_s}}));
    grid().setColWidth(columnOf(u"PREMIUM"_s), 2345);
    answer = u"Μηνιαίο"_s;
    QTest::keyClick(window.get(), Qt::Key_F12);
    settle();
    EXPECT_EQ(window->message(), zkp::app::texts::templateSaved(answer));
    const QStringList shown = rowsOf(grid());

    ASSERT_TRUE(openServer());
    ASSERT_EQ(templates().model()->rowCount(), 1);
    templates().setCurrentIndex(templates().model()->index(0, 0));
    QTest::keyClick(&templates(), Qt::Key_Return);
    settle();
    EXPECT_EQ(window->templateName(), answer);
    EXPECT_TRUE(window->windowTitle().startsWith(answer)) << qPrintable(window->windowTitle());
    EXPECT_EQ(grid().ColWidth(columnOf(u"PREMIUM"_s)), 2345);
    EXPECT_EQ(rowsOf(grid()), shown);

    const auto say = [&](QStringList words) {
        return start(QStringList{u"template"_s} + words + QStringList{u"--database"_s, named()});
    };
    EXPECT_EQ(say({u"export"_s, answer, u"a.txt"_s}), 0) << qPrintable(written);
    EXPECT_EQ(say({u"import"_s, u"Αντίγραφο"_s, u"a.txt"_s}), 0) << qPrintable(written);
    EXPECT_EQ(say({u"export"_s, u"Αντίγραφο"_s, u"b.txt"_s}), 0) << qPrintable(written);
    EXPECT_EQ(say({u"list"_s}), 0) << qPrintable(written);
    EXPECT_EQ(written, u"Αντίγραφο\nΜηνιαίο\n"_s);
    QFile first(folder.filePath(u"a.txt"_s));
    QFile second(folder.filePath(u"b.txt"_s));
    ASSERT_TRUE(first.open(QIODevice::ReadOnly) && second.open(QIODevice::ReadOnly));
    const QByteArray text = first.readAll();
    EXPECT_TRUE(text.contains("2345")) << text.constData();
    EXPECT_EQ(text, second.readAll());
}

TEST_P(WindowServers, FindsAndTakesBackWhatWasReshaped) {
    ASSERT_TRUE(openServer());
    const QStringList before = captions();
    grid().MSFlexGrid1().userSelect(1, columnOf(u"PREMIUM"_s));
    grid().Picture1().click(u"mnuDelColumn");
    settle();
    ASSERT_NE(captions(), before);
    QTest::keyClick(&view(), Qt::Key_Z, Qt::ControlModifier);
    settle();
    EXPECT_EQ(captions(), before);
    QTest::keyClick(&view(), Qt::Key_F, Qt::ControlModifier);
    EXPECT_TRUE(part<QLineEdit>("findText").isVisible());
}

TEST_P(WindowServers, AConnectionThatDroppedIsMadeAnew) {
    ASSERT_TRUE(openServer());
    endSessions();
    applyFilter(u"PREMIUM>1000"_s);
    EXPECT_EQ(window->message(), QString());
    EXPECT_EQ(recordCount(), number(u"SELECT count(*) FROM POLICIESDATA WHERE PREMIUM>1000"_s));
}

TEST_P(WindowServers, ADatabaseThatIsGoneShowsABoxAndTheWindowGoesOnWhenItIsBack) {
    ASSERT_TRUE(openServer());
    dropDatabase();
    applyFilter(u"PREMIUM>1000"_s);
    ASSERT_EQ(host->messages.size(), 1u);
    const QString box = host->messages.front().text;
    EXPECT_TRUE(box.contains(u"zkpwindow"_s, Qt::CaseInsensitive))
        << "the server's words: " << qPrintable(box);
    EXPECT_FALSE(box.contains(u"PWD"_s)) << qPrintable(box);
    host->messages.clear();
    makeDatabase();
    fill();
    applyFilter(u"PREMIUM>1000"_s);
    EXPECT_EQ(recordCount(), number(u"SELECT count(*) FROM POLICIESDATA WHERE PREMIUM>1000"_s));
}

} // namespace
