#include "server_fixture.h"

#include "host/scripted_host.h"
#include "zkp_grid.h"

using namespace Qt::StringLiterals;

namespace zkp::servers {

using namespace zkp::ado;

/// What docs/databases.md grants a user of reports is enough, and no more than that is allowed.
class ServerRightsTest : public ServerTest {
protected:
    ServerRightsTest() {
        make("ZT_SOLD", "BRANCH VARCHAR(40), PREMIUM DECIMAL(19,4)");
        run("INSERT INTO ZT_SOLD VALUES ('Βόλος', 100), ('Πάτρα', 50), ('βόλος', 10)");
        make("frms2", "lstCode VARCHAR(100), ZKP_ BYTES, datein MOMENT");
        if (isPostgres())
            makePostgresUser();
        else
            makeMariaDbUser();
        reader->Open(connectionString().replace(u"UID=zkp"_s, u"UID=zkp_reader"_s));
    }
    ~ServerRightsTest() override {
        reader.reset();
        run("DROP TABLE frms2");
    }
    void makePostgresUser() {
        if (one("SELECT Count(*) FROM pg_roles WHERE rolname = 'zkp_reader'").toInt() == 1) {
            run("DROP OWNED BY zkp_reader");
            run("DROP ROLE zkp_reader");
        }
        run("DROP FUNCTION IF EXISTS Sec_GetUserIerarxiaID(text)");
        run("CREATE FUNCTION Sec_GetUserIerarxiaID(who text) RETURNS TABLE (Ierarxia text, IerID text) "
            "LANGUAGE sql AS 'SELECT ''9''::text, who'");
        run("CREATE ROLE zkp_reader LOGIN PASSWORD 'zkp'");
        run("GRANT SELECT ON ALL TABLES IN SCHEMA public TO zkp_reader");
        run("GRANT INSERT, UPDATE ON frms2 TO zkp_reader");
    }
    void makeMariaDbUser() {
        run("DROP PROCEDURE IF EXISTS Sec_GetUserIerarxiaID");
        run("CREATE PROCEDURE Sec_GetUserIerarxiaID(who TEXT) SELECT '9' AS Ierarxia, who AS IerID");
        run("CREATE OR REPLACE USER zkp_reader@'127.0.0.1' IDENTIFIED BY 'zkp'");
        run("GRANT SELECT, EXECUTE ON zkp.* TO zkp_reader@'127.0.0.1'");
        run("GRANT INSERT, UPDATE ON zkp.frms2 TO zkp_reader@'127.0.0.1'");
    }

    ConnectionPtr reader = std::make_shared<Connection>();
};
INSTANTIATE_TEST_SUITE_P(Servers, ServerRightsTest, testing::Values(kPostgres, kMariaDb),
                         [](const auto& server) { return std::string(server.param.name); });

TEST_P(ServerRightsTest, AReaderShowsReportsAndSavesTemplates) {
    const auto host = std::make_shared<ScriptedHost>();
    ZkpGrid grid(host);
    grid.setCols(2);
    grid.setColDataField(0, u"BRANCH"_s);
    grid.setColDataField(1, u"PREMIUM"_s);
    grid.setFilter(u"BRANCH='ΒΌΛΟΣ'"_s);
    grid.setOrderBy(u"PREMIUM"_s);
    grid.Fill(reader, u"ZT_SOLD"_s, ZKP_Table_QUERY, u"P1"_s);
    grid.refresh();
    for (const auto& message : host->messages)
        ADD_FAILURE() << message.text.toStdString();
    EXPECT_EQ(grid.RecCount(), 2);
    for (const int width : {900, 1200}) {
        grid.setColWidth(0, width);
        grid.SaveTemplate({}, u"Δοκιμή"_s);
    }
    ZkpGrid back(host);
    back.opentemplate(reader, {}, u"Δοκιμή"_s);
    EXPECT_EQ(back.ColWidth(0), 1200);
    EXPECT_EQ(one("SELECT Count(*) FROM frms2").toInt(), 1);
}

TEST_P(ServerRightsTest, AReaderWritesNothingElse) {
    for (const char* statement :
         {"UPDATE ZT_SOLD SET PREMIUM = 0", "DELETE FROM frms2", "DROP TABLE ZT_SOLD"}) {
        const Error error = errorOf([&] { reader->Execute(u(statement)); });
        EXPECT_EQ(error.number(), kErrDatabase) << statement << ": " << error.description().toStdString();
        EXPECT_TRUE(error.description().contains(u"denied"_s) || error.description().contains(u"owner"_s))
            << error.description().toStdString();
    }
    EXPECT_EQ(reader->Execute(u"SELECT * FROM ZT_SOLD"_s)->RecordCount(), 3);
}

} // namespace zkp::servers
