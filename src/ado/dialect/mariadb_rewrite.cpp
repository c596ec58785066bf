#include "ado/dialect/call_text.h"
#include "ado/dialect/keywords.h"
#include "ado/dialect/select_shape.h"
#include "ado/dialect/server_rewriter.h"
#include "base/text.h"

#include <optional>

namespace zkp::ado::dialect {

namespace {

QString quoted(const QString& name) {
    return u'`' + QString(name).replace(u'`', QStringLiteral("``")) + u'`';
}

class MariaDbRewriter : public ServerRewriter {
public:
    MariaDbRewriter(const QString& statement, const ServerFacts& server)
        : ServerRewriter(statement, Dialect::MariaDb, server) {}

    QString rewrite() {
        datesToIso();
        const bool answered = isAnswered();
        if (answered) {
            compareWithoutCase(collation());
            for (std::size_t k = 0; k < count(); ++k) {
                if (at(k).isWord(u"like"))
                    takeBackslashes(pattern(k));
            }
            divideAsReal(QStringLiteral("1e0"));
        }
        for (std::size_t k = 0; k < count(); ++k) {
            if (at(k).isName())
                rewriteName(k);
        }
        if (answered)
            sortGroups({});
        topToLimit(QStringLiteral("("), QStringLiteral(")"));
        return text();
    }

private:
    /// The server's usual collations take accents for nothing and a text with blanks at its end for the
    /// text without them.
    void compareWithoutCase(const QString& collation) {
        if (collation.isEmpty())
            return;
        collateComparisons(collation);
        for (std::size_t k = 0; k < count(); ++k) {
            if (!at(k).isWord(u"like"))
                continue;
            // One constant's collation is both sides'.
            if (const auto constant = casedConstant(likened(k), pattern(k)))
                written(*constant) += QStringLiteral(" COLLATE ") + collation;
        }
    }

    /// The first constant of the pattern that is a value by itself, or what is likened. Nothing where a side
    /// tells by itself how it compares, or the pattern is a select.
    std::optional<std::size_t> casedConstant(const Operand& likened, const Operand& pattern) const {
        if (!isPlain(likened) || !isPlain(pattern))
            return {};
        for (std::size_t k = pattern.first; k < pattern.end && !at(k).isWord(u"select"); ++k) {
            const bool isValue = k == pattern.first || at(k - 1).kind == TokenKind::Sign ||
                                 at(k - 1).isOneOf({u"then", u"else"});
            if (isValue && isCasedConstant(k) && !isCompared(k))
                return k;
        }
        if (isConstant(likened) && isCasedConstant(likened.first))
            return likened.first;
        return {};
    }

    /// Tables are files, whose names have capitals; columns are found in any case, Greek ones not always.
    void rewriteName(std::size_t k) {
        const Token& token = at(k);
        const QString name = nameOf(token);
        const auto kept = names().spelling.constFind(nameKey(name));
        const bool isKept = kept != names().spelling.cend() && *kept != name && !at(k + 1).isSign(u"(");
        if (token.kind == TokenKind::Word && (!isKept || isKeyword(token)))
            return;
        written(k) = quoted(isKept ? *kept : name);
    }
};

} // namespace

Rewritten rewriteForMariaDb(const QString& statement, const ServerFacts& server) {
    if (const auto call = parseExec(statement, Dialect::MariaDb))
        return {QStringLiteral("CALL %1(%2)").arg(quoted(call->name), argumentTexts(*call)), {}};
    MariaDbRewriter rewriter(statement, server);
    return {rewriter.rewrite(), outputNames(rewriter.tokens())};
}

} // namespace zkp::ado::dialect
