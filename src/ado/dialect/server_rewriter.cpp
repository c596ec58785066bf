#include "ado/dialect/server_rewriter.h"

#include "ado/dialect/select_shape.h"

namespace zkp::ado::dialect {

ServerRewriter::ServerRewriter(const QString& statement, Dialect dialect, const ServerFacts& server)
    : Rewriter(statement, dialect)
    , server_(server)
    , names_(server.names(tokens())) {}

QString ServerRewriter::collation() const {
    bool likens = false;
    bool hasConstant = false;
    bool isCased = false;
    for (std::size_t k = 0; k < count(); ++k) {
        likens = likens || at(k).isWord(u"like");
        hasConstant = hasConstant || at(k).kind == TokenKind::Constant;
        isCased = isCased || isCasedConstant(k);
    }
    return isCased || (likens && hasConstant) ? server_.collation() : QString();
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

} // namespace zkp::ado::dialect
