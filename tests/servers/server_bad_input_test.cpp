#include "server_fixture.h"

#include "host/scripted_host.h"
#include "zkp_grid.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace zkp::servers {

using namespace zkp::ado;

/// A control on a server that gives it something odd: a box with the server's words, or the value, and in
/// either case a control that loads on.
class ServerBadInputTest : public ServerTest {
protected:
    /// The texts of the boxes that a load showed.
    QStringList load(const QString& statement, const QString& field) {
        host->messages.clear();
        grid.setCols(1);
        grid.setColDataField(0, field);
        grid.Fill(cn, statement, ZKP_SQLStatement);
        grid.refresh();
        QStringList boxes;
        for (const auto& message : host->messages)
            boxes << message.text;
        return boxes;
    }
    QStringList load(const char* statement, const char* field) { return load(u(statement), u(field)); }
    void expectUsable() {
        EXPECT_EQ(load("SELECT 'Άννα' AS A", "A"), QStringList());
        EXPECT_EQ(grid.TextMatrix(1, 0), u"Άννα"_s);
        EXPECT_EQ(host->pointer(), kPointerDefault);
        EXPECT_TRUE(grid.Redraw());
    }

    std::shared_ptr<ScriptedHost> host = std::make_shared<ScriptedHost>();
    ZkpGrid grid{host};
};
INSTANTIATE_TEST_SUITE_P(Servers, ServerBadInputTest, testing::Values(kPostgres, kMariaDb),
                         [](const auto& server) { return std::string(server.param.name); });

TEST_P(ServerBadInputTest, AConnectionThatCouldNotBeOpened) {
    const QString good = connectionString();
    const QString wrongPassword = QString(good).replace(u"PWD=zkp"_s, u"PWD=κακό"_s);
    const QString noDatabase = QString(good).replace(u"Database=zkp"_s, u"Database=nowhere"_s);
    const QString down = QString(good).replace(QRegularExpression(u"Port=\\d+"_s), u"Port=9"_s);
    const QString noDriver = QString(good).replace(QRegularExpression(u"\\{[^}]*\\}"_s), u"{Άλλος}"_s);
    const std::pair<QString, QString> kinds[] = {
        {wrongPassword, isPostgres() ? u"password"_s : u"Access denied"_s},
        {noDatabase, u"nowhere"_s},
        {down, u"onnect"_s},
        {noDriver, u"Driver Manager"_s}};
    for (const auto& [text, words] : kinds) {
        cn = std::make_shared<Connection>();
        const Error error = errorOf([&] { cn->Open(text); });
        EXPECT_EQ(error.number(), kErrDatabase) << text.toStdString();
        EXPECT_TRUE(error.description().contains(words)) << error.description().toStdString();
        EXPECT_EQ(cn->State(), adStateClosed);
        EXPECT_EQ(load("SELECT 1 AS A", "A").size(), 1);
        cn->Open(good);
        expectUsable();
    }
}

TEST_P(ServerBadInputTest, TypesThatHaveNoNumberOfTheirOwnAreTexts) {
    const std::pair<const char*, const char*> postgres[] = {{"'10.0.0.1'::inet", "10.0.0.1"},
                                                            {"string_to_array('1,2', ',')", "{1,2}"},
                                                            {"'{\"a\": \"ά\"}'::json", "{\"a\": \"ά\"}"},
                                                            {"point(1,2)", "(1,2)"},
                                                            {"ROW(1,'x')", "(1,x)"},
                                                            {"int4range(1,3)", "[1,3)"},
                                                            {"'ά'::unknown", "ά"}};
    const std::pair<const char*, const char*> mariaDb[] = {
        {"CAST('2001:db8::1' AS INET6)", "2001:db8::1"},
        {"JSON_ARRAY(1,'ά')", "[1, \"ά\"]"},
        {"CAST('123e4567-e89b-12d3-a456-426655440000' AS UUID)", "123e4567-e89b-12d3-a456-426655440000"}};
    const auto expectText = [&](const auto& pair) {
        const auto rs = open(u"SELECT "_s + u(pair.first) + u" AS V"_s);
        EXPECT_GE(rs->Fields().Item(0).Type(), 200) << pair.first;
        EXPECT_EQ(load(u"SELECT "_s + u(pair.first) + u" AS V"_s, u"V"_s), QStringList()) << pair.first;
        EXPECT_EQ(grid.TextMatrix(1, 0), u(pair.second)) << pair.first;
    };
    if (isPostgres())
        std::for_each(std::begin(postgres), std::end(postgres), expectText);
    else
        std::for_each(std::begin(mariaDb), std::end(mariaDb), expectText);
    expectUsable();
}

TEST_P(ServerBadInputTest, TimesOfDayAndBlobsOfGeometryDoNotEndALoad) {
    const QString value = isPostgres() ? u"TIME '13:05:09' AS V, INTERVAL '3 days' AS W"_s
                                       : u"CAST('13:05:09' AS TIME) AS V, POINT(1,2) AS W"_s;
    EXPECT_EQ(load(u"SELECT "_s + value, u"V"_s), QStringList());
    EXPECT_TRUE(grid.TextMatrix(1, 0).contains(u"13:05:09"_s)) << grid.TextMatrix(1, 0).toStdString();
    expectUsable();
}

/// PostgreSQL keeps no such text, but in a database without an encoding.
TEST_P(ServerBadInputTest, TextInABrokenEncodingIsRefusedInTheServersWords) {
    if (isPostgres()) {
        run("DROP DATABASE IF EXISTS zkp_ascii WITH (FORCE)");
        run("CREATE DATABASE zkp_ascii ENCODING 'SQL_ASCII' TEMPLATE template0 LC_COLLATE 'C' LC_CTYPE 'C'");
        const auto main = std::exchange(cn, std::make_shared<Connection>());
        cn->Open(connectionString().replace(u"Database=zkp"_s, u"Database=zkp_ascii"_s));
        const QStringList boxes = load("SELECT 'a' || chr(225) || 'b' AS A", "A");
        ASSERT_EQ(boxes.size(), 1);
        EXPECT_TRUE(boxes[0].contains(u"0xe1"_s)) << boxes[0].toStdString();
        expectUsable();
        cn->Close();
        cn = main;
        run("DROP DATABASE zkp_ascii WITH (FORCE)");
    } else {
        make("ZT_GREEK", "A VARCHAR(20) CHARACTER SET greek, B VARCHAR(20) CHARACTER SET latin1");
        run("INSERT INTO ZT_GREEK VALUES (X'C1EDEDE1', X'C1EDEDE1')");
        EXPECT_EQ(load("SELECT A FROM ZT_GREEK", "A"), QStringList());
        EXPECT_EQ(grid.TextMatrix(1, 0), u"Αννα"_s);
        EXPECT_EQ(load("SELECT B FROM ZT_GREEK", "B"), QStringList());
        EXPECT_EQ(grid.TextMatrix(1, 0), u"Áííá"_s) << "as the server was told to read it";
    }
    const char* broken =
        isPostgres() ? "SELECT convert_from('\\xE1'::bytea, 'UTF8') AS A" : "SELECT _utf8mb4 X'E1' AS A";
    const QStringList boxes = load(broken, "A");
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_TRUE(boxes[0].contains(u"E1"_s, Qt::CaseInsensitive)) << boxes[0].toStdString();
    expectUsable();
}

TEST_P(ServerBadInputTest, ABinaryValueOfFiftyMegabytesComesWhole) {
    make("ZT_BIG", "K INTEGER PRIMARY KEY, X BYTES");
    QByteArray bytes(50'000'000, '\0');
    for (qsizetype i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<char>(i * 7 + i / 251);
    {
        const auto rs = open("SELECT * FROM ZT_BIG", adLockOptimistic);
        rs->AddNew();
        rs->setCollect(u"K"_s, 1);
        rs->setCollect(u"X"_s, bytes);
        rs->Update();
    }
    EXPECT_TRUE(one("SELECT X FROM ZT_BIG").toByteArray() == bytes);
    EXPECT_EQ(load("SELECT K, X FROM ZT_BIG", "K"), QStringList());
    EXPECT_EQ(grid.TextMatrix(1, 0), u"1"_s);
    run("DROP TABLE ZT_BIG");
    expectUsable();
}

TEST_P(ServerBadInputTest, AFieldNameOf128GreekLettersIsShown) {
    make("ZT_NAME", "A INTEGER");
    const QString name(128, u'Ω');
    EXPECT_EQ(load(u"SELECT 'ά' AS ["_s + name + u"]"_s, name), QStringList());
    EXPECT_EQ(grid.TextMatrix(1, 0), u"ά"_s);
    EXPECT_EQ(load(u"SELECT ["_s + name + u"] FROM ZT_NAME"_s, name).size(), 1);
    const QString longest(isPostgres() ? 31 : 64, u'Ω');
    run(u"ALTER TABLE ZT_NAME ADD ["_s + longest + u"] VARCHAR(20)"_s);
    run(u"INSERT INTO ZT_NAME VALUES (1, 'Βόλος')"_s);
    EXPECT_EQ(load(u"SELECT ["_s + longest.toLower() + u"] FROM ZT_NAME"_s, longest), QStringList());
    EXPECT_EQ(grid.TextMatrix(1, 0), u"Βόλος"_s);
    expectUsable();
}

TEST_P(ServerBadInputTest, NumbersBeyondAllMeasureAreShownAsFarAsADoubleGoes) {
    const std::pair<const char*, double> postgres[] = {{"'99999999999999999999.5'::numeric", 1e20},
                                                       {"9223372036854775807", 9223372036854775807.0},
                                                       {"1e308::float8", 1e308}};
    const std::pair<const char*, double> mariaDb[] = {
        {"99999999999999999999.5", 1e20}, {"18446744073709551615", 18446744073709551615.0}, {"1e308", 1e308}};
    for (const auto& [value, number] : isPostgres() ? postgres : mariaDb) {
        const QString statement = u"SELECT "_s + u(value) + u" AS V"_s;
        EXPECT_EQ(one(statement.toUtf8().constData()).toDouble(), number) << value;
        EXPECT_EQ(load(statement, u"V"_s), QStringList()) << value;
    }
    if (isPostgres()) {
        EXPECT_EQ(load("SELECT 'NaN'::numeric AS V", "V"), QStringList());
    }
    expectUsable();
}

} // namespace zkp::servers
