#include "base/texts/filters.h"
#include "print_qt.h"
#include "sql/guarded_filter.h"

#include <gtest/gtest.h>

namespace {

using namespace zkp;
using namespace zkp::texts;

struct Case {
    const char* typed;
    QString condition; // when accepted
    QString refusal;   // when refused
};

Case accepted(const char* typed, const char* condition) {
    return {typed, QString::fromUtf8(condition), {}};
}
Case refused(const char* typed, const QString& refusal) {
    return {typed, {}, refusal};
}

void expectEach(const std::vector<Case>& cases) {
    for (const Case& one : cases) {
        const GuardedFilter filter = guardedFilter(QString::fromUtf8(one.typed));
        EXPECT_EQ(filter.condition, one.condition) << one.typed;
        EXPECT_EQ(filter.refusal, one.refusal) << one.typed;
    }
}

TEST(GuardedFilter, AConditionIsPaddedAndBracketed) {
    expectEach({
        accepted("A=1", "( A=1 )"),
        accepted("  A=1 or B=2 ", "( A=1 or B=2 )"),
        accepted("A=1\n\tand B=2", "( A=1  and B=2 )"),
        accepted("(A=1 or B=2) and (C=3)", "( (A=1 or B=2) and (C=3) )"),
        accepted("((A=1))", "( ((A=1)) )"),
        accepted("PREMIUM>=-5*2/3", "( PREMIUM>=-5*2/3 )"),
        accepted("A like 'Β%' and B between 1 and 9", "( A like 'Β%' and B between 1 and 9 )"),
        accepted("A in (1,2) or B not in ('x', 'y')", "( A in (1,2) or B not in ('x', 'y') )"),
        accepted("A IN\n(1)", "( A IN (1) )"),
        accepted("upper(A)='Χ' and B is not null", "( upper(A)='Χ' and B is not null )"),
        accepted("case when A=1 then 1 else 0 end = 1", "( case when A=1 then 1 else 0 end = 1 )"),
        accepted("ΠΕΡΙΟΧΗ='Αττική' or Πόλη<>'Βόλος'", "( ΠΕΡΙΟΧΗ='Αττική' or Πόλη<>'Βόλος' )"),
        accepted("N'Βόλος'=A", "( N'Βόλος'=A )"),
    });
}

TEST(GuardedFilter, ABlankOneLetsEveryRowPass) {
    expectEach({accepted("", " 0=0 "), accepted("   ", " 0=0 "), accepted(" \n\t", " 0=0 ")});
}

TEST(GuardedFilter, ConstantsAndNamesAreNotLookedInto) {
    expectEach({
        accepted("BRANCH='Βόλος'", "( BRANCH='Βόλος' )"),
        accepted("A='it''s'", "( A='it''s' )"),
        accepted("A=''", "( A='' )"),
        accepted("A='--' or A='/*' or A='*/' or A=';'", "( A='--' or A='/*' or A='*/' or A=';' )"),
        accepted("A=')(' or A='['", "( A=')(' or A='[' )"),
        accepted("A='say \"x'", "( A='say \"x' )"),
        accepted("A='#`$'", "( A='#`$' )"),
        accepted("A='a\nb\tc'", "( A='a\nb\tc' )"),
        accepted("A='select 1 union select 2'", "( A='select 1 union select 2' )"),
        accepted("A='exists' or B='in T'", "( A='exists' or B='in T' )"),
        accepted("[a)b]=1", "( [a)b]=1 )"),
        accepted("[it's]=1 and [a--b]=2 and [x;y]=3", "( [it's]=1 and [a--b]=2 and [x;y]=3 )"),
        accepted("[select]=1 or T.[table]=2", "( [select]=1 or T.[table]=2 )"),
        accepted("\"a)b\"=1 and \"values\"=2", "( \"a)b\"=1 and \"values\"=2 )"),
        accepted("A[2]=1 or B[ΕΤΟΣ 1]=2", "( A[2]=1 or B[ΕΤΟΣ 1]=2 )"),
    });
}

TEST(GuardedFilter, WhatTheDatabaseMakesOfItIsNotJudged) {
    expectEach({
        accepted("1=1 or 1=1", "( 1=1 or 1=1 )"),
        accepted("or 1=1", "( or 1=1 )"),
        accepted("x' or '1'='1", "( x' or '1'='1 )"),
        accepted("A=1 group by B", "( A=1 group by B )"),
    });
}

TEST(GuardedFilter, CommentsAreRefused) {
    expectEach({
        refused("A=1 -- B", commentInFilter(5)),
        refused("A=1--", commentInFilter(4)),
        refused("  A=1 --", commentInFilter(7)),
        refused("A=1 /* B", commentInFilter(5)),
        refused("A=1 */ or 1=1", commentInFilter(5)),
        refused("A/**/=1", commentInFilter(2)),
        refused("A='x' --'", commentInFilter(7)),
        refused("[A]--", commentInFilter(4)),
        refused("A='Βόλος' -- ", commentInFilter(11)),
    });
}

TEST(GuardedFilter, TheEndOfAStatementIsRefused) {
    expectEach({
        refused("A=1; drop table X", statementEndInFilter(4)),
        refused("A=';' ;", statementEndInFilter(7)),
        refused(";", statementEndInFilter(1)),
    });
}

TEST(GuardedFilter, QuotesAndNamesNeedTheirOtherHalf) {
    expectEach({
        refused("A='x", quoteLeftOpen(3)),
        refused("A='x''", quoteLeftOpen(3)),
        refused("'", quoteLeftOpen(1)),
        refused("A=\"x", quoteLeftOpen(3)),
        refused("A='x\" or B=\"y", quoteLeftOpen(3)),
        refused("(A=1 or [x=2)", nameLeftOpen(9)),
        refused("[A", nameLeftOpen(1)),
        refused("A]=1", nameClosedFirst(2)),
        refused("[A]]=1", nameClosedFirst(4)),
        refused("]A[=1", nameClosedFirst(1)),
    });
}

TEST(GuardedFilter, BracketsNeedTheirOtherHalf) {
    expectEach({
        refused("1=1) or (1=1", bracketClosedFirst(4)),
        refused(")", bracketClosedFirst(1)),
        refused("(A=1))", bracketClosedFirst(6)),
        refused("(A=1)) or ((B=2)", bracketClosedFirst(6)),
        refused("(A=1", bracketLeftOpen(1)),
        refused("(A=')'", bracketLeftOpen(1)),
        refused("(A=[)]", bracketLeftOpen(1)),
        refused("(A=1 and (B=2 or C=3)", bracketLeftOpen(1)),
        refused("(A=1) and ( (B=2", bracketLeftOpen(13)),
    });
}

// What opens a comment or a quotation in one database and nothing in another.
TEST(GuardedFilter, SignsThatMeanSomethingElseElsewhereAreRefused) {
    expectEach({
        refused("A=1 # B", signInFilter(u'#', 5)),
        refused("A=`x'`", signInFilter(u'`', 3)),
        refused("A=$$'$$", signInFilter(u'$', 3)),
        refused("A='x\\' or 1=1'", signInFilter(u'\\', 5)),
        refused("A=\"x\\\" or 1=1\"", signInFilter(u'\\', 5)),
        refused("A=q'!x'!' or 1=1 or 'y'", signInFilter(u'\'', 4)),
        refused("A=Nq'[x'", signInFilter(u'\'', 5)),
        // Right behind a value a bracket may hold an expression, and its quotes begin constants then.
        refused("A[']= 'x]) or (1=1' or B[']=1", signInFilter(u'[', 2)),
        refused("array ['] = 1", signInFilter(u'[', 7)),
        refused("(A)[x)]=1", signInFilter(u'[', 4)),
        refused("[A][b']=1", signInFilter(u'[', 4)),
    });
}

TEST(GuardedFilter, ControlCharactersAreRefused) {
    const auto refusal = [](const QString& text) { return guardedFilter(text).refusal; };
    for (const char16_t sign : {u'\u0001', u'\u001b', u'\u007f', u'\u0085', u'\u200b', u'\u202e', u'\u2028'})
        EXPECT_EQ(refusal(QStringLiteral("A=1") + QChar(sign)), signInFilter(QChar(sign), 4)) << int(sign);
    EXPECT_EQ(refusal(QStringLiteral("A=1") + QChar(u'\0')), signInFilter(QChar(u'\0'), 4));
    EXPECT_EQ(refusal(QStringLiteral("A='x") + QChar(u'\0') + u'\''), signInFilter(QChar(u'\0'), 5));
    EXPECT_EQ(signInFilter(QChar(u'\0'), 4), signInFilter(u'\u200b', 4)) << "they can't be shown";
}

TEST(GuardedFilter, QuestionsToOtherTablesAreRefused) {
    const auto word = [](const char16_t* text, qsizetype place) {
        return subselectInFilter(QString::fromUtf16(text), place);
    };
    expectEach({
        refused("A in (select B from T)", word(u"select", 7)),
        refused("(SeLeCt 1)=1", word(u"SeLeCt", 2)),
        refused("((select\n1))=1", word(u"select", 3)),
        refused("union select", word(u"union", 1)),
        refused("A=1 union select 1", word(u"union", 5)),
        refused("A=1 or 2union(select 1)", word(u"2union", 8)),
        refused("A=1 INTERSECT x", word(u"INTERSECT", 5)),
        refused("A=1 except x", word(u"except", 5)),
        refused("exists(select 1)", word(u"exists", 1)),
        refused("A = any (values (1))", word(u"values", 10)),
        refused("A = any (table T)", word(u"table", 10)),
        refused("A in (with x as (y) z)", word(u"with", 7)),
        refused("A in T", word(u"in", 3)),
        refused("A not in [T]", word(u"in", 7)),
        refused("A in 'T'", word(u"in", 3)),
        refused("A in", word(u"in", 3)),
        refused("1in T", word(u"1in", 1)),
        // A translated filter is all in capitals, and these become plain letters there.
        refused("A in (ſelect 1)", word(u"ſelect", 7)),
        refused("A=1 unıon x", word(u"unıon", 5)),
        // Names that only begin or end so.
        accepted("SELECTED=1 and UNIONS=2 and MY_TABLE=3", "( SELECTED=1 and UNIONS=2 and MY_TABLE=3 )"),
        accepted("INSURED=1 and WITHIN=2", "( INSURED=1 and WITHIN=2 )"),
    });
}

TEST(GuardedFilter, QuestionsToOtherTablesMayBeAllowed) {
    for (const char* typed :
         {"A in (select B from T)", "exists (select 1 from T)", "A in T", "A in (select 1 union select 2)"})
        EXPECT_EQ(guardedFilter(QString::fromUtf8(typed), true).condition,
                  QStringLiteral("( %1 )").arg(QString::fromUtf8(typed)));
    EXPECT_EQ(guardedFilter(QStringLiteral("A=1) union (select 1"), true).refusal, bracketClosedFirst(4));
    EXPECT_EQ(guardedFilter(QStringLiteral("A in (select 1 --"), true).refusal, commentInFilter(16));
}

TEST(GuardedFilter, TheReasonIsGreekAndNamesTheCharacter) {
    EXPECT_EQ(guardedFilter(QStringLiteral("A=1 or (B=2")).refusal,
              QStringLiteral("Λείπει η παρένθεση που κλείνει (χαρακτήρας 8)."));
}

TEST(GuardedFilter, AHundredThousandCharactersAreNoTrouble) {
    const QString many = QStringLiteral("(A=1) or ").repeated(20'000) + QStringLiteral("B=2");
    EXPECT_EQ(guardedFilter(many).condition, QStringLiteral("( ") + many + QStringLiteral(" )"));
    EXPECT_EQ(guardedFilter(QStringLiteral("(").repeated(100'000)).refusal, bracketLeftOpen(100'000));
    const QString names = QStringLiteral("A[1]=2 or ").repeated(10'000) + QStringLiteral("B=2");
    EXPECT_TRUE(guardedFilter(names).refusal.isEmpty());
}

TEST(GuardedFilter, OneBracketFromTheFirstCharacterToTheLast) {
    for (const char* text : {"( A=1 )", "()", " ( A=1 or (B=2) ) ", "('x') "})
        EXPECT_TRUE(scanFilter(QString::fromUtf8(text)).isOneBracket()) << text;
    for (const char* text : {"", "A=1", "(A=1) or (B=2)", "(A=1) or B=2", "x(A=1)", "(A=1)'x'", "[n](A=1)",
                             "(A=1", "(A=1))", "(A=1)(B=2)"})
        EXPECT_FALSE(scanFilter(QString::fromUtf8(text)).isOneBracket()) << text;
}

// --- On the way into physical names

QString refusalOf(const char* condition, const QString& key, const QString& physical, qsizetype offset = 0) {
    WatchedCondition watched(QString::fromUtf8(condition));
    watched.replaceKey(key, physical);
    return watched.refusal(offset);
}

TEST(WatchedCondition, ItsKeysAreReplacedOutsideOfConstantsAndNames) {
    WatchedCondition watched(QStringLiteral("( premium>1 or branch = 'Βόλος' )"));
    EXPECT_TRUE(watched.replaceKey(QStringLiteral("PREMIUM"), QStringLiteral("[P].[AMOUNT]")));
    EXPECT_TRUE(watched.replaceKey(QStringLiteral("BRANCH"), QStringLiteral(" trim('a(b')")));
    EXPECT_FALSE(watched.replaceKey(QStringLiteral("AGENT"), QStringLiteral("[A].[NAME]")));
    EXPECT_EQ(watched.text(), QStringLiteral("( [P].[AMOUNT]>1 OR  trim('a(b') = 'ΒΌΛΟΣ' )"));
    EXPECT_EQ(watched.refusal(), QString());
}

// The places are those of the typed text, which begins behind the bracket and its blank.
TEST(WatchedCondition, AKeyInAConstantOrNameIsRefused) {
    const QString key = QStringLiteral("KIND");
    const QString physical = QStringLiteral(" case when K=')' then 'x' end");
    EXPECT_EQ(refusalOf("( A='x kind y' )", key, physical), keyInConstant(6));
    EXPECT_EQ(refusalOf("( A='x kind y' )", key, physical, 2), keyInConstant(8));
    EXPECT_EQ(refusalOf("( [x kind y]=1 )", key, QStringLiteral("[T].[K]")), keyInConstant(4));
    EXPECT_EQ(refusalOf("( A='kind=1' )", key, physical), keyInConstant(4));
    // Nothing stands around these that would have them replaced.
    EXPECT_EQ(refusalOf("( A='kind' or B='my kind' )", key, physical), QString());
    EXPECT_EQ(refusalOf("( [kind]=1 )", key, physical), QString());
}

TEST(WatchedCondition, AnExpressionThatOpensABracketIsRefused) {
    EXPECT_EQ(refusalOf("( A=1 or kind=2 )", QStringLiteral("KIND"), QStringLiteral(" 1=1) or (1")),
              keyOutOfBrackets(8));
}

// What is the dictionary's own is not the person's to answer for.
TEST(WatchedCondition, AnExpressionMayHoldWhatAFilterMayNot) {
    for (const char* physical : {" (select max(X) from T)", " [D]-#1/1/2026#", " Q'x'"})
        EXPECT_EQ(refusalOf("( kind=2 )", QStringLiteral("KIND"), QString::fromUtf8(physical)), QString())
            << physical;
}

} // namespace
