#include "ado/dialect/tokenizer.h"

#include "ado/dialect/subscript.h"
#include "ado/dialect/token_ends.h"

namespace zkp::ado::dialect {

namespace {

/// In the order in which they are tried.
constexpr struct {
    TokenKind kind;
    qsizetype (TokenEnds::*end)(qsizetype) const;
} kForms[] = {{TokenKind::Space, &TokenEnds::ofSpace},
              {TokenKind::Sign, &TokenEnds::ofExecutableComment},
              {TokenKind::Constant, &TokenEnds::ofEscapedText},
              {TokenKind::Constant, &TokenEnds::ofDollarText},
              {TokenKind::Text, &TokenEnds::ofText},
              {TokenKind::Name, &TokenEnds::ofName},
              {TokenKind::Number, &TokenEnds::ofNumber},
              {TokenKind::Word, &TokenEnds::ofWord}};

Token tokenAt(QStringView text, qsizetype i, const TokenEnds& ends) {
    for (const auto& form : kForms) {
        if (const qsizetype end = (ends.*form.end)(i); end > i)
            return {form.kind, text.sliced(i, end - i)};
    }
    return {TokenKind::Sign, text.sliced(i, ends.ofSign(i) - i)};
}

} // namespace

std::vector<Token> tokenize(QStringView statement, Dialect dialect) {
    const TokenEnds ends(statement, dialect);
    std::vector<Token> tokens;
    for (qsizetype i = 0; i < statement.size(); i += tokens.back().text.size()) {
        const bool isSubscript = dialect == Dialect::PostgreSql && statement[i] == u'[' &&
                                 opensSubscript(tokens, statement.sliced(i));
        tokens.push_back(isSubscript ? Token{TokenKind::Sign, statement.sliced(i, 1)}
                                     : tokenAt(statement, i, ends));
    }
    return tokens;
}

QString textOf(const Token& token) {
    QString text = token.text.sliced(1).toString();
    if (text.endsWith(u'\''))
        text.chop(1);
    return text.replace(QStringLiteral("''"), QStringLiteral("'"));
}

QString nameOf(const Token& token) {
    if (token.kind != TokenKind::Name)
        return token.text.toString();
    QString name = token.text.sliced(1).toString();
    name.chop(1);
    const QString sign = token.text.startsWith(u'[') ? QStringLiteral("]") : token.text.first(1).toString();
    return name.replace(sign + sign, sign);
}

} // namespace zkp::ado::dialect
