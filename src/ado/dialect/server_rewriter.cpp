#include "ado/dialect/server_rewriter.h"

#include "ado/dialect/keywords.h"
#include "ado/dialect/select_shape.h"

namespace zkp::ado::dialect {

ServerRewriter::ServerRewriter(const QString& statement, Dialect dialect, const ServerFacts& server)
    : Rewriter(statement, dialect)
    , server_(server)
    , names_(server.names(tokens())) {}

QString ServerRewriter::collation() const {
    for (std::size_t k = 0; k < count(); ++k) {
        if (isCasedConstant(k))
            return server_.collation();
    }
    return {};
}

void ServerRewriter::collateComparisons(const QString& collation) {
    collateConstants(collation);
    for (std::size_t k = 1; k < count(); ++k) {
        if (at(k).isWord(u"in") && at(k + 1).isSign(u"("))
            collateList(k + 2, collation);
    }
}

/// One constant's collation is the whole list's.
void ServerRewriter::collateList(std::size_t first, const QString& collation) {
    for (std::size_t k = first; at(k).kind == TokenKind::Text; k += 2) {
        if (isCasedConstant(k)) {
            written(k) += QStringLiteral(" COLLATE ") + collation;
            return;
        }
        if (!at(k + 1).isSign(u","))
            return;
    }
}

void ServerRewriter::sortGroups(const QString& behindItem) {
    const GroupOrder order = groupOrder(tokens());
    QStringList items;
    for (const QStringView item : order.items)
        items << nowOf(item) + behindItem;
    orderBy(items, order.behindOrder);
}

ServerRewriter::Operand ServerRewriter::likened(std::size_t k) const {
    const std::size_t end = k > 0 && at(k - 1).isWord(u"not") ? k - 1 : k;
    std::size_t first = end;
    for (int depth = 0; first > 0; --first) {
        const int nests = nesting(at(first - 1));
        if (depth == 0 && (nests > 0 || endsOperand(first - 1)))
            break;
        if (depth == 0 && first < end && isSeam(first))
            return {end, end};
        depth -= nests;
    }
    return {first, end};
}

ServerRewriter::Operand ServerRewriter::pattern(std::size_t k) const {
    std::size_t end = k + 1;
    for (int depth = 0; end < count(); ++end) {
        const int nests = nesting(at(end));
        if (depth == 0 && (nests < 0 || endsOperand(end) || (end > k + 1 && isSeam(end))))
            break;
        depth += nests;
    }
    return {k + 1, end};
}

bool ServerRewriter::endsOperand(std::size_t k) const {
    const Token& token = at(k);
    const bool isPart = isOneOf(token, {u"case", u"end", u"collate", u"null", u"over", u"true", u"false"});
    const bool isCall = isOneOf(token, {u"left", u"right"}) && at(k + 1).isSign(u"(");
    return token.isSign(u",") || token.isSign(u";") || compares(k) || assigns(k) ||
           (isKeyword(token) && !isPart && !isCall);
}

/// Whether a name begins here that nothing joins to the value before it: an alias, or words of a server's
/// own.
bool ServerRewriter::isSeam(std::size_t k) const {
    return isName(at(k)) && !isKeyword(at(k)) && !at(k).isWord(u"varying") && endsValue(at(k - 1));
}

std::optional<std::size_t> ServerRewriter::casedConstant(const Operand& likened,
                                                         const Operand& pattern) const {
    if (!isPlain(likened) || !isPlain(pattern))
        return {};
    for (std::size_t k = pattern.first; k < pattern.end; ++k) {
        const bool bare = k == pattern.first || at(k - 1).kind == TokenKind::Sign;
        if (bare && isCasedConstant(k))
            return k;
    }
    if (likened.end == likened.first + 1 && isCasedConstant(likened.first))
        return likened.first;
    return {};
}

bool ServerRewriter::isPlain(const Operand& operand) const {
    for (std::size_t k = operand.first; k < operand.end; ++k) {
        if (isOneOf(at(k), {u"collate", u"binary", u"select"}))
            return false;
    }
    return operand.first < operand.end;
}

} // namespace zkp::ado::dialect
