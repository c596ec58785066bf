#include "ado/dialect/server_statement.h"
#include "ado/dialect/sqlite_rewrite.h"

#include "ado/ado_fixture.h"

// How conditions, cases, patterns and windows are put for each database.
namespace zkp::ado::test {

namespace {

/// A server with a dictionary that has flags, and tables whose names statements write as words, too.
dialect::ServerFacts server(const char* collation = "zkp") {
    return {[](const std::vector<dialect::Token>& tokens) {
                dialect::Catalogue catalogue;
                catalogue.addFlag(u("dict"), u("isgroup"));
                catalogue.addFlag(u("dict"), u("Sum"));
                for (const char* table : {"Order", "Group", "Left", "Select", "Key", "Case", "Sales"})
                    catalogue.addSpelling(u(table));
                return catalogue.namesIn(tokens);
            },
            [collation] { return u(collation); }, [] { return true; }};
}

QString postgres(const char* statement) {
    return dialect::rewriteForPostgres(u(statement), server()).text;
}
QString mariaDb(const char* statement) {
    return dialect::rewriteForMariaDb(u(statement), server()).text;
}
QString sqlite(const char* statement) {
    return dialect::rewriteForSqlite(u(statement));
}

struct Case {
    const char* written;
    const char* sent;
};

template <class F>
void expectAll(std::initializer_list<Case> cases, F&& rewrite) {
    for (const Case& c : cases)
        EXPECT_EQ(rewrite(c.written), u(c.sent)) << c.written;
}

/// What a pattern becomes on PostgreSQL.
QString small(const char* operand) {
    return u("replace(lower((%1) COLLATE zkp) COLLATE \"C\", 'ς', 'σ')").arg(u(operand));
}
QString condition(const char* text) {
    return postgres((std::string("select 1 from d where ") + text).c_str()).mid(22);
}

} // namespace

TEST(Conditions, OnlyACaseWithoutASubjectHasConditionsBehindWhen) {
    expectAll({{"select case a when b then 1 end from dict", "select case a when b then 1 end from dict"},
               {"select case when b then 1 when c then 2 end from dict",
                "select case when b::text NOT IN ('0', 'false') then 1 when c::text NOT IN ('0', 'false') "
                "then 2 end from dict"},
               {"select case T.a when [b] then 1 when T.c then 2 end from T",
                "select case T.a when \"b\" then 1 when T.c then 2 end from T"},
               // Each for itself, whichever of them is inside.
               {"select case a when case when b then 1 end then c when d then 2 end from T",
                "select case a when case when b::text NOT IN ('0', 'false') then 1 end then c when d then 2 "
                "end from T"},
               {"select case when b then case a when c then 1 end when d then 2 end from T",
                "select case when b::text NOT IN ('0', 'false') then case a when c then 1 end when "
                "d::text NOT IN ('0', 'false') then 2 end from T"},
               {"select case case when b then 1 end when c then 2 end from T",
                "select case case when b::text NOT IN ('0', 'false') then 1 end when c then 2 end from T"},
               {"select case (a) when (select x from U where y) then 1 end from T",
                "select case (a) when (select x from U where y::text NOT IN ('0', 'false')) then 1 end "
                "from T"}},
              postgres);
}

TEST(Conditions, AFlagThatACaseComparesWithNumbersBecomesOne) {
    expectAll({{"select case isgroup when 1 then 'y' when 0 then 'n' end from dict",
                "select case isgroup::int when 1 then 'y' when 0 then 'n' end from dict"},
               {"select case dict.[Sum] when null then 2 when 1 then 3 end from dict",
                "select case dict.\"sum\"::int when null then 2 when 1 then 3 end from dict"},
               {"select case 1 when isgroup then 2 when [Sum] then 3 end from dict",
                "select case 1 when isgroup::int then 2 when \"sum\"::int then 3 end from dict"},
               {"select case isgroup when case x when 1 then y end then 2 end from dict",
                "select case isgroup when case x when 1 then y end then 2 end from dict"},
               {"select case isgroup when [Sum] then 2 end from dict",
                "select case isgroup when \"sum\" then 2 end from dict"},
               {"select case when isgroup then 2 when isgroup=1 then 3 end from dict",
                "select case when isgroup then 2 when isgroup::int=1 then 3 end from dict"},
               {"select case isgroup when true then 1 else 0 end from dict",
                "select case isgroup when true then 1 else 0 end from dict"},
               {"select case isgroup when 2 then 3 end, case n when 1 then 2 end from dict",
                "select case isgroup when 2 then 3 end, case n when 1 then 2 end from dict"}},
              postgres);
    const char* bits = "select case isgroup when 1 then 2 end from dict";
    EXPECT_EQ(mariaDb(bits), u(bits));
}

TEST(Conditions, ACaseComparesTextsWithoutCase) {
    const std::initializer_list<Case> cases = {
        {"select case t when 'ΩΜΈΓΑ' then 'Α' when '1' then 'Β' else 'Γ' end from d",
         "select case t when 'ΩΜΈΓΑ' COLLATE zkp then 'Α' when '1' then 'Β' else 'Γ' end from d"},
        {"select case 'Ω' when t then 'Α' end from d",
         "select case 'Ω' COLLATE zkp when t then 'Α' end from d"},
        {"select case t when ('Ω') then 'Α' end from d",
         "select case t when ('Ω' COLLATE zkp) then 'Α' end from d"},
        {"select case when t='Ω' then 'Α' end from d",
         "select case when t='Ω' COLLATE zkp then 'Α' end from d"}};
    expectAll(cases, postgres);
    expectAll(cases, mariaDb);
    expectAll(cases,
              [](const char* statement) { return sqlite(statement).replace(u("ZKP_TEXT"), u("zkp")); });
}

TEST(Conditions, PatternsAreComparedInSmallLetters) {
    EXPECT_EQ(condition("a LIKE N'ωμ%'"), small("a") + u(" LIKE ") + small("'ωμ%'"));
    EXPECT_EQ(condition("d.[A] not like 'ωμ%' and b=1"),
              small("d.\"a\"") + u(" not like ") + small("'ωμ%'") + u(" and b=1"));
    EXPECT_EQ(condition("a like 'ω\\_%' escape '\\' or b=1"),
              small("a") + u(" like ") + small("'ω\\_%'") + u(" escape '\\' or b=1"));
    EXPECT_EQ(condition("(a like '%' || 'ωμ' || '%')"),
              u("(") + small("a") + u(" like ") + small("'%' || 'ωμ' || '%'") + u(")"));
    EXPECT_EQ(condition("0=0 and a||'-'||f(b,'x') like 'α'+c order by a like 'β'"),
              u("0=0 and ") + small("a||'-'||f(b,'x')") + u(" like ") + small("'α'+c") + u(" order by ") +
                  small("a") + u(" like ") + small("'β'") + u(" NULLS FIRST"));
    EXPECT_EQ(condition("left(a,2) like lower('Ω%')"),
              small("left(a,2)") + u(" like ") + small("lower('Ω%')"));
    EXPECT_EQ(condition("case when a='x' then b end like 'ω%'"),
              small("case when a='x' COLLATE zkp then b end") + u(" like ") + small("'ω%'"));
    EXPECT_EQ(condition("a->'B'->>'C' like 'ω%'"), small("a->'B'->>'C'") + u(" like ") + small("'ω%'"));
    EXPECT_EQ(condition("a::character varying like 'ω'::character varying"),
              small("a::character varying") + u(" like ") + small("'ω'::character varying"));
    EXPECT_EQ(condition("'Ωμέγα' like a"), small("'Ωμέγα'") + u(" like ") + small("a"));
    EXPECT_EQ(condition("upper like 'u%'"), small("upper") + u(" like ") + small("'u%'"));
    EXPECT_EQ(postgres("select a like 'ω' as x, a like 'ω' y from d"),
              u("select %1 like %2 as x, %1 like %2 y from d").arg(small("a"), small("'ω'")));
    EXPECT_EQ(postgres("select count(*) from d group by a like 'ω'"),
              u("select count(*) from d group by %1 like %2").arg(small("a"), small("'ω'")));
}

TEST(Conditions, PatternsThatTellOrHaveNoCaseAreLeft) {
    expectAll(
        {{"select 1 from d where a like '12_%'", "select 1 from d where a like '12_%'"},
         {"select 1 from d where a like b", "select 1 from d where a ILIKE b"},
         {"select 1 from d where a like '%' || b", "select 1 from d where a ILIKE '%' || b"},
         // In small letters a letter that escapes would escape what was its capital.
         {"select 1 from d where a like 'ax_%' escape 'x'",
          "select 1 from d where a ILIKE 'ax_%' escape 'x'"},
         {"select 1 from d where a like 'x%' collate \"C\"",
          "select 1 from d where a ILIKE 'x%' collate \"C\""},
         {"select 1 from d where a like any (array('x'))", "select 1 from d where a ILIKE any (array('x'))"},
         {"create view v as select 1 from d where a like 'x%'",
          "create view v as select 1 from d where a like 'x%'"}},
        postgres);
    EXPECT_EQ(dialect::rewriteForPostgres(u("select 1 from d where a='x' or a like 'x%'"), server("")).text,
              u("select 1 from d where a='x' or a ILIKE 'x%'"))
        << "a database without letters";
}

TEST(Conditions, PatternsMayBeOfManyParts) {
    EXPECT_EQ(condition("a like case when b=1 then 'ω' else 'x' end"),
              small("a") + u(" like ") + small("case when b=1 then 'ω' else 'x' end"));
    EXPECT_EQ(condition("a like (select b from e where c='x')"),
              small("a") + u(" like ") + small("(select b from e where c='x' COLLATE zkp)"));
    EXPECT_EQ(condition("(select a) not like 'ω%'"), small("(select a)") + u(" not like ") + small("'ω%'"));
    EXPECT_EQ(condition("a like E'ω\\n%'"), small("a") + u(" like ") + small("E'ω\\n%'"));
    EXPECT_EQ(condition("a||'ω' like b"), small("a||'ω'") + u(" like ") + small("b"));
}

TEST(Conditions, AWordOfTheLanguageMayBeWhatIsLikened) {
    for (const char* column : {"percent", "percent || type", "type || percent", "key||index", "t.to",
                               "t.user || t.column", "user", "view.option", "-percent", "if(a,b,c)"})
        EXPECT_EQ(condition((std::string(column) + " like 'αλ%'").c_str()),
                  small(column) + u(" like ") + small("'αλ%'"));
    EXPECT_EQ(condition("a like 'α%' || percent and b=1"),
              small("a") + u(" like ") + small("'α%' || percent") + u(" and b=1"));
    EXPECT_EQ(postgres("select a like 'ω' percent, a like 'ω' of from d"),
              u("select %1 like %2 percent, %1 like %2 of from d").arg(small("a"), small("'ω'")));
    EXPECT_EQ(postgres("select top (1) a like 'ω' from d"), u("select a ILIKE 'ω' from d LIMIT 1"))
        << "not sure where it begins";
    EXPECT_EQ(condition("from || a like 'ω'"), u("from || a ILIKE 'ω'")) << "the server tells what is wrong";
}

TEST(Conditions, ADatabaseWithoutASigmaIsNotAskedForIt) {
    dialect::ServerFacts latin = server();
    latin.hasSigma = [] { return false; };
    EXPECT_EQ(dialect::rewriteForPostgres(u("select 1 from d where a like 'X%'"), latin).text,
              u("select 1 from d where lower((a) COLLATE zkp) COLLATE \"C\" like lower(('X%') COLLATE zkp) "
                "COLLATE \"C\""));
}

TEST(Conditions, ABackslashInAPatternIsItself) {
    EXPECT_EQ(condition("a like 'c:\\ω%' and b=1"),
              small("a") + u(" like ") + small("'c:\\ω%'") + u(" ESCAPE '|' and b=1"));
    expectAll(
        {{"select 1 from d where a not like '%\\%'", "select 1 from d where a not like '%\\%' ESCAPE '|'"},
         // Its own escape sign, and parts whose sign may be meant as one.
         {"select 1 from d where a like '1\\_' escape '\\'",
          "select 1 from d where a like '1\\_' escape '\\'"},
         {"select 1 from d where a like '%\\' || b", "select 1 from d where a ILIKE '%\\' || b"},
         {"create view v as select 1 from d where a like '\\'",
          "create view v as select 1 from d where a like '\\'"}},
        postgres);
    expectAll({{"select 1 from d where a like 'ω\\|%' or a like '\\'",
                "select 1 from d where a like 'ω\\|%' COLLATE zkp ESCAPE '!' or a like '\\' ESCAPE '|'"},
               {"select 1 from d where a like '\\|!~^#'", "select 1 from d where a like '\\|!~^#'"}},
              mariaDb);
}

TEST(Conditions, MariaDbTakesACollationBehindThePattern) {
    expectAll({{"select 1 from d where a LIKE N'ωμ%' and b not like 'x'",
                "select 1 from d where a LIKE 'ωμ%' COLLATE zkp and b not like 'x' COLLATE zkp"},
               {"select 1 from d where a like 'ω\\_%' escape '\\'",
                "select 1 from d where a like 'ω\\_%' COLLATE zkp escape '\\'"},
               {"select 1 from d where a like '%' || 'ωμ' || '%x'",
                "select 1 from d where a like '%' || 'ωμ' COLLATE zkp || '%x'"},
               {"select 1 from d where a like concat('ω', b)",
                "select 1 from d where a like concat('ω' COLLATE zkp, b)"},
               {"select 1 from d where 'Ωμέγα' like a", "select 1 from d where 'Ωμέγα' COLLATE zkp like a"},
               {"select 1 from d where (select a) like case b when 'x' then 'ω' else 'y' end",
                "select 1 from d where (select a) like case b when 'x' COLLATE zkp then 'ω' COLLATE zkp else "
                "'y' end"},
               {"select 1 from d where a like (select concat('x', b))",
                "select 1 from d where a like (select concat('x', b))"},
               {"select 1 from d where a like '12_%' or a like b or a like binary 'x'",
                "select 1 from d where a like '12_%' or a like b or a like binary 'x'"},
               {"select 1 from d where a like 'x%' collate utf8mb4_bin",
                "select 1 from d where a like 'x%' collate utf8mb4_bin"},
               {"select 1 from d where a in ('1', 'x', 'y') and b in ('1')",
                "select 1 from d where a in ('1', 'x' COLLATE zkp, 'y') and b in ('1')"}},
              mariaDb);
    const char* like = "select 1 from d where a like 'ωμ%'";
    EXPECT_EQ(dialect::rewriteForMariaDb(u(like), server("")).text, u(like));
}

TEST(Conditions, WordsOfTheLanguageAreNoTables) {
    expectAll({{"SELECT a FROM sales LEFT JOIN [order] ON 1=1 group by a order by a",
                "SELECT a FROM `Sales` LEFT JOIN `Order` ON 1=1 group by a order by a"},
               {"select left(a,1), case when 1=1 then 2 end from SALES",
                "select left(a,1), case when 1=1 then 2 end from `Sales`"},
               {"create table x (id int primary key)", "create table x (id int primary key)"},
               {"select [group].[a] from [Group]", "select `Group`.`a` from `Group`"}},
              mariaDb);
    expectAll({{"SELECT a FROM sales LEFT JOIN [order] ON 1=1 order by a",
                "SELECT a FROM \"Sales\" LEFT JOIN \"Order\" ON 1=1 order by a NULLS FIRST"},
               {"create table x (id int primary key)", "create table x (id int primary key)"}},
              postgres);
}

TEST(Conditions, NullsSortFirstAheadOfAWindowsFrame) {
    expectAll(
        {{"select sum(a) over (order by n range between unbounded preceding and current row) from d",
          "select sum(a) over (order by n NULLS FIRST range between unbounded preceding and current "
          "row) from d"},
         {"select sum(a) over (partition by b order by n desc groups 1 preceding) from d",
          "select sum(a) over (partition by b order by n desc NULLS LAST groups 1 preceding) from d"},
         {"select sum(a) over (order by f(n), m asc rows 1 preceding) from d",
          "select sum(a) over (order by f(n) NULLS FIRST, m asc NULLS FIRST rows 1 preceding) from d"},
         {"select sum(a) over (order by case when n=1 then 2 end range 1 preceding) from d",
          "select sum(a) over (order by case when n=1 then 2 end NULLS FIRST range 1 preceding) from d"},
         // Columns of these names sort as others do.
         {"select range from d order by range, groups desc, d.rows, 1+range",
          "select range from d order by range NULLS FIRST, groups desc NULLS LAST, d.rows NULLS FIRST, "
          "1+range NULLS FIRST"},
         {"select 1 from d order by [range], case when a=1 then range else groups end",
          "select 1 from d order by \"range\" NULLS FIRST, case when a=1 then range else groups end "
          "NULLS FIRST"},
         {"select sum(a) over (order by range range 1 preceding) from d",
          "select sum(a) over (order by range NULLS FIRST range 1 preceding) from d"}},
        postgres);
}

// What a group is sorted by has to be the very expression that it is grouped by.
TEST(Conditions, GroupsAreSortedByWhatTheirItemsBecame) {
    EXPECT_EQ(
        postgres("select case isgroup when 1 then 2 end, a='x' from dict group by case isgroup when 1 then "
                 "2 end, a='x'"),
        u("select case isgroup::int when 1 then 2 end, a='x' COLLATE zkp from dict group by case "
          "isgroup::int when 1 then 2 end, a='x' COLLATE zkp ORDER BY case isgroup::int when 1 then 2 end "
          "NULLS FIRST, a='x' COLLATE zkp NULLS FIRST"));
    EXPECT_EQ(mariaDb("select a like N'x' from [d] group by a like N'x'"),
              u("select a like 'x' COLLATE zkp from `d` group by a like 'x' COLLATE zkp ORDER BY a like 'x' "
                "COLLATE zkp"));
}

class ConditionsOnSqliteTest : public AdoTest {};

TEST_F(ConditionsOnSqliteTest, ACaseComparesTextsWithoutCase) {
    run("CREATE TABLE T (N INTEGER, NAME NVARCHAR(50))");
    run("INSERT INTO T VALUES (1, 'Νίκος'), (2, 'Νικος'), (3, 'smith'), (4, NULL)");
    EXPECT_EQ(one("SELECT group_concat(CASE NAME WHEN 'ΝΊΚΟΣ' THEN 'a' WHEN 'SMITH' THEN 'b' ELSE 'c' END, "
                  "'') FROM T")
                  .toString(),
              u("acbc"));
    EXPECT_EQ(one("SELECT group_concat(CASE 'ΝΊΚΟΣ' WHEN NAME THEN 'a' ELSE 'c' END, '') FROM T").toString(),
              u("accc"));
}

} // namespace zkp::ado::test
