#include "print_qt.h"
#include "window/texts.h"
#include "window/user_filter.h"

#include <gtest/gtest.h>

namespace {

using namespace zkp::app;

struct Case {
    const char* typed;
    QString text;    // when accepted
    QString failure; // when refused
};

Case accepted(const char* typed, const char* text) {
    return {typed, QString::fromUtf8(text), {}};
}
Case refused(const char* typed, const QString& failure) {
    return {typed, {}, failure};
}

std::vector<Case> cases() {
    return {
        // Blank and plain filters.
        accepted("", ""),
        accepted("   ", ""),
        accepted("A=1", "( A=1 )"),
        accepted("  A=1 or B=2 ", "( A=1 or B=2 )"),
        accepted("A=1\n\tand B=2", "( A=1  and B=2 )"),
        accepted("(A=1 or B=2) and (C=3)", "( (A=1 or B=2) and (C=3) )"),
        accepted("((A=1))", "( ((A=1)) )"),
        accepted("PREMIUM>=-5*2/3", "( PREMIUM>=-5*2/3 )"),
        // What stands in quotes and names is not looked into.
        accepted("BRANCH='Βόλος'", "( BRANCH='Βόλος' )"),
        accepted("A='it''s'", "( A='it''s' )"),
        accepted("A=''", "( A='' )"),
        accepted("A='--' or A='/*' or A='*/' or A=';'", "( A='--' or A='/*' or A='*/' or A=';' )"),
        accepted("A=')(' or A='['", "( A=')(' or A='[' )"),
        accepted("A='say \"x'", "( A='say \"x' )"),
        accepted("[a)b]=1", "( [a)b]=1 )"),
        accepted("[it's]=1 and [a--b]=2 and [x;y]=3", "( [it's]=1 and [a--b]=2 and [x;y]=3 )"),
        accepted("\"a)b\"=1", "( \"a)b\"=1 )"),
        accepted("A='#`$'", "( A='#`$' )"),
        // Not this function's to judge.
        accepted("union select", "( union select )"),
        accepted("1=1 or 1=1", "( 1=1 or 1=1 )"),
        accepted("x' or '1'='1", "( x' or '1'='1 )"),
        // Comments.
        refused("A=1 -- B", texts::commentInFilter()),
        refused("A=1--", texts::commentInFilter()),
        refused("A=1 /* B", texts::commentInFilter()),
        refused("A=1 */ or 1=1", texts::commentInFilter()),
        refused("A/**/=1", texts::commentInFilter()),
        refused("A='x' --'", texts::commentInFilter()),
        refused("[A]--", texts::commentInFilter()),
        refused("A=1 # B", texts::signInFilter(u'#')),
        // The end of the statement.
        refused("A=1; drop table X", texts::statementEndInFilter()),
        refused("A=';' ;", texts::statementEndInFilter()),
        // Quotes.
        refused("A='x", texts::quoteLeftOpen()),
        refused("A='x''", texts::quoteLeftOpen()),
        refused("'", texts::quoteLeftOpen()),
        refused("A=\"x", texts::quoteLeftOpen()),
        refused("A='x\" or B=\"y", texts::quoteLeftOpen()),
        refused("A=`x'`", texts::signInFilter(u'`')),
        refused("A=$$'$$", texts::signInFilter(u'$')),
        refused("A='x\\' or 1=1'", texts::signInFilter(u'\\')),
        // Brackets.
        refused("1=1) or (1=1", texts::bracketClosedFirst()),
        refused(")", texts::bracketClosedFirst()),
        refused("(A=1))", texts::bracketClosedFirst()),
        refused("(A=1)) or ((B=2)", texts::bracketClosedFirst()),
        refused("(A=1", texts::bracketLeftOpen()),
        refused("(A=')'", texts::bracketLeftOpen()),
        refused("(A=[)]", texts::bracketLeftOpen()),
        refused("(A=1 or [x=2)", texts::nameLeftOpen()),
        refused("[A", texts::nameLeftOpen()),
        refused("A]=1", texts::nameClosedFirst()),
        refused("[A]]=1", texts::nameClosedFirst()),
        refused("]A[=1", texts::nameClosedFirst()),
    };
}

TEST(UserFilter, IsPaddedAndBracketedOrRefusedWithTheReason) {
    for (const Case& one : cases()) {
        const UserFilter filter = checkUserFilter(QString::fromUtf8(one.typed));
        EXPECT_EQ(filter.text, one.text) << one.typed;
        EXPECT_EQ(filter.failure, one.failure) << one.typed;
    }
}

TEST(UserFilter, ControlCharactersAreRefusedInsideAndOutsideQuotes) {
    for (const char16_t* text : {u"A=1\u0001", u"A=\u001b1"})
        EXPECT_FALSE(checkUserFilter(QString::fromUtf16(text)).isAccepted());
    EXPECT_FALSE(checkUserFilter(QStringLiteral("A=1") + QChar(u'\0')).isAccepted());
    EXPECT_FALSE(checkUserFilter(QStringLiteral("A='x") + QChar(u'\0') + u'\'').isAccepted());
}

TEST(UserFilter, AHundredThousandCharactersAreNoTrouble) {
    const QString many = QStringLiteral("(A=1) or ").repeated(20'000) + QStringLiteral("B=2");
    EXPECT_EQ(checkUserFilter(many).text, QStringLiteral("( ") + many + QStringLiteral(" )"));
    EXPECT_EQ(checkUserFilter(QStringLiteral("(").repeated(100'000)).failure, texts::bracketLeftOpen());
}

TEST(UserFilter, OneBracketFromTheFirstCharacterToTheLast) {
    for (const char* text : {"( A=1 )", "()", " ( A=1 or (B=2) ) ", "('x') "})
        EXPECT_TRUE(isInOneBracket(QString::fromUtf8(text))) << text;
    for (const char* text : {"", "A=1", "(A=1) or (B=2)", "(A=1) or B=2", "x(A=1)", "(A=1)'x'", "[n](A=1)",
                             "(A=1", "(A=1))", "(A=1)(B=2)"})
        EXPECT_FALSE(isInOneBracket(QString::fromUtf8(text))) << text;
}

} // namespace
