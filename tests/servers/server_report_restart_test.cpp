#include "server_fixture.h"

#include "host/scripted_host.h"
#include "zkp_grid.h"

#include <QProcess>
#include <QThread>

#include <thread>

using namespace Qt::StringLiterals;

namespace zkp::servers {

using namespace zkp::ado;

/// Reports and templates of a control whose server is killed and started again.
class ServerReportRestartTest : public ServerTest {
protected:
    void restart() const {
        const QByteArray script = qgetenv((QByteArray(GetParam().variable) + "_RESTART").constData());
        EXPECT_EQ(QProcess::execute(QString::fromUtf8(script), QStringList()), 0);
    }
    /// The Error of a call within which the server dies.
    template <class F>
    Error errorWhileItDies(F&& call) {
        std::thread killer([this] {
            QThread::msleep(500);
            restart();
        });
        const Error error = errorOf(call);
        killer.join();
        return error;
    }
    /// Opens the same connection again, once the server is back.
    void openAgain() {
        for (int i = 0; i < 300; ++i) {
            if (errorNumber([&] { cn->Open(); }) == 0)
                return;
            QThread::msleep(100);
        }
        FAIL() << "the server does not come back";
    }
    /// The boxes of a load.
    QStringList load(const char* statement) {
        host->messages.clear();
        grid.setCols(1);
        grid.setColDataField(0, u"A"_s);
        grid.Fill(cn, u(statement), ZKP_SQLStatement);
        grid.refresh();
        QStringList boxes;
        for (const auto& message : host->messages)
            boxes << message.text;
        return boxes;
    }
    void expectUsable() {
        EXPECT_EQ(load("SELECT 'Άννα' AS A"), QStringList());
        EXPECT_EQ(grid.TextMatrix(1, 0), u"Άννα"_s);
        EXPECT_EQ(host->pointer(), kPointerDefault);
        EXPECT_TRUE(grid.Redraw());
    }
    /// Each record written to the table of templates takes five seconds from now on.
    void makeSavingSlow() {
        if (!isPostgres()) {
            run("CREATE TRIGGER zt_slow_update AFTER UPDATE ON frms2 FOR EACH ROW DO SLEEP(5)");
            return run("CREATE TRIGGER zt_slow_insert AFTER INSERT ON frms2 FOR EACH ROW DO SLEEP(5)");
        }
        run("CREATE OR REPLACE FUNCTION zt_slow() RETURNS trigger LANGUAGE plpgsql AS "
            "'BEGIN PERFORM pg_sleep(5); RETURN NEW; END'");
        run("CREATE TRIGGER zt_slow AFTER INSERT OR UPDATE ON frms2 FOR EACH ROW EXECUTE FUNCTION zt_slow()");
    }
    void save(const QString& name, int width) {
        ZkpGrid saved(host);
        saved.setCn(cn);
        saved.setCols(1);
        saved.setColDataField(0, u"A"_s);
        saved.setColWidth(0, width);
        saved.SaveTemplate({}, name);
    }

    std::shared_ptr<ScriptedHost> host = std::make_shared<ScriptedHost>();
    ZkpGrid grid{host};
};
INSTANTIATE_TEST_SUITE_P(Servers, ServerReportRestartTest, testing::Values(kPostgres, kMariaDb),
                         [](const auto& server) { return std::string(server.param.name); });

TEST_P(ServerReportRestartTest, AServerThatDiesInALoadIsABoxAndTheNextLoadIsGood) {
    QStringList boxes;
    errorWhileItDies(
        [&] { boxes = load(isPostgres() ? "SELECT pg_sleep(20)::text AS A" : "SELECT SLEEP(20) AS A"); });
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_FALSE(boxes[0].isEmpty());
    openAgain();
    expectUsable();
}

TEST_P(ServerReportRestartTest, AServerThatDiesBetweenTwoReportsIsABoxAndTheFirstReportIsStillThere) {
    expectUsable();
    restart();
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(load("SELECT 'Βόλος' AS A").size(), 1);
    openAgain();
    expectUsable();
}

TEST_P(ServerReportRestartTest, AServerThatDiesInATemplateSaveLeavesTheOldTemplatesAsTheyWere) {
    make("frms2", "lstCode VARCHAR(100), ZKP_ BYTES, datein MOMENT");
    save(u"Δοκιμή"_s, 900);
    for (const QString& name : {u"Δοκιμή"_s, u"Νέα"_s}) {
        makeSavingSlow();
        const Error error = errorWhileItDies([&] { save(name, 1200); });
        EXPECT_EQ(error.number(), kErrDatabase) << error.description().toStdString();
        openAgain();
        EXPECT_EQ(firstField(open("SELECT lstCode FROM frms2")), QStringList(u"Δοκιμή"_s));
        ZkpGrid back(host);
        back.opentemplate(cn, {}, u"Δοκιμή"_s);
        EXPECT_EQ(back.ColWidth(0), 900);
        if (isPostgres()) {
            run("DROP TRIGGER zt_slow ON frms2");
        } else {
            run("DROP TRIGGER zt_slow_update");
            run("DROP TRIGGER zt_slow_insert");
        }
    }
    save(u"Δοκιμή"_s, 1500);
    ZkpGrid back(host);
    back.opentemplate(cn, {}, u"Δοκιμή"_s);
    EXPECT_EQ(back.ColWidth(0), 1500);
    run("DROP TABLE frms2");
}

} // namespace zkp::servers
