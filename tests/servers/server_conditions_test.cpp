#include "server_fixture.h"

namespace zkp::servers {

using namespace zkp::ado;

class ServerConditionsTest : public ServerTest {
protected:
    ServerConditionsTest() {
        make("ZT_CONDITIONS", "NAME VARCHAR(50), N INTEGER, M INTEGER");
        run("INSERT INTO ZT_CONDITIONS VALUES ('Δημοσθένης', 1, 1), ('ΔΗΜΟΣΘΈΝΗΣ', 2, 2), ('Νίκος', 3, 1), "
            "('Νικος', 4, 4), ('a_b', 5, 0), ('AXB', 6, 6), (NULL, 7, 7)");
    }
    /// The numbers of the records that a condition lets through.
    QString numbers(const char* condition) {
        return firstField(open((std::string("SELECT N FROM ZT_CONDITIONS WHERE ") + condition + " ORDER BY N")
                                   .c_str()))
            .join(u(" "));
    }
    /// An item's value, record by record.
    QString values(const char* item, const char* table = "ZT_CONDITIONS") {
        return firstField(open((std::string("SELECT ") + item + " FROM " + table + " ORDER BY N").c_str()))
            .join(u(" "));
    }
};
INSTANTIATE_TEST_SUITE_P(Servers, ServerConditionsTest, testing::Values(kPostgres, kMariaDb),
                         [](const auto& server) { return std::string(server.param.name); });

TEST_P(ServerConditionsTest, PatternsIgnoreCaseAndHeedAccents) {
    EXPECT_EQ(numbers("NAME LIKE 'δημοσ%'"), u("1 2")) << "a sigma ahead of the sign is no last letter";
    EXPECT_EQ(numbers("NAME LIKE 'ΔΗΜΟΣΘΈΝΗΣ'"), u("1 2"));
    EXPECT_EQ(numbers("NAME LIKE '%Σ'"), u("1 2 3 4"));
    EXPECT_EQ(numbers("NAME LIKE 'νίκ_ς'"), u("3"));
    EXPECT_EQ(numbers("[ZT_CONDITIONS].[NAME] NOT LIKE N'νικ%' AND N < 5"), u("1 2 3"));
    EXPECT_EQ(numbers("NOT (NAME LIKE 'ν%' OR NAME LIKE 'δ%')"), u("5 6"));
    EXPECT_EQ(numbers("NAME LIKE 'A\\_%' ESCAPE '\\'"), u("5"));
    EXPECT_EQ(numbers("NAME LIKE 'A!_%' ESCAPE '!'"), u("5"));
    EXPECT_EQ(numbers("NAME LIKE 'a_B'"), u("5 6"));
    EXPECT_EQ(numbers("NAME LIKE '%' || 'ημοσ' || '%'"), u("1 2"));
    EXPECT_EQ(numbers("NAME || 'ω' LIKE '%ΣΩ'"), u("1 2 3 4"));
    EXPECT_EQ(numbers("LEFT(NAME, 3) LIKE 'νίκ'"), u("3"));
    EXPECT_EQ(numbers("'ΔΗΜΟΣΘΈΝΗς' LIKE NAME"), u("1 2"));
    EXPECT_EQ(values("CASE WHEN NAME LIKE 'ΝΊ%' THEN 1 ELSE 0 END"), u("0 0 1 0 0 0 0"));
    EXPECT_EQ(firstField(open("SELECT Count(*) AS C, NAME LIKE 'ν%' AS K FROM ZT_CONDITIONS WHERE N<7 "
                              "GROUP BY NAME LIKE 'ν%'")),
              QStringList({u("4"), u("2")}));
}

TEST_P(ServerConditionsTest, PatternsMayBeOfManyParts) {
    EXPECT_EQ(numbers("NAME LIKE CASE WHEN N<3 THEN 'δημ%' ELSE 'ν%' END"), u("1 2 3 4"));
    EXPECT_EQ(numbers("(SELECT NAME) LIKE 'δημοσ%'"), u("1 2"));
    EXPECT_EQ(numbers("NAME || 'Σ' LIKE 'νίκος_'"), u("3"));
    make("ZT_WORDS", "N INTEGER, PERCENT VARCHAR(20), TYPE VARCHAR(20)");
    run("INSERT INTO ZT_WORDS VALUES (1, 'Άλφα', 'τ')");
    for (const char* condition :
         {"PERCENT LIKE 'άλ%'", "ZT_WORDS.PERCENT LIKE 'άλ%'", "PERCENT || TYPE LIKE 'άλφαΤ'",
          "TYPE || PERCENT LIKE 'τΆΛ%'", "ZT_WORDS.PERCENT || ZT_WORDS.TYPE LIKE 'άλ%'"})
        EXPECT_EQ(one((std::string("SELECT Count(*) FROM ZT_WORDS WHERE ") + condition).c_str()).toInt(), 1)
            << condition;
    if (isPostgres()) {
        EXPECT_EQ(numbers("NAME LIKE E'δημοσ%' OR NAME LIKE $$νίκ%$$"), u("1 2 3"));
        EXPECT_EQ(numbers("NAME COLLATE \"C\" LIKE 'AX%'"), u("6"));
        EXPECT_EQ(numbers("interval '1 day' > interval '1 hour' AND N=1"), u("1"));
    }
    EXPECT_EQ(numbers("timestamp '2020-01-01 00:00:00' < timestamp '2020-01-02 00:00:00' AND N=1"), u("1"));
}

TEST_P(ServerConditionsTest, ASignOfAPatternIsOneLetter) {
    run("DELETE FROM ZT_CONDITIONS");
    run("INSERT INTO ZT_CONDITIONS VALUES ('Μαΐου', 1, 0), ('Ταΰγετος', 2, 0), ('Straße', 3, 0), ('ᾳx', 4, "
        "0), "
        "('ΜΑΪ́ΟΥ', 5, 0)");
    EXPECT_EQ(numbers("NAME LIKE 'μα_ου'"), u("1"));
    EXPECT_EQ(numbers("NAME LIKE 'ΤΑ_ΓΕΤΟΣ'"), u("2"));
    EXPECT_EQ(numbers("NAME LIKE 'stra_e'"), u("3"));
    EXPECT_EQ(numbers("NAME LIKE '_X'"), u("4"));
}

TEST_P(ServerConditionsTest, ABackslashInAPatternIsItself) {
    run("DELETE FROM ZT_CONDITIONS");
    run("INSERT INTO ZT_CONDITIONS VALUES ('C:\\docs\\α', 1, 0), ('x\\y', 2, 0), ('10%', 3, 0), ('|\\', 4, "
        "0)");
    EXPECT_EQ(numbers("NAME LIKE 'c:\\docs\\Α'"), u("1"));
    EXPECT_EQ(numbers("NAME LIKE '%\\%'"), u("1 2 4"));
    EXPECT_EQ(numbers("NAME LIKE '|\\'"), u("4"));
    EXPECT_EQ(numbers("NAME NOT LIKE 'X\\_'"), u("1 3 4"));
    EXPECT_EQ(numbers("NAME LIKE '10\\%' ESCAPE '\\'"), u("3"));
}

TEST_P(ServerConditionsTest, WhatFollowsTheGroupsStaysLast) {
    const char* const endings[] = {isPostgres() ? " OFFSET 1" : " WITH ROLLUP",
                                   isPostgres() ? " FETCH FIRST 2 ROWS ONLY" : " LOCK IN SHARE MODE",
                                   isPostgres() ? " ORDER BY M FETCH FIRST 2 ROWS ONLY" : " FOR UPDATE",
                                   " LIMIT 1"};
    for (const char* ending : endings)
        EXPECT_GT(open((std::string("SELECT N, M FROM ZT_CONDITIONS GROUP BY N, M") + ending).c_str())
                      ->RecordCount(),
                  0)
            << ending;
}

TEST_P(ServerConditionsTest, ACaseWithASubjectComparesValues) {
    EXPECT_EQ(values("CASE N WHEN M THEN 1 ELSE 0 END"), u("1 1 0 1 0 1 1"));
    EXPECT_EQ(values("CASE [N] WHEN [M] THEN 'same' WHEN 3 THEN 'three' ELSE 'other' END"),
              u("same same three same other same same"));
    EXPECT_EQ(values("CASE NAME WHEN 'δημοσθένηΣ' THEN 1 WHEN 'ΝΙΚΟΣ' THEN 2 ELSE 0 END"),
              u("1 1 0 2 0 0 0"));
    EXPECT_EQ(values("CASE 'ΝΊΚΟΣ' WHEN NAME THEN 1 ELSE 0 END"), u("0 0 1 0 0 0 0"));
    EXPECT_EQ(values("CASE CASE WHEN M THEN N END WHEN M THEN 1 ELSE 0 END"), u("1 1 0 1 0 1 1"));
}

TEST_P(ServerConditionsTest, ACaseTakesFlagsOfBothKinds) {
    for (const char* type : {isPostgres() ? "BOOLEAN" : "BIT(1)", "SMALLINT"}) {
        make("ZT_FLAGS", u("N INTEGER, F %1").arg(u(type)).toUtf8().constData());
        const bool flags = qstrcmp(type, "BOOLEAN") == 0;
        run(flags ? "INSERT INTO ZT_FLAGS VALUES (1, TRUE), (2, FALSE), (3, NULL)"
                  : "INSERT INTO ZT_FLAGS VALUES (1, 1), (2, 0), (3, NULL)");
        EXPECT_EQ(values("CASE F WHEN 1 THEN 'yes' WHEN 0 THEN 'no' ELSE 'unknown' END", "ZT_FLAGS"),
                  u("yes no unknown"))
            << type;
        EXPECT_EQ(values("CASE 1 WHEN F THEN 'yes' ELSE 'no' END", "ZT_FLAGS"), u("yes no no")) << type;
        EXPECT_EQ(values("CASE WHEN F THEN 'yes' WHEN F=0 THEN 'no' ELSE 'unknown' END", "ZT_FLAGS"),
                  u("yes no unknown"))
            << type;
        EXPECT_EQ(firstField(open("SELECT CASE F WHEN 1 THEN 1 ELSE 0 END AS K, Count(*) AS C FROM ZT_FLAGS "
                                  "Group By CASE F WHEN 1 THEN 1 ELSE 0 END")),
                  QStringList({u("0"), u("1")}))
            << type;
    }
}

TEST_P(ServerConditionsTest, ATableNamedAsAWordOfTheLanguageLeavesTheWordAlone) {
    const auto named = [&](const char* name) {
        return isPostgres() ? u("\"%1\"").arg(u(name)) : u("`%1`").arg(u(name));
    };
    for (const char* name : {"Order", "Left", "Key"}) {
        run(u("DROP TABLE IF EXISTS ") + named(name));
        run(u("CREATE TABLE %1 (N INTEGER PRIMARY KEY, M INTEGER)").arg(named(name)));
        run(u("INSERT INTO [%1] VALUES (2, 5), (1, 6)").arg(u(name)));
    }
    EXPECT_EQ(firstField(open("SELECT [ORDER].N, Count(*) AS C FROM [ORDER] LEFT JOIN [left] ON "
                              "[order].N = [LEFT].N GROUP BY [ORDER].N ORDER BY [Order].N")),
              QStringList({u("1"), u("2")}));
    run("CREATE TABLE ZT_KEYED (N INTEGER PRIMARY KEY)");
    for (const char* name : {"[order]", "[left]", "[key]", "ZT_KEYED"})
        run(u("DROP TABLE ") + u(name));
}

TEST_P(ServerConditionsTest, NullsAreFirstInAWindowWithAFrame) {
    make("ZT_WINDOW", "N INTEGER, RANGE_OF INTEGER");
    run("INSERT INTO ZT_WINDOW VALUES (1, 10), (2, NULL), (3, 5)");
    EXPECT_EQ(values("SUM(N) OVER (ORDER BY RANGE_OF RANGE BETWEEN UNBOUNDED PRECEDING AND CURRENT ROW)",
                     "ZT_WINDOW"),
              u("6 2 5"));
    EXPECT_EQ(values("SUM(N) OVER (ORDER BY RANGE_OF DESC ROWS BETWEEN UNBOUNDED PRECEDING AND CURRENT ROW)",
                     "ZT_WINDOW"),
              u("1 6 4"));
    if (isPostgres()) {
        EXPECT_EQ(values("SUM(N) OVER (ORDER BY RANGE_OF GROUPS 1 PRECEDING)", "ZT_WINDOW"), u("4 2 5"));
        make("ZT_WINDOW", "N INTEGER, RANGE INTEGER");
        run("INSERT INTO ZT_WINDOW VALUES (1, 10), (2, NULL), (3, 5)");
        EXPECT_EQ(firstField(open("SELECT N FROM ZT_WINDOW ORDER BY RANGE")),
                  QStringList({u("2"), u("3"), u("1")}));
    }
}

} // namespace zkp::servers
