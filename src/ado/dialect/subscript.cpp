#include "ado/dialect/subscript.h"

#include <algorithm>

namespace zkp::ado::dialect {

namespace {

/// Words that a name may follow and a subscript can't.
bool isKeyword(const Token& token) {
    static const QStringView words[] = {
        u"select", u"distinct", u"all",  u"top",   u"from",   u"where", u"and",    u"or",     u"not",
        u"in",     u"is",       u"like", u"ilike", u"as",     u"on",    u"by",     u"having", u"between",
        u"join",   u"when",     u"then", u"else",  u"case",   u"union", u"except", u"set",    u"into",
        u"update", u"table",    u"only", u"using", u"values", u"limit", u"offset", u"end",    u"returning"};
    return std::any_of(std::begin(words), std::end(words),
                       [&](QStringView word) { return token.isWord(word); });
}

bool looksLikeName(QStringView inside) {
    const auto isLetter = [](QChar c) { return c.isLetter() || c == u'_' || c.isSurrogate(); };
    const auto fits = [&](QChar c) {
        return isLetter(c) || c.isDigit() || c.isSpace() || c == u'$' || c == u'#' || c == u'@';
    };
    return std::all_of(inside.begin(), inside.end(), fits) &&
           std::any_of(inside.begin(), inside.end(), isLetter);
}

/// Whether the innermost bracket that is open is a "[".
bool isElement(const std::vector<Token>& before) {
    int depth = 0;
    for (auto token = before.rbegin(); token != before.rend(); ++token) {
        depth += token->nesting();
        if (depth > 0)
            return token->isSign(u"[");
    }
    return false;
}

} // namespace

bool opensSubscript(const std::vector<Token>& before, QStringView text) {
    const qsizetype end = text.indexOf(u']');
    const QStringView inside = text.mid(1, end < 0 ? -1 : end - 1);
    const auto last = std::find_if(before.rbegin(), before.rend(),
                                   [](const Token& token) { return token.kind != TokenKind::Space; });
    if (last == before.rend())
        return false;
    if (last->isWord(u"array") || inside.trimmed().isEmpty())
        return true;
    if (looksLikeName(inside))
        return false;
    if (last->isSign(u",") || last->isSign(u"["))
        return isElement(before);
    const bool isValue = last->kind == TokenKind::Name || last->isSign(u")") || last->isSign(u"]") ||
                         (last->kind == TokenKind::Word && !isKeyword(*last));
    return isValue && last == before.rbegin();
}

} // namespace zkp::ado::dialect
