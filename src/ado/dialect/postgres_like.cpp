#include "ado/dialect/postgres_rewriter.h"

#include <algorithm>

namespace zkp::ado::dialect {

/// ILIKE makes small letters, of which a sigma at a word's end has another one than elsewhere: 'ΔΗΜΟΣ%'
/// would not find "Δημοσθένης". And it takes no collation that itself ignores case.
void PostgresRewriter::rewriteLike(std::size_t k, const QString& collation) {
    const Operand text = likened(k);
    const Operand like = pattern(k);
    const bool isConstant = like.end == like.first + 1 && at(like.first).kind == TokenKind::Text;
    const auto cased = casedConstant(text, like);
    if (!cased && isConstant && !hasCase(at(like.first).text))
        return;
    const QStringView escape = at(like.end).isWord(u"escape") ? at(like.end + 1).text : QStringView();
    const bool escapesByLetter =
        std::any_of(escape.begin(), escape.end(), [](QChar c) { return c.isLetter(); });
    if (!cased || collation.isEmpty() || escapesByLetter) {
        written(k) = QStringLiteral("ILIKE");
        return;
    }
    inCapitals(text, collation);
    inCapitals(like, collation);
}

void PostgresRewriter::inCapitals(const Operand& operand, const QString& collation) {
    written(operand.first) = QStringLiteral("upper((") + now(operand.first);
    written(operand.end - 1) += QStringLiteral(") COLLATE %1) COLLATE \"C\"").arg(collation);
}

} // namespace zkp::ado::dialect
