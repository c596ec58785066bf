#include "ado/dialect/exec_call.h"
#include "ado/dialect/plain_select.h"
#include "ado/dialect/select_shape.h"
#include "ado/dialect/server_statement.h"
#include "ado/dialect/split_statements.h"
#include "ado/dialect/tokenizer.h"

#include "ado/ado_fixture.h"

namespace zkp::ado::test {

using dialect::Dialect;
using dialect::TokenKind;

namespace {

constexpr Dialect kAll[] = {Dialect::Sqlite, Dialect::SqlServer, Dialect::PostgreSql, Dialect::MariaDb};

/// The tokens that are no space, each behind the first letter of its kind.
std::string pieces(const char* text, Dialect dialect) {
    const QString statement = u(text);
    QStringList shown;
    for (const auto& token : dialect::tokenize(statement, dialect)) {
        if (token.kind != TokenKind::Space)
            shown << QString(u"-wntc#s"[static_cast<int>(token.kind)]) + u':' + token.text.toString();
    }
    return shown.join(u' ').toStdString();
}

struct Case {
    const char* text;
    const char* pieces;
};

void check(Dialect dialect, std::initializer_list<Case> cases) {
    for (const Case& each : cases)
        EXPECT_EQ(pieces(each.text, dialect), each.pieces) << each.text;
}

std::vector<QString> split(const char* text, Dialect dialect) {
    return dialect::splitStatements(u(text), dialect);
}

} // namespace

TEST(Tokenizer, EveryPieceOfATextIsAToken) {
    for (const char* text : {"a 'b' [c \"d\" 1.5e-3 <> 'no end",
                             "/* no end",
                             "/*! no end",
                             "$a$ no end",
                             "E'no end\\",
                             "@@a @",
                             "a[1",
                             "E'a'\n",
                             "0x",
                             "1.",
                             "1e+",
                             "$",
                             "-",
                             "--",
                             "#",
                             "`a``",
                             "[a]]",
                             "Ω😀[1][]",
                             "/*/",
                             "E'a'\n--"}) {
        for (const Dialect dialect : kAll) {
            const QString statement = u(text);
            QString joined;
            for (const auto& token : dialect::tokenize(statement, dialect))
                joined += token.text;
            EXPECT_EQ(joined, statement);
        }
    }
}

TEST(Tokenizer, WhatEveryServerReadsAlike) {
    for (const Dialect dialect : kAll)
        check(dialect, {{"SELECT [a b],\"c\"\"d\", 'it''s' -- [x]\n FROM T.[U]",
                         "w:SELECT n:[a b] s:, n:\"c\"\"d\" s:, t:'it''s' w:FROM w:T s:. n:[U]"},
                        {"Ποσό>=1.5e-3 /* 'x' */ <> .5", "w:Ποσό s:>= #:1.5e-3 s:<> #:.5"},
                        {"Sum([X]) As [Name]", "w:Sum s:( n:[X] s:) w:As n:[Name]"}});
}

TEST(Tokenizer, PostgresTextsBetweenDollarsAreOneConstant) {
    check(Dialect::PostgreSql,
          {{"SELECT $$it's [a]; --$$ , 'x'", "w:SELECT c:$$it's [a]; --$$ s:, t:'x'"},
           {"$a$ $$ $b$ $A$ $a$;", "c:$a$ $$ $b$ $A$ $a$ s:;"},
           {"$Ω1$'$Ω1$", "c:$Ω1$'$Ω1$"},
           {"a$b a$$'x'", "w:a$b w:a$$ t:'x'"},
           {"$1 $1$ '$1$'", "s:$ #:1 s:$ #:1 s:$ t:'$1$'"},
           {"1$$'$$", "#:1 c:$$'$$"},
           {"@$$'$$", "s:@ c:$$'$$"},
           // A blank that is none to the server is a letter there, and "$" part of the name.
           {"\u00A0$$;$$", "w:\u00A0$$ s:; c:$$"}});
    check(Dialect::MariaDb, {{"$$ '$$'", "w:$$ t:'$$'"}});
    check(Dialect::SqlServer, {{"$$ '$$'", "s:$ s:$ t:'$$'"}});
}

TEST(Tokenizer, PostgresTextsWithBackslashesAreOneConstant) {
    check(Dialect::PostgreSql, {{"E'it\\'s [x]' e'\\\\' 'a\\'", "c:E'it\\'s [x]' c:e'\\\\' t:'a\\'"},
                                {"E'a''b\\''", "c:E'a''b\\''"},
                                {"date'2026-01-01' N'x'", "w:date t:'2026-01-01' w:N t:'x'"},
                                {"1e'\\''", "#:1 c:e'\\''"},
                                // Behind a line end the constant goes on, with its backslashes.
                                {"E'a' -- it's\n '\\'' x", "c:E'a' -- it's\n '\\'' w:x"},
                                {"E'a' '\\'", "c:E'a' t:'\\'"},
                                {"E'a'/*\n*/'\\'", "c:E'a' t:'\\'"}});
    check(Dialect::MariaDb, {{"e'\\' x", "w:e t:'\\' w:x"}});
}

TEST(Tokenizer, CommentsEndWhereTheServerEndsThem) {
    const char* nested = "a /* /* */ 'b' */ c";
    for (const Dialect dialect : {Dialect::PostgreSql, Dialect::SqlServer})
        EXPECT_EQ(pieces(nested, dialect), "w:a w:c");
    for (const Dialect dialect : {Dialect::Sqlite, Dialect::MariaDb})
        EXPECT_EQ(pieces(nested, dialect), "w:a t:'b' s:* s:/ w:c");
    check(Dialect::PostgreSql, {{"a -- '\r b", "w:a w:b"}, {"a --b", "w:a"}, {"a # b", "w:a s:# w:b"}});
    check(Dialect::MariaDb, {{"a # it's [x]\n b#c", "w:a w:b"},
                             {"5--1", "#:5 s:- s:- #:1"},
                             {"5 --\t'\n--", "#:5"},
                             {"5 -- '\r b\n c", "#:5 w:c"}});
    check(Dialect::SqlServer, {{"a --b\n #T", "w:a w:#T"}});
}

TEST(Tokenizer, WhatMariaDbExecutesIsNoComment) {
    check(Dialect::MariaDb, {{"a /*! b; [c] */ d", "w:a s:/*! b; [c] */ w:d"},
                             {"/*M!100100 a /* b */ c */ d", "s:/*M!100100 a /* b */ c */ w:d"},
                             {"/*! /*! a */ b", "s:/*! /*! a */ w:b"},
                             {"/*m! a */ b /* !a */", "w:b"}});
    check(Dialect::PostgreSql, {{"a /*! b */ c", "w:a w:c"}});
}

TEST(Tokenizer, WhatFollowsANumberBeginsAnew) {
    check(Dialect::SqlServer, {{"1DROP", "#:1 w:DROP"},
                               {"1eDROP", "#:1e w:DROP"},
                               {"0xFGRANT", "#:0xF w:GRANT"},
                               {"1.DROP", "#:1. w:DROP"},
                               {"1.5e3DROP", "#:1.5e3 w:DROP"}});
    check(Dialect::PostgreSql, {{"1INTO", "#:1 w:INTO"}, {"1eINTO", "#:1 w:eINTO"}, {"1e5", "#:1e5"}});
    check(Dialect::MariaDb, {{"1.5INTO 1e5INTO", "#:1.5 w:INTO #:1e5 w:INTO"},
                             {"2026sales 0xFF 0xFFx", "w:2026sales #:0xFF w:0xFFx"},
                             {"@@a.b INTO@c", "w:@@a s:. w:b w:INTO w:@c"}});
}

TEST(Tokenizer, ABracketDoubledIsPartOfANameOnSqlServer) {
    check(Dialect::SqlServer, {{"[a]]b] c", "n:[a]]b] w:c"}, {"[a]]'] DROP --'", "n:[a]]'] w:DROP"}});
    const QString name = u("[a]]b]");
    EXPECT_EQ(dialect::nameOf(dialect::tokenize(name, Dialect::SqlServer).front()), u("a]b"));
    check(Dialect::PostgreSql, {{"[a]] c", "n:[a] s:] w:c"}});
}

TEST(Tokenizer, BracketsThatHoldNamesOnPostgres) {
    check(Dialect::PostgreSql,
          {{"T.[2] in([X],[2]) ([2])", "w:T s:. n:[2] w:in s:( n:[X] s:, n:[2] s:) s:( n:[2] s:)"},
           {"Sum([X])[Cnt]", "w:Sum s:( n:[X] s:) n:[Cnt]"},
           {"select[2]", "w:select n:[2]"},
           {"Sum(X) [2]", "w:Sum s:( w:X s:) n:[2]"},
           {"[a].[b]", "n:[a] s:. n:[b]"},
           {"T[Order Details]", "w:T n:[Order Details]"},
           {"[1]", "n:[1]"}});
    for (const Dialect other : {Dialect::Sqlite, Dialect::SqlServer, Dialect::MariaDb})
        check(other, {{"ARRAY[10,20] a[2]", "w:ARRAY n:[10,20] w:a n:[2]"}});
}

TEST(Tokenizer, BracketsThatHoldSubscriptsOnPostgres) {
    check(Dialect::PostgreSql,
          {{"ARRAY[10,20]", "w:ARRAY s:[ #:10 s:, #:20 s:]"},
           {"array [a]", "w:array s:[ w:a s:]"},
           {"ARRAY[[1,2],[3,[X]]]", "w:ARRAY s:[ s:[ #:1 s:, #:2 s:] s:, s:[ #:3 s:, n:[X] s:] s:]"},
           {"a[2] T.[b][1][2]", "w:a s:[ #:2 s:] w:T s:. n:[b] s:[ #:1 s:] s:[ #:2 s:]"},
           {"a[1:2] a[:i]", "w:a s:[ #:1 s:: #:2 s:] w:a s:[ s:: w:i s:]"},
           {"(x)[1] \"a\"[i+1]", "s:( w:x s:) s:[ #:1 s:] n:\"a\" s:[ w:i s:+ #:1 s:]"},
           {"a[(i)] j['k]']", "w:a s:[ s:( w:i s:) s:] w:j s:[ t:'k]' s:]"},
           {"int[] numeric(9,2)[]", "w:int s:[ s:] w:numeric s:( #:9 s:, #:2 s:) s:[ s:]"}});
}

TEST(Tokenizer, ATextIsCutIntoItsStatements) {
    for (const Dialect dialect : kAll) {
        EXPECT_EQ(split("SELECT ';' ; -- a;b\n SELECT [;] ;; /* ; */ ", dialect),
                  (std::vector<QString>{u("SELECT ';' "), u(" -- a;b\n SELECT [;] ")}));
        EXPECT_EQ(
            split("CREATE TRIGGER t AFTER INSERT ON x BEGIN SELECT CASE WHEN 1 THEN 2 END; SELECT 2; END; "
                  "SELECT 3",
                  dialect)
                .size(),
            2u);
        EXPECT_EQ(
            split("CREATE OR REPLACE PROCEDURE p() BEGIN IF 1 THEN SELECT 1; END IF; CASE 1 WHEN 1 THEN "
                  "SELECT 2; END CASE; SELECT 3; END; SELECT 4",
                  dialect)
                .size(),
            2u);
        EXPECT_EQ(split("CREATE VIEW procedures AS SELECT 1 AS trigger; BEGIN; END", dialect).size(), 3u);
        EXPECT_TRUE(split("  ; -- nothing\n", dialect).empty());
        EXPECT_EQ(split("BEGIN; COMMIT", dialect).size(), 2u);
    }
}

TEST(Tokenizer, ATextIsCutWhereItsServerCutsIt) {
    EXPECT_EQ(split("SELECT E'\\'' AS a; DELETE FROM x; --'", Dialect::PostgreSql),
              (std::vector<QString>{u("SELECT E'\\'' AS a"), u(" DELETE FROM x")}));
    EXPECT_EQ(split("SELECT $$;$$", Dialect::PostgreSql).size(), 1u);
    EXPECT_EQ(split("SELECT $$'$$ AS a; DELETE FROM x; --'", Dialect::PostgreSql).size(), 2u);
    EXPECT_EQ(split("CREATE FUNCTION f() RETURNS void AS $f$ BEGIN DELETE FROM x; END; $f$ LANGUAGE plpgsql; "
                    "SELECT f()",
                    Dialect::PostgreSql)
                  .size(),
              2u);
    EXPECT_EQ(split("SELECT 1 /* /* */ ; */; SELECT 2", Dialect::SqlServer).size(), 2u);
    EXPECT_EQ(split("SELECT [a]];]; SELECT 2", Dialect::SqlServer).size(), 2u);
    EXPECT_EQ(split("SELECT 1 # ; it's\n; SELECT 2", Dialect::MariaDb).size(), 2u);
    EXPECT_EQ(split("SELECT 5--1; SELECT 2", Dialect::MariaDb).size(), 2u);
    EXPECT_EQ(split("/*!50003 CREATE TRIGGER t BEGIN x; END */; SELECT 2", Dialect::MariaDb).size(), 2u);
    EXPECT_EQ(split("CREATE OR REPLACE DEFINER=`a`@`%` PROCEDURE p(x INT) BEGIN SELECT 1; SELECT 2; END; "
                    "SELECT 3",
                    Dialect::MariaDb)
                  .size(),
              2u);
    EXPECT_EQ(split("SELECT 5--1; SELECT 2", Dialect::Sqlite).size(), 1u);
}

TEST(Tokenizer, NoRewriteChangesWhatOnlyTheServerKnows) {
    const dialect::ServerFacts server{[](const auto&) { return dialect::StatementNames(); },
                                      [] { return u("zkp"); }};
    const QString postgres = u("SELECT $$[a] like 'X'$$, E'it\\'s [x]', b[2] FROM T WHERE c = $$X$$ AND d IN "
                               "($a$X$a$, E'X') AND e[1] = ANY (ARRAY[10,20]) /* /* [a] */ [b] */");
    EXPECT_EQ(dialect::rewriteForPostgres(postgres, server).text, postgres);
    const QString mariaDb = u("SELECT 5--1 # it's [x]\n FROM T /*! WHERE [a] = 'X' */");
    EXPECT_EQ(dialect::rewriteForMariaDb(mariaDb, server).text, mariaDb);
}

TEST(Tokenizer, TheDialectGoesWithTheStatement) {
    EXPECT_TRUE(dialect::parsePlainSelect(u("SELECT a # from b, c\n FROM T"), Dialect::MariaDb));
    EXPECT_EQ(dialect::parsePlainSelect(u("SELECT $$ from x$$ AS a FROM T"), Dialect::PostgreSql)->table,
              u("T"));
    EXPECT_EQ(dialect::parseExec(u("exec P 'a' # it's"), Dialect::MariaDb)->arguments, QVariantList{u("a")});
    const QString arrays = u("SELECT ARRAY[10,20] AS a, b[1] AS c FROM T");
    EXPECT_EQ(dialect::outputNames(dialect::tokenize(arrays, Dialect::PostgreSql)),
              QStringList({u("a"), u("c")}));
}

} // namespace zkp::ado::test
