#include "server_fixture.h"

#include "base/currency.h"

#include <QDateTime>

namespace zkp::servers {

using namespace zkp::ado;

class ServerDataTest : public ServerTest {};
INSTANTIATE_TEST_SUITE_P(Servers, ServerDataTest, testing::Values(kPostgres, kMariaDb),
                         [](const auto& server) { return std::string(server.param.name); });

TEST_P(ServerDataTest, FieldsHaveThePublishedTypes) {
    make("ZT_TYPES",
         "S SMALLINT, I INTEGER, B BIGINT, D DOUBLE PRECISION, M DECIMAL(19,4), DAY DATE, AT MOMENT, "
         "V VARCHAR(50), T LONGTEXT, X BYTES");
    run("INSERT INTO ZT_TYPES VALUES (-7, 100000, 5000000000, 2.5, -12.3456, '2026-11-20', "
        "'2026-11-20 13:05:09.250', 'Άννα', 'Βόλος', NULL)");
    const auto rs = open("SELECT * FROM ZT_TYPES");
    const int types[] = {2, 3, 20, 5, 6, 133, 135, 202, 202, 205};
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(rs->Fields().Item(i).Type(), types[i]) << rs->Fields().Item(i).Name().toStdString();
    EXPECT_EQ(rs->Fields().Item(7).DefinedSize(), 50);
    EXPECT_EQ(rs->Collect(u("S")).toInt(), -7);
    EXPECT_EQ(rs->Collect(u("I")).toInt(), 100000);
    EXPECT_EQ(rs->Collect(u("B")).toLongLong(), 5000000000ll);
    EXPECT_EQ(rs->Collect(u("D")).toDouble(), 2.5);
    EXPECT_EQ(rs->Collect(u("M")).value<Currency>().scaled, -123456);
    EXPECT_EQ(rs->Collect(u("DAY")).toDateTime(), QDateTime(QDate(2026, 11, 20), QTime(0, 0)));
    EXPECT_EQ(rs->Collect(u("AT")).toDateTime(), QDateTime(QDate(2026, 11, 20), QTime(13, 5, 9, 250)));
    EXPECT_EQ(rs->Collect(u("V")).toString(), u("Άννα"));
    EXPECT_EQ(rs->Collect(u("T")).toString(), u("Βόλος"));
    EXPECT_FALSE(rs->Collect(u("X")).isValid());
}

TEST_P(ServerDataTest, FlagsAreBooleans) {
    make("ZT_FLAG", isPostgres() ? "F BOOLEAN" : "F BIT(1)");
    run("INSERT INTO ZT_FLAG VALUES (TRUE), (FALSE), (NULL)");
    const auto rs = open("SELECT F FROM ZT_FLAG ORDER BY F DESC");
    EXPECT_EQ(rs->Fields().Item(0).Type(), 11);
    EXPECT_EQ(firstField(rs), QStringList({u("true"), u("false"), u("NULL")}));
}

TEST_P(ServerDataTest, CountsAndSumsOfWholeNumbersAreIntegers) {
    make("ZT_SUM", "A INTEGER, M DECIMAL(19,4)");
    run("INSERT INTO ZT_SUM VALUES (1, 10.5), (2, 20.25), (NULL, NULL)");
    const auto rs = open("SELECT Count(*) As Cnt, Sum([A]) As [SUM_A], Sum([M]) As SUM_M From [ZT_SUM]");
    EXPECT_EQ(rs->Fields().Item(0).Type(), 3);
    EXPECT_EQ(rs->Fields().Item(1).Type(), 3);
    EXPECT_EQ(rs->Fields().Item(2).Type(), 6);
    EXPECT_EQ(rs->Fields().Item(1).Name(), u("SUM_A"));
    EXPECT_EQ(rs->Collect(u("Cnt")).toInt(), 3);
    EXPECT_EQ(rs->Collect(u("SUM_A")).toInt(), 3);
    EXPECT_EQ(rs->Collect(u("SUM_M")).value<Currency>().scaled, 307500);
}

TEST_P(ServerDataTest, TypesOfTheServersOwnComeAsWhatTheyMean) {
    const auto rs = isPostgres()
                        ? open("SELECT CAST(-12.5 AS MONEY), point '(1,2)', time '10:11:12', CAST('NaN' AS "
                               "NUMERIC), CAST('x' AS CHAR(3)), 5000000000")
                        : open("SELECT CAST(-12.5 AS DECIMAL(10,2)), 18446744073709551615, TIME '10:11:12', "
                               "NULL, CAST(7 AS UNSIGNED), 5000000000");
    const auto value = [&](int field) { return rs->Fields().Item(field).Value(); };
    EXPECT_EQ(rs->Fields().Item(0).Type(), 6);
    EXPECT_EQ(value(0).value<Currency>().scaled, -125'000);
    EXPECT_EQ(value(2).toString(), u("10:11:12"));
    EXPECT_EQ(value(5).toLongLong(), 5'000'000'000);
    EXPECT_EQ(rs->Fields().Item(5).Type(), 20);
    if (isPostgres()) {
        EXPECT_EQ(value(1).toString(), u("(1,2)"));
        EXPECT_EQ(value(4).toString(), u("x  "));
    } else {
        EXPECT_EQ(value(1).toDouble(), 18446744073709551615.0);
        EXPECT_FALSE(value(3).isValid());
        EXPECT_EQ(value(4).toInt(), 7);
    }
}

TEST_P(ServerDataTest, TextsAndBytesOfAnyLengthComeWhole) {
    make("ZT_LONG", "K INTEGER PRIMARY KEY, T LONGTEXT, X BYTES");
    const QString text = u("Ω😀a").repeated(40'000);
    QByteArray bytes(2'000'000, '\0');
    for (qsizetype i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<char>(i * 7 + i / 251);
    const auto rs = open("SELECT * FROM ZT_LONG", adLockOptimistic);
    for (const int key : {1, 2, 3, 3000}) {
        rs->AddNew();
        rs->setCollect(u("K"), key);
        rs->setCollect(u("T"), key == 2 ? text : u("short"));
        rs->setCollect(u("X"), key == 2 ? bytes : QByteArray("\0\1'", 3));
        rs->Update();
    }
    run(isPostgres() ? "INSERT INTO ZT_LONG SELECT n, repeat('ά', n), NULL FROM generate_series(4, 2999) n"
                     : "INSERT INTO ZT_LONG SELECT seq, repeat('ά', seq), NULL FROM seq_4_to_2999");
    const auto back = open("SELECT K, T, X, K AS AGAIN FROM ZT_LONG ORDER BY K");
    ASSERT_EQ(back->RecordCount(), 3000);
    for (std::size_t row = 3; row < 2999; ++row)
        ASSERT_EQ(back->table().columns[1]->value(row).toString().size(), static_cast<qsizetype>(row + 1));
    EXPECT_EQ(back->table().columns[2]->value(2999).toByteArray(), QByteArray("\0\1'", 3));
    EXPECT_EQ(back->Collect(u("T")).toString(), u("short"));
    EXPECT_EQ(back->Collect(u("X")).toByteArray(), QByteArray("\0\1'", 3));
    back->MoveNext();
    EXPECT_TRUE(back->Collect(u("T")).toString() == text);
    EXPECT_TRUE(back->Collect(u("X")).toByteArray() == bytes);
    EXPECT_EQ(back->Collect(u("AGAIN")).toInt(), 2);
    back->MoveNext();
    EXPECT_EQ(back->Collect(u("T")).toString(), u("short"));
}

TEST_P(ServerDataTest, ManyRecordsComeInTheirOrder) {
    make("ZT_MANY", "N INTEGER, T VARCHAR(40)");
    run(isPostgres() ? "INSERT INTO ZT_MANY SELECT n, 'Πελάτης ' || n FROM generate_series(1, 5000) n"
                     : "INSERT INTO ZT_MANY SELECT seq, CONCAT('Πελάτης ', seq) FROM seq_1_to_5000");
    const auto rs = open("SELECT T, N FROM ZT_MANY ORDER BY N");
    ASSERT_EQ(rs->RecordCount(), 5000);
    for (int i = 0; i < 5000; ++i)
        ASSERT_EQ(rs->table().columns[0]->value(static_cast<std::size_t>(i)).toString(),
                  u("Πελάτης %1").arg(i + 1));
}

/// PostgreSQL's driver says 255 of a varchar without a length, whatever it holds.
TEST_P(ServerDataTest, LongTextsOfColumnsWithoutALengthStayInTheirRecords) {
    if (isPostgres()) {
        make("ZT_UNBOUND", "N INTEGER, A VARCHAR");
        run("INSERT INTO ZT_UNBOUND SELECT n, CASE WHEN n % 1000 IN (5, 6) THEN n || repeat('ω', 1500) "
            "ELSE CAST(n AS VARCHAR) END FROM generate_series(1, 20000) n");
    } else {
        make("ZT_UNBOUND", "N INTEGER, A LONGTEXT");
        run("INSERT INTO ZT_UNBOUND SELECT seq, IF(seq % 1000 IN (5, 6), CONCAT(seq, REPEAT('ω', 1500)), "
            "seq) "
            "FROM seq_1_to_20000");
    }
    const QString tail = u("ω").repeated(1500);
    for (int times = 0; times < 10; ++times) {
        const auto rs = open("SELECT N, A, coalesce(A, '') AS C FROM ZT_UNBOUND ORDER BY N");
        ASSERT_EQ(rs->RecordCount(), 20'000);
        for (int n = 1; n <= 20'000; ++n) {
            const bool isLong = n % 1000 == 5 || n % 1000 == 6;
            const QString text = QString::number(n) + (isLong ? tail : QString());
            const auto row = static_cast<std::size_t>(n - 1);
            ASSERT_TRUE(rs->table().columns[1]->value(row).toString() == text) << n;
            ASSERT_TRUE(rs->table().columns[2]->value(row).toString() == text) << n;
        }
    }
}

TEST_P(ServerDataTest, AmountsOfAnyLengthKeepTheirSize) {
    if (!isPostgres()) { // at most 65 digits
        EXPECT_DOUBLE_EQ(one("SELECT CAST(REPEAT('9', 65) AS DECIMAL(65,0))").toDouble(), 1e65);
        return;
    }
    run("DROP TABLE IF EXISTS ZT_AMOUNT");
    run("CREATE TABLE ZT_AMOUNT AS SELECT n, CASE n % 4 WHEN 0 THEN CAST(repeat('9', 80) AS NUMERIC) "
        "WHEN 1 THEN CAST('-1' || repeat('0', 90) || '.5' AS NUMERIC) "
        "WHEN 2 THEN CAST('12.3456' || repeat('7', 100) AS NUMERIC) ELSE n END AS a "
        "FROM generate_series(0, 4999) n");
    const auto rs = open("SELECT a, n FROM ZT_AMOUNT ORDER BY n");
    ASSERT_EQ(rs->RecordCount(), 5000);
    for (int n = 0; n < 5000; ++n) {
        const QVariant value = rs->table().columns[0]->value(static_cast<std::size_t>(n));
        if (n % 4 == 2)
            ASSERT_EQ(value.value<Currency>().scaled, 123'457) << n;
        else if (n % 4 == 3)
            ASSERT_EQ(value.value<Currency>().scaled, n * 10'000) << n;
        else
            ASSERT_DOUBLE_EQ(value.toDouble(), n % 4 == 0 ? 1e80 : -1e90) << n;
    }
}

TEST_P(ServerDataTest, ADayThatIsNoneIsNoDate) {
    make("ZT_DAYS", "K INTEGER, DAY DATE, AT MOMENT");
    if (isPostgres()) { // keeps no such days
        EXPECT_NE(errorNumber([&] { run("INSERT INTO ZT_DAYS VALUES (1, '2020-05-00', NULL)"); }), 0);
        return;
    }
    run("SET SESSION sql_mode = ''");
    run("INSERT INTO ZT_DAYS VALUES (1, '2020-00-00', '2020-05-00 10:00:00'), (2, '0000-00-00', NULL), "
        "(3, '2020-02-29', '2020-02-29 10:00:00')");
    const auto rs = open("SELECT DAY, AT FROM ZT_DAYS ORDER BY K");
    for (int record = 0; record < 2; ++record, rs->MoveNext()) {
        EXPECT_FALSE(rs->Collect(u("DAY")).isValid()) << record;
        EXPECT_FALSE(rs->Collect(u("AT")).isValid()) << record;
    }
    EXPECT_EQ(rs->Collect(u("DAY")).toDateTime(), QDateTime(QDate(2020, 2, 29), QTime(0, 0)));
    EXPECT_EQ(rs->Collect(u("AT")).toDateTime(), QDateTime(QDate(2020, 2, 29), QTime(10, 0)));
}

} // namespace zkp::servers
