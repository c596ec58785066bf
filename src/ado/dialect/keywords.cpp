#include "ado/dialect/keywords.h"

#include <QSet>

namespace zkp::ado::dialect {

bool isKeyword(const Token& token) {
    static const QSet<QStringView> words{
        u"add",     u"all",        u"alter",  u"and",      u"any",      u"as",          u"asc",
        u"begin",   u"between",    u"by",     u"case",     u"check",    u"collate",     u"column",
        u"commit",  u"constraint", u"create", u"cross",    u"cursor",   u"database",    u"declare",
        u"default", u"delete",     u"desc",   u"distinct", u"drop",     u"else",        u"end",
        u"escape",  u"except",     u"exec",   u"execute",  u"exists",   u"false",       u"fetch",
        u"for",     u"foreign",    u"from",   u"full",     u"function", u"grant",       u"group",
        u"having",  u"if",         u"in",     u"index",    u"inner",    u"insert",      u"intersect",
        u"into",    u"is",         u"join",   u"key",      u"left",     u"like",        u"limit",
        u"merge",   u"not",        u"null",   u"of",       u"on",       u"option",      u"or",
        u"order",   u"outer",      u"over",   u"percent",  u"primary",  u"procedure",   u"references",
        u"return",  u"revoke",     u"right",  u"rollback", u"schema",   u"select",      u"set",
        u"some",    u"table",      u"then",   u"to",       u"top",      u"transaction", u"trigger",
        u"true",    u"truncate",   u"union",  u"unique",   u"update",   u"use",         u"user",
        u"values",  u"view",       u"when",   u"where",    u"while",    u"with",        u"xor"};
    return token.kind == TokenKind::Word && words.contains(token.text.toString().toLower());
}

bool mayBeName(const Token& token) {
    return token.isOneOf({u"add",     u"alter",       u"begin",     u"commit",   u"cursor",  u"database",
                          u"declare", u"delete",      u"drop",      u"exec",     u"execute", u"function",
                          u"if",      u"index",       u"insert",    u"key",      u"merge",   u"of",
                          u"option",  u"percent",     u"procedure", u"return",   u"revoke",  u"rollback",
                          u"schema",  u"transaction", u"trigger",   u"truncate", u"update",  u"use",
                          u"view",    u"while"});
}

bool endsValue(const Token& token) {
    if (token.kind == TokenKind::Sign)
        return token.nesting() < 0;
    return !isKeyword(token) || mayBeName(token) ||
           token.isOneOf({u"end", u"null", u"true", u"false", u"user"});
}

} // namespace zkp::ado::dialect
