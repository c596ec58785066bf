#include "ado/dialect/server_rewrite.h"

#include "ado/dialect/call_text.h"
#include "ado/dialect/rewriter.h"
#include "ado/dialect/select_shape.h"
#include "base/text.h"

#include <algorithm>
#include <initializer_list>

namespace zkp::ado::dialect {

namespace {

bool isOneOf(const Token& token, std::initializer_list<QStringView> words) {
    return std::any_of(words.begin(), words.end(), [&](QStringView word) { return token.isWord(word); });
}

/// As the server folds a bare name: only the letters A to Z.
QString folded(const QString& name) {
    QString small = name;
    for (QChar& c : small) {
        if (c >= u'A' && c <= u'Z')
            c = QChar(c.unicode() + 32);
    }
    return small;
}

QString quoted(const QString& name) {
    return u'"' + QString(name).replace(u'"', QStringLiteral("\"\"")) + u'"';
}

/// Words of the language that a bare name can't be.
bool isKeyword(const Token& token) {
    return isOneOf(token,
                   {u"select", u"distinct", u"top",    u"from",   u"where",  u"and",   u"or",      u"not",
                    u"in",     u"is",       u"null",   u"like",   u"order",  u"group", u"by",      u"having",
                    u"union",  u"all",      u"as",     u"on",     u"left",   u"right", u"inner",   u"outer",
                    u"join",   u"case",     u"when",   u"then",   u"else",   u"end",   u"between", u"asc",
                    u"desc",   u"true",     u"false",  u"exists", u"insert", u"into",  u"values",  u"update",
                    u"set",    u"delete",   u"create", u"table",  u"view",   u"limit", u"with"});
}

class PostgresRewriter : public Rewriter {
public:
    PostgresRewriter(const QString& statement, const ServerFacts& server)
        : PostgresRewriter(statement, server, server.names(tokenize(statement, Dialect::PostgreSql))) {}

    QString rewrite() {
        datesToIso();
        if (isAnswered()) {
            compareWithoutCase();
            divideAsReal(QStringLiteral("1.0::float8"));
            for (std::size_t k = 0; k < count(); ++k) {
                if (isName(at(k)))
                    rewriteFlag(k);
            }
        }
        for (std::size_t k = 0; k < count(); ++k) {
            if (isName(at(k)))
                rewriteName(k);
        }
        if (isAnswered()) {
            sortNullsFirst();
            sortGroups();
        }
        topToLimit(QStringLiteral("("), QStringLiteral(")"));
        return text();
    }

private:
    PostgresRewriter(const QString& statement, const ServerFacts& server, StatementNames names)
        : Rewriter(statement, Dialect::PostgreSql)
        , server_(server)
        , tokens_(tokenize(statement, Dialect::PostgreSql))
        , names_(std::move(names)) {}

    /// The collation is asked for only when something is compared; asking can be a round trip.
    void compareWithoutCase() {
        for (std::size_t k = 0; k < count(); ++k) {
            if (at(k).isWord(u"like"))
                written(k) = QStringLiteral("ILIKE");
        }
        bool cased = false;
        for (std::size_t k = 0; k < count(); ++k)
            cased = cased || (at(k).kind == TokenKind::Text && hasCase(at(k).text));
        const QString collation = cased ? server_.collation() : QString();
        if (collation.isEmpty())
            return;
        collateConstants(collation);
        // Between its words the server takes no collation but in brackets.
        for (std::size_t k = 1; k < count(); ++k) {
            if (at(k - 1).isWord(u"between") && at(k).kind == TokenKind::Text && now(k) != at(k).text)
                written(k) = u'(' + now(k) + u')';
        }
        for (std::size_t k = 1; k < count(); ++k) {
            if (at(k).isWord(u"in") && at(k + 1).isSign(u"(") && at(k + 2).kind == TokenKind::Text)
                collateList(k + 2, collation);
        }
    }

    /// One constant's collation is the whole list's.
    void collateList(std::size_t first, const QString& collation) {
        for (std::size_t k = first; at(k).kind == TokenKind::Text; k += 2) {
            if (hasCase(at(k).text)) {
                written(k) += QStringLiteral(" COLLATE ") + collation;
                return;
            }
            if (!at(k + 1).isSign(u","))
                return;
        }
    }

    void rewriteName(std::size_t k) {
        const Token& token = at(k);
        const bool bare = token.kind == TokenKind::Word;
        const QString name = nameOf(token);
        const auto kept = names_.spelling.constFind(nameKey(name));
        const bool isKept = kept != names_.spelling.cend();
        const bool isCall = bare && at(k + 1).isSign(u"(");
        if (bare && (!isKept || isCall || isKeyword(token)))
            return;
        const QString before = now(k).left(now(k).indexOf(token.text));
        const QString behind = now(k).mid(now(k).indexOf(token.text) + token.text.size());
        written(k) = before + quoted(isKept ? *kept : folded(name)) + behind;
    }

    /// A flag that is compared with a number becomes one; a number that stands for a condition is asked
    /// whether it is a flag that is set. What a flag is given must not be a number.
    void rewriteFlag(std::size_t k) {
        const bool flag = names_.flags.contains(nameKey(nameOf(at(k))));
        const auto isBit = [](const Token& token) { return token.text == u"0" || token.text == u"1"; };
        const std::size_t first = at(k - 1).isSign(u".") && k > 1 ? k - 2 : k;
        const bool compared = (compares(k + 1) && isBit(at(k + 2))) ||
                              (first > 1 && compares(first - 1) && isBit(at(first - 2)));
        if (flag && assigns(k + 1) && isBit(at(k + 2)))
            written(k + 2) = QStringLiteral("'%1'").arg(at(k + 2).text);
        else if (flag && compared)
            written(k) += QStringLiteral("::int");
        else if (!flag && at(k + 1).text != u"." && isCondition(first, k))
            written(k) += QStringLiteral("::text NOT IN ('0', 'false')");
    }

    /// Whether the name between two places stands where a condition must.
    bool isCondition(std::size_t first, std::size_t last) const {
        if (first == 0 || isKeyword(at(last)))
            return false;
        const Token& before = at(first - 1);
        const Token& behind = at(last + 1);
        const bool begins = isOneOf(before, {u"where", u"or", u"not", u"having", u"when"}) ||
                            (before.isWord(u"and") && !isBetween(first - 1));
        const bool ends = behind.text.isEmpty() || behind.isSign(u")") || behind.isSign(u";") ||
                          isOneOf(behind, {u"and", u"or", u"then", u"order", u"group"});
        const bool opens = before.isSign(u"(") && isOneOf(behind, {u"and", u"or"});
        return (begins && ends) || opens;
    }

    /// Whether an "and" belongs to a "between".
    bool isBetween(std::size_t k) const {
        int depth = 0;
        while (k-- > 0) {
            depth += at(k).isSign(u")") ? 1 : at(k).isSign(u"(") ? -1 : 0;
            if (depth < 0 || (depth == 0 && isOneOf(at(k), {u"and", u"or", u"where", u"on", u"when"})))
                return false;
            if (depth == 0 && at(k).isWord(u"between"))
                return true;
        }
        return false;
    }

    /// Where other servers have them.
    void sortNullsFirst() {
        for (std::size_t k = 0; k < count(); ++k) {
            if (at(k).isWord(u"order") && at(k + 1).isWord(u"by"))
                sortItems(k + 2);
        }
    }

    void sortItems(std::size_t k) {
        int depth = 0;
        std::size_t start = k;
        for (;; ++k) {
            const Token& token = at(k);
            const bool ends =
                token.text.isEmpty() || (depth == 0 && (token.isSign(u")") || token.isSign(u";"))) ||
                (depth == 0 && isOneOf(token, {u"limit", u"offset", u"fetch", u"for", u"rows"}));
            if (ends || (depth == 0 && token.isSign(u","))) {
                if (k > start && !at(k - 2).isWord(u"nulls"))
                    written(k - 1) += at(k - 1).isWord(u"desc") ? QStringLiteral(" NULLS LAST")
                                                                : QStringLiteral(" NULLS FIRST");
                start = k + 1;
            }
            if (ends)
                return;
            depth += token.isSign(u"(") ? 1 : token.isSign(u")") ? -1 : 0;
        }
    }

    void sortGroups() {
        const GroupOrder order = groupOrder(tokens_);
        QStringList items;
        for (const QString& item : order.items)
            items << rewriteNames(item) + QStringLiteral(" NULLS FIRST");
        orderBy(items, order.behindOrder);
    }

    QString rewriteNames(const QString& part) const {
        PostgresRewriter rewriter(part, server_, names_);
        for (std::size_t k = 0; k < rewriter.count(); ++k) {
            if (isName(rewriter.at(k)))
                rewriter.rewriteName(k);
        }
        return rewriter.text();
    }

    const ServerFacts& server_;
    std::vector<Token> tokens_;
    StatementNames names_;
};

} // namespace

Rewritten rewriteForPostgres(const QString& statement, const ServerFacts& server) {
    if (const auto call = parseExec(statement, Dialect::PostgreSql)) {
        const StatementNames names = server.names(tokenize(statement, Dialect::PostgreSql));
        const QString name = names.spelling.value(nameKey(call->name), folded(call->name));
        return {QStringLiteral("SELECT * FROM %1(%2)").arg(quoted(name), argumentTexts(*call)), {}};
    }
    return {PostgresRewriter(statement, server).rewrite(),
            outputNames(tokenize(statement, Dialect::PostgreSql))};
}

} // namespace zkp::ado::dialect
