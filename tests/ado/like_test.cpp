#include "ado_fixture.h"

namespace zkp::ado::test {

namespace {

struct LikeCase {
    const char* condition;
    bool matches;
};

void PrintTo(const LikeCase& c, std::ostream* out) {
    *out << c.condition;
}

} // namespace

class LikeTest : public AdoTest, public testing::WithParamInterface<LikeCase> {};

TEST_P(LikeTest, IgnoresCaseAndCountsAccents) {
    const QString sql = QStringLiteral("SELECT CASE WHEN %1 THEN 1 ELSE 0 END AS found");
    EXPECT_EQ(open(sql.arg(QString::fromUtf8(GetParam().condition)))->Fields().Item(0).Value().toInt(),
              GetParam().matches ? 1 : 0);
}

INSTANTIATE_TEST_SUITE_P(Patterns, LikeTest,
                         testing::ValuesIn(std::vector<LikeCase>{
                             {"'Βόλος' LIKE 'ΒΌΛ%'", true},
                             {"'Βόλος' LIKE 'βόλοσ'", true},
                             {"'Βόλος' LIKE '%Σ'", true},
                             {"'Δημοσθένης' LIKE 'ΔΗΜΟΣ%'", true},
                             {"'Βόλος' LIKE 'ΒΟΛ%'", false},
                             {"'Βόλος' NOT LIKE 'ΒΟΛ%'", true},
                             {"'Volos' LIKE 'vOLOS'", true},
                             {"'Βόλος' LIKE '_όλ__'", true},
                             {"'Βόλος' LIKE '_όλ_'", false},
                             {"'Βόλος' LIKE '%'", true},
                             {"'' LIKE '%'", true},
                             {"'' LIKE ''", true},
                             {"'' LIKE '_'", false},
                             {"'Βόλος' LIKE ''", false},
                             {"'αβαβγ' LIKE '%αβγ'", true},
                             {"'αβαβγ' LIKE '%αβ%β%'", true},
                             {"'αβαβγ' LIKE '%αβ%δ%'", false},
                             {"'αβαβγ' LIKE 'α%β_%_%'", true},
                             {"'αβαβγ' LIKE 'α%γ_%'", false},
                             {"'αβαβγ' LIKE 'α%β_'", true},
                             {"'10%' LIKE '10!%' ESCAPE '!'", true},
                             {"'10α' LIKE '10!%' ESCAPE '!'", false},
                             {"'!' LIKE '!!' ESCAPE '!'", true},
                             {"'α_β' LIKE 'Α~_Β' ESCAPE '~'", true},
                             {"'αxβ' LIKE 'Α~_Β' ESCAPE '~'", false},
                             {"'α\\' LIKE 'Α\\'", true},
                             {"12345 LIKE '123%'", true},
                             {"'😀α' LIKE '_Α'", true},
                         }));

TEST_F(AdoTest, LikeWithNullIsNull) {
    EXPECT_FALSE(one("SELECT NULL LIKE '%' AS x").isValid());
    EXPECT_FALSE(one("SELECT 'α' LIKE NULL AS x").isValid());
    EXPECT_FALSE(one("SELECT 'α' LIKE 'α' ESCAPE NULL AS x").isValid());
}

TEST_F(AdoTest, LikeTakesOneEscapeSign) {
    EXPECT_NE(errorNumber([&] { one("SELECT 'α' LIKE 'α' ESCAPE 'ab' AS x"); }), 0u);
}

/// Each record may bring its own.
TEST_F(AdoTest, LikeTakesEscapeSignsOfAColumn) {
    run("CREATE TABLE T (N INTEGER, E TEXT)");
    run("INSERT INTO T VALUES (1,'x'),(2,'y'),(3,'x')");
    EXPECT_EQ(one("SELECT Group_Concat(N) FROM T WHERE 'a%b' LIKE 'ax%b' ESCAPE E").toString(),
              QStringLiteral("1,3"));
}

/// What a file holds keeps the meaning that it has for every program.
TEST_F(AdoTest, LikeOfAnIndexIsSQLitesOwn) {
    run("CREATE TABLE T (N INTEGER, A TEXT)");
    run("CREATE INDEX T_A ON T (N) WHERE A LIKE 'δημ%'");
    run("INSERT INTO T VALUES (1,'Δημος'),(2,'δημος'),(3,'ΔΗΜΟΣ')");
    EXPECT_EQ(one("SELECT Group_Concat(N) FROM T WHERE A LIKE 'δημ%'").toString(), QStringLiteral("1,2,3"));
    EXPECT_EQ(one("PRAGMA integrity_check").toString(), QStringLiteral("ok"));
}

TEST_F(AdoTest, LikeIsWrittenAsTheOperatorThatSQLiteLeavesToPrograms) {
    const auto sent = [this](const char* sql) {
        open(sql);
        return cn->LastStatementSent();
    };
    EXPECT_EQ(sent("SELECT 'Ω' Like 'ω%' AS x"), QStringLiteral("SELECT 'Ω' REGEXP 'ω%' AS x"));
    EXPECT_EQ(sent("SELECT ('Ω') not like ('ω') AS x"), QStringLiteral("SELECT ('Ω') not REGEXP ('ω') AS x"));
    // No letter, no case; a function's name; a name in signs.
    EXPECT_EQ(sent("SELECT '1' LIKE '1%' AS x"), QStringLiteral("SELECT '1' LIKE '1%' AS x"));
    EXPECT_EQ(sent("SELECT like('ω','Ω') AS x"), QStringLiteral("SELECT like('ω','Ω') AS x"));
    EXPECT_EQ(sent("SELECT [like]+1 AS x FROM (SELECT 1 AS [like])"),
              QStringLiteral("SELECT [like]+1 AS x FROM (SELECT 1 AS [like])"));
}

TEST_F(AdoTest, LikeTakesPatternsOfAColumn) {
    run("CREATE TABLE T (A TEXT, B TEXT)");
    run("INSERT INTO T VALUES ('Άλφα','άλ%'),('Βήτα','γ%'),('Γάμμα','ΓΆ%')");
    EXPECT_EQ(one("SELECT Group_Concat(A) FROM T WHERE A LIKE B").toString(), QStringLiteral("Άλφα,Γάμμα"));
}

} // namespace zkp::ado::test
