#include "ado/dialect/call_text.h"
#include "ado/dialect/keywords.h"
#include "ado/dialect/postgres_rewriter.h"
#include "ado/dialect/select_shape.h"
#include "base/text.h"

namespace zkp::ado::dialect {

namespace {

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

} // namespace

PostgresRewriter::PostgresRewriter(const QString& statement, const ServerFacts& server)
    : ServerRewriter(statement, Dialect::PostgreSql, server) {}

QString PostgresRewriter::rewrite() {
    datesToIso();
    const bool answered = isAnswered();
    if (answered) {
        divideAsReal(QStringLiteral("1.0::float8"));
        for (std::size_t k = 0; k < count(); ++k) {
            if (at(k).isName())
                rewriteFlag(k);
        }
    }
    for (std::size_t k = 0; k < count(); ++k) {
        if (at(k).isName())
            rewriteName(k);
    }
    if (answered) {
        compareWithoutCase(collation());
        sortNullsFirst();
        sortGroups(QStringLiteral(" NULLS FIRST"));
    }
    topToLimit(QStringLiteral("("), QStringLiteral(")"));
    return text();
}

void PostgresRewriter::compareWithoutCase(const QString& collation) {
    if (!collation.isEmpty())
        collateComparisons(collation);
    for (std::size_t k = 1; k < count(); ++k) {
        // Between its words the server takes no collation but in brackets.
        if (at(k - 1).isWord(u"between") && at(k).kind == TokenKind::Text && now(k) != at(k).text)
            written(k) = u'(' + now(k) + u')';
        if (at(k).isWord(u"like"))
            rewriteLike(k, collation);
    }
}

void PostgresRewriter::rewriteName(std::size_t k) {
    const Token& token = at(k);
    const bool bare = token.kind == TokenKind::Word;
    const QString name = nameOf(token);
    const auto kept = names().spelling.constFind(nameKey(name));
    const bool isKept = kept != names().spelling.cend();
    const bool isCall = bare && at(k + 1).isSign(u"(");
    if ((bare && (!isKept || isCall || isKeyword(token))) || isOfTheServer(k))
        return;
    const QString behind = now(k).mid(token.text.size());
    written(k) = quoted(isKept ? *kept : folded(name)) + behind;
}

/// Whether a name in quotes is a collation's or a type's, which the catalogue here doesn't know: "C" is no
/// "c".
bool PostgresRewriter::isOfTheServer(std::size_t k) const {
    if (!at(k).text.startsWith(u'"'))
        return false;
    std::size_t first = k;
    while (first > 1 && at(first - 1).isSign(u"."))
        first -= 2;
    return at(first - 1).isWord(u"collate") || (at(first - 1).isSign(u":") && at(first - 2).isSign(u":"));
}

Rewritten rewriteForPostgres(const QString& statement, const ServerFacts& server) {
    if (const auto call = parseExec(statement, Dialect::PostgreSql)) {
        const StatementNames names = server.names(tokenize(statement, Dialect::PostgreSql));
        const QString name = names.spelling.value(nameKey(call->name), folded(call->name));
        return {QStringLiteral("SELECT * FROM %1(%2)").arg(quoted(name), argumentTexts(*call)), {}};
    }
    PostgresRewriter rewriter(statement, server);
    return {rewriter.rewrite(), outputNames(rewriter.tokens())};
}

} // namespace zkp::ado::dialect
