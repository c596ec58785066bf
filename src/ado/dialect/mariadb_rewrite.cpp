#include "ado/dialect/server_rewrite.h"

#include "ado/dialect/call_text.h"
#include "ado/dialect/rewriter.h"
#include "ado/dialect/select_shape.h"
#include "base/text.h"

namespace zkp::ado::dialect {

namespace {

QString quoted(const QString& name) {
    return u'`' + QString(name).replace(u'`', QStringLiteral("``")) + u'`';
}

class MariaDbRewriter : public Rewriter {
public:
    MariaDbRewriter(const QString& statement, const ServerFacts& server)
        : MariaDbRewriter(statement, server, server.names(tokenize(statement, Dialect::MariaDb))) {}

    QString rewrite() {
        datesToIso();
        if (isAnswered()) {
            compareWithoutCase();
            divideAsReal(QStringLiteral("1e0"));
        }
        for (std::size_t k = 0; k < count(); ++k) {
            if (isName(at(k)))
                rewriteName(k);
        }
        if (isAnswered())
            sortGroups();
        topToLimit(QStringLiteral("("), QStringLiteral(")"));
        return text();
    }

private:
    MariaDbRewriter(const QString& statement, const ServerFacts& server, StatementNames names)
        : Rewriter(statement, Dialect::MariaDb)
        , server_(server)
        , tokens_(tokenize(statement, Dialect::MariaDb))
        , names_(std::move(names)) {}

    /// The server's usual collations take accents for nothing and a text with blanks at its end for the
    /// text without them.
    void compareWithoutCase() {
        bool cased = false;
        for (std::size_t k = 0; k < count(); ++k)
            cased = cased || (at(k).kind == TokenKind::Text && hasCase(at(k).text));
        const QString collation = cased ? server_.collation() : QString();
        if (collation.isEmpty())
            return;
        collateConstants(collation);
        for (std::size_t k = 1; k < count(); ++k) {
            if (at(k).isWord(u"in") && at(k + 1).isSign(u"(") && at(k + 2).kind == TokenKind::Text)
                written(k + 2) += QStringLiteral(" COLLATE ") + collation;
        }
    }

    /// Tables are files, whose names have capitals; columns are found in any case, Greek ones not always.
    void rewriteName(std::size_t k) {
        const Token& token = at(k);
        const QString name = nameOf(token);
        const auto kept = names_.spelling.constFind(nameKey(name));
        const bool isKept = kept != names_.spelling.cend() && *kept != name && !at(k + 1).isSign(u"(");
        if (token.kind == TokenKind::Word && !isKept)
            return;
        written(k) = quoted(isKept ? *kept : name);
    }

    void sortGroups() {
        const GroupOrder order = groupOrder(tokens_);
        QStringList items;
        for (const QString& item : order.items)
            items << rewriteNames(item);
        orderBy(items, order.behindOrder);
    }

    QString rewriteNames(const QString& part) const {
        MariaDbRewriter rewriter(part, server_, names_);
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

Rewritten rewriteForMariaDb(const QString& statement, const ServerFacts& server) {
    if (const auto call = parseExec(statement, Dialect::MariaDb))
        return {QStringLiteral("CALL %1(%2)").arg(quoted(call->name), argumentTexts(*call)), {}};
    return {MariaDbRewriter(statement, server).rewrite(), outputNames(tokenize(statement, Dialect::MariaDb))};
}

} // namespace zkp::ado::dialect
