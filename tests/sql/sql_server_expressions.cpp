#include "sql_server_grammar.h"

#include "base/text.h"

namespace zkp::sqlcases {

using namespace Qt::StringLiterals;
using ado::dialect::TokenKind;

void SqlServerGrammar::condition() {
    do {
        conjunction();
    } while (takeWord(u"or"));
}
void SqlServerGrammar::conjunction() {
    do {
        negation();
    } while (takeWord(u"and"));
}
void SqlServerGrammar::negation() {
    while (takeWord(u"not")) {
    }
    predicate();
}

void SqlServerGrammar::predicate() {
    if (takeWord(u"exists")) {
        needSign("(");
        select();
        needSign(")");
    } else if (!bracketedCondition()) {
        expression();
        comparison();
    }
}

/// A bracket opens a condition or a value; what it was shows behind it.
bool SqlServerGrammar::bracketedCondition() {
    const std::size_t start = at_;
    if (!takeSign(u"("))
        return false;
    try {
        condition();
        needSign(")");
        return true;
    } catch (const Refusal&) {
        at_ = start;
        return false;
    }
}

void SqlServerGrammar::comparison() {
    for (const auto sign : {u"=", u"<>", u"<=", u">=", u"<", u">", u"!="}) {
        if (takeSign(sign))
            return expression();
    }
    if (takeWord(u"is")) {
        takeWord(u"not");
        return needWord("NULL");
    }
    takeWord(u"not");
    if (takeWord(u"like"))
        return expression();
    if (takeWord(u"between")) {
        expression();
        needWord("AND");
        return expression();
    }
    if (!takeWord(u"in"))
        refuse(u"a value where a condition must stand"_s);
    needSign("(");
    if (isWord(u"select")) {
        select();
    } else {
        do {
            expression();
        } while (takeSign(u","));
    }
    needSign(")");
}

void SqlServerGrammar::expression() {
    do {
        term();
    } while (takeSign(u"+") || takeSign(u"-"));
}
void SqlServerGrammar::term() {
    do {
        factor();
    } while (takeSign(u"*") || takeSign(u"/") || takeSign(u"%"));
}

void SqlServerGrammar::factor() {
    while (takeSign(u"-")) {
    }
    // N'…' is a constant of wide characters.
    if (isWord(u"n") && at_ + 1 < tokens_.size() && tokens_[at_ + 1].kind == TokenKind::Text)
        ++at_;
    if (now().kind == TokenKind::Number || now().kind == TokenKind::Text || isWord(u"null")) {
        ++at_;
        return;
    }
    if (isWord(u"case"))
        return caseExpression();
    if (now().isSign(u"(") && !ends())
        return bracketed();
    const bool isBare = now().kind == TokenKind::Word;
    const QString text = columnName();
    if (isBare && text == u"CONVERT")
        return convert();
    if (isBare && takeSign(u"("))
        return call(text);
    if (!inAggregate_)
        columns_ << text;
}

void SqlServerGrammar::caseExpression() {
    needWord("CASE");
    while (takeWord(u"when")) {
        condition();
        needWord("THEN");
        expression();
    }
    if (takeWord(u"else"))
        expression();
    needWord("END");
}

/// Style 102 reads a date.
void SqlServerGrammar::convert() {
    needSign("(");
    name();
    needSign(",");
    expression();
    if (takeSign(u",") && tokens_[at_++].kind != TokenKind::Number)
        refuse(u"a style that is no number"_s);
    needSign(")");
}

void SqlServerGrammar::call(const QString& function) {
    static const QStringList aggregates{u"COUNT"_s, u"SUM"_s, u"AVG"_s, u"MIN"_s, u"MAX"_s};
    const bool sums = aggregates.contains(function);
    const bool outer = inAggregate_;
    if (sums && outer)
        refuse(u"a sum of sums"_s);
    aggregate_ |= sums;
    inAggregate_ |= sums;
    if (function != u"COUNT" || !takeSign(u"*")) {
        takeWord(u"distinct");
        if (sums || !now().isSign(u")")) {
            do {
                expression();
            } while (takeSign(u","));
        }
    }
    inAggregate_ = outer;
    needSign(")");
}

void SqlServerGrammar::bracketed() {
    needSign("(");
    if (isWord(u"select"))
        select();
    else
        expression();
    needSign(")");
}

} // namespace zkp::sqlcases
