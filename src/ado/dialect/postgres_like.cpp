#include "ado/dialect/keywords.h"
#include "ado/dialect/postgres_rewriter.h"

#include <algorithm>

namespace zkp::ado::dialect {

/// Where nothing tells how to compare, or a letter escapes that would be another one in small letters, the
/// server's own words have to do.
void PostgresRewriter::rewriteLike(std::size_t k, const QString& collation) {
    const Operand text = likened(k);
    const Operand like = pattern(k);
    const QStringView escape = at(like.end).isWord(u"escape") ? at(like.end + 1).text : QStringView();
    const bool escapesByLetter =
        std::any_of(escape.begin(), escape.end(), [](QChar c) { return c.isLetter(); });
    const bool isCased = isPlain(text) && isPlain(like) && (hasLetters(text) || hasLetters(like));
    if (!isConstant(like) || hasCase(at(like.first).text)) {
        if (isCased && !collation.isEmpty() && !escapesByLetter) {
            inSmallLetters(text, collation);
            inSmallLetters(like, collation);
        } else {
            written(k) = QStringLiteral("ILIKE");
        }
    }
    takeBackslashes(like);
}

/// ILIKE knows only the column's letters, and takes no collation that itself ignores case. One small letter
/// stands for each capital, of which there may be several for a small one (ΐ), and a "_" is one letter. Only
/// the sigma at a word's end is another one than elsewhere: 'ΔΗΜΟΣ%' would not find "Δημοσθένης".
void PostgresRewriter::inSmallLetters(const Operand& operand, const QString& collation) {
    QString before = QStringLiteral("lower((");
    QString behind = QStringLiteral(") COLLATE %1) COLLATE \"C\"").arg(collation);
    if (server().hasSigma()) {
        before = QStringLiteral("replace(") + before;
        behind += QStringLiteral(", '\u03C2', '\u03C3')");
    }
    written(operand.first) = before + now(operand.first);
    written(operand.end - 1) += behind;
}

} // namespace zkp::ado::dialect
