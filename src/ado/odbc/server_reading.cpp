#include "ado/odbc/server_reading.h"

namespace zkp::ado::odbc {

namespace {

using dialect::Token;
using dialect::TokenKind;

bool hasCommentInComment(QStringView space) {
    for (qsizetype start = space.indexOf(u"/*"); start >= 0;) {
        const qsizetype end = space.indexOf(u"*/", start + 2);
        const qsizetype inner = space.indexOf(u"/*", start + 2);
        if (inner >= 0 && (end < 0 || inner < end))
            return true;
        start = inner;
    }
    return false;
}

/// Executable comments, and a "--" that no blank follows and that is two signs there.
bool isOddForMariaDb(const Token& token) {
    if (token.kind == TokenKind::Word || token.kind == TokenKind::Number)
        return token.text.contains(u'#');
    if (token.kind != TokenKind::Space)
        return false;
    for (qsizetype at = token.text.indexOf(u"--"); at >= 0; at = token.text.indexOf(u"--", at + 2)) {
        if (at + 2 < token.text.size() && token.text[at + 2] > u' ')
            return true;
    }
    return token.text.contains(u"/*!") || token.text.contains(u"/*M!", Qt::CaseInsensitive);
}

/// "@" and "#" are no part of a name there, so that what follows them begins anew.
bool beginsAnew(const Token& token, qsizetype at) {
    return at == 0 || token.kind == TokenKind::Number || token.text[at - 1] == u'@' ||
           token.text[at - 1] == u'#';
}

bool isOddForPostgres(const Token& token, const Token* next) {
    const QStringView text = token.text;
    if (token.kind == TokenKind::Space)
        return text.contains(u"--") && text.contains(u'\r') && text.count(u'\r') != text.count(u"\r\n");
    if (token.kind == TokenKind::Text || token.kind == TokenKind::Name)
        return false;
    for (qsizetype at = text.indexOf(u'$'); at >= 0; at = text.indexOf(u'$', at + 1)) {
        if (beginsAnew(token, at))
            return true;
    }
    return next && next->kind == TokenKind::Text && text.endsWith(u'e', Qt::CaseInsensitive) &&
           beginsAnew(token, text.size() - 1);
}

bool isOdd(const Token& token, const Token* next, Dialect dialect) {
    if (token.kind == TokenKind::Space && hasCommentInComment(token.text))
        return true;
    switch (dialect) {
    case Dialect::MariaDb:
        return isOddForMariaDb(token);
    case Dialect::PostgreSql:
        return isOddForPostgres(token, next);
    default:
        // A doubled "]" is part of a name there.
        return token.kind == TokenKind::Name && next && next->isSign(u"]");
    }
}

} // namespace

bool mayBeReadOtherwise(const std::vector<Token>& tokens, Dialect dialect) {
    for (std::size_t i = 0; i < tokens.size(); ++i) {
        if (isOdd(tokens[i], i + 1 < tokens.size() ? &tokens[i + 1] : nullptr, dialect))
            return true;
    }
    return false;
}

} // namespace zkp::ado::odbc
