#include "ado/odbc/session/read_only.h"

#include "ado/dialect/tokenizer.h"
#include "base/error.h"
#include "base/text.h"

#include <algorithm>
#include <initializer_list>

namespace zkp::ado::odbc {

namespace {

using dialect::Token;

/// What a statement writes to, by its first words.
struct Target {
    QString table;        ///< empty when it is no such statement
    std::size_t behind{}; ///< the token behind the table's name
};

Target targetOf(const std::vector<Token>& tokens) {
    std::size_t at = 1;
    if (tokens[0].isWord(u"insert") || tokens[0].isWord(u"delete")) {
        if (tokens.size() > 1 && tokens[1].isOneOf({u"into", u"from"}))
            ++at;
    } else if (!tokens[0].isWord(u"update")) {
        return {};
    }
    while (at + 2 < tokens.size() && tokens[at + 1].isSign(u"."))
        at += 2;
    if (at >= tokens.size() || !tokens[at].isName())
        return {};
    return {dialect::nameOf(tokens[at]), at + 1};
}

/// Whether no other table can be meant: servers take several in an UPDATE or DELETE, and SQL Server a FROM
/// where the name may stand for another one.
bool writesOneTable(const std::vector<Token>& tokens, std::size_t behind, Dialect dialect) {
    if (tokens[0].isWord(u"insert"))
        return true;
    if (tokens[0].isWord(u"delete"))
        return behind == tokens.size() || tokens[behind].isWord(u"where");
    if (behind == tokens.size() || !tokens[behind].isWord(u"set"))
        return false;
    int depth = 0;
    return dialect != Dialect::SqlServer ||
           std::none_of(tokens.begin(), tokens.end(), [&depth](const Token& token) {
               depth += token.isSign(u"(") ? 1 : token.isSign(u")") ? -1 : 0;
               return depth == 0 && token.isWord(u"from");
           });
}

bool writes(const Token& token) {
    return token.isOneOf({u"insert", u"update", u"delete", u"merge", u"into", u"truncate"});
}

/// SQL Server needs no ";" between statements and has no sessions for reading; all these are reserved there.
bool beginsAnother(const Token& token) {
    return token.isOneOf({u"alter",    u"backup",   u"begin",     u"bulk",       u"commit",
                          u"create",   u"dbcc",     u"deny",      u"drop",       u"exec",
                          u"execute",  u"grant",    u"kill",      u"restore",    u"revoke",
                          u"revert",   u"rollback", u"save",      u"set",        u"setuser",
                          u"shutdown", u"use",      u"writetext", u"updatetext", u"reconfigure"});
}

/// A function that can let PostgreSQL's session write, by itself or in a text that it runs, or a name like
/// U&"\0073et" that can be anything.
bool setsConfiguration(const Token& token) {
    static const QStringView names[] = {u"SET_CONFIG", u"QUERY_TO_XML",     u"QUERY_TO_XMLSCHEMA",
                                        u"TS_STAT",    u"TS_REWRITE",       u"QUERY_TO_XML_AND_XMLSCHEMA",
                                        u"DBLINK",     u"DBLINK_EXEC",      u"DBLINK_OPEN",
                                        u"UESCAPE",    u"DBLINK_SEND_QUERY"};
    const QString name = token.isName() ? nameKey(dialect::nameOf(token)) : QString();
    return std::find(std::begin(names), std::end(names), name) != std::end(names) || name.contains(u'\\');
}

/// Whether a server does more than the first words say.
bool doesMore(const std::vector<Token>& tokens, std::size_t from, Dialect dialect) {
    // A text that is run.
    if (tokens[0].isOneOf({u"exec", u"execute"}) && tokens.size() > 1 && tokens[1].isSign(u"("))
        return true;
    const auto does = [dialect](const Token& token) {
        switch (dialect) {
        case Dialect::SqlServer:
            return beginsAnother(token);
        case Dialect::PostgreSql:
            return setsConfiguration(token);
        default:
            return false;
        }
    };
    return std::any_of(tokens.begin() + static_cast<std::ptrdiff_t>(from), tokens.end(), does);
}

/// Whether servers differ in where statement begins: what MariaDB executes depends on its version, and
/// whether a mere carriage return ends SQL Server's comments was never tried.
bool mayBeReadOtherwise(const Token& token, Dialect dialect) {
    const QStringView text = token.text;
    const bool isComment = token.kind == dialect::TokenKind::Space && text.contains(u"--");
    return token.isExecutableComment() ||
           (isComment && dialect == Dialect::SqlServer && text.count(u'\r') != text.count(u"\r\n"));
}

} // namespace

bool isWritableReadOnly(const QString& table) {
    const QString key = nameKey(table);
    return key == u"FRMS" || key == u"FRMS2" || key == u"QRN_MAIN";
}

Reading readingOf(const QString& statement, Dialect dialect) {
    std::vector<Token> tokens = dialect::tokenize(statement, dialect);
    if (std::any_of(tokens.begin(), tokens.end(),
                    [dialect](const Token& token) { return mayBeReadOtherwise(token, dialect); }))
        return Reading::Refused;
    std::erase_if(tokens, [](const Token& token) { return token.kind == dialect::TokenKind::Space; });
    if (tokens.empty())
        return Reading::Reads;
    if (const Target target = targetOf(tokens); !target.table.isEmpty()) {
        // The word behind an UPDATE's table is its SET.
        const bool more = doesMore(tokens, std::min(target.behind + 1, tokens.size()), dialect);
        const bool allowed = isWritableReadOnly(target.table) && !more &&
                             writesOneTable(tokens, target.behind, dialect) &&
                             std::none_of(tokens.begin() + 2, tokens.end(), writes);
        return allowed ? Reading::WritesAllowed : Reading::Refused;
    }
    const bool reads = tokens[0].isOneOf({u"select", u"with", u"values", u"table", u"show", u"explain",
                                          u"describe", u"exec", u"execute", u"call"}) &&
                       !doesMore(tokens, 1, dialect) && std::none_of(tokens.begin(), tokens.end(), writes);
    return reads ? Reading::Reads : Reading::Refused;
}

void refuseWriting() {
    throw Error(kErrDatabase, QStringLiteral("The connection is open for reading only"),
                QStringLiteral("ODBC"));
}

} // namespace zkp::ado::odbc
