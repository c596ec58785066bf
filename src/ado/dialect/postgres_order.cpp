#include "ado/dialect/keywords.h"
#include "ado/dialect/postgres_rewriter.h"

namespace zkp::ado::dialect {

/// Where other servers have them.
void PostgresRewriter::sortNullsFirst() {
    for (std::size_t k = 0; k < count(); ++k) {
        if (at(k).isWord(u"order") && at(k + 1).isWord(u"by"))
            sortItems(k + 2);
    }
}

void PostgresRewriter::sortItems(std::size_t k) {
    int depth = 0;
    std::size_t start = k;
    for (;; ++k) {
        const Token& token = at(k);
        const bool ends =
            token.text.isEmpty() ||
            (depth == 0 && (nesting(token) < 0 || token.isSign(u";") || (k > start && beginsFrame(k)) ||
                            token.isOneOf({u"limit", u"offset", u"fetch", u"for"})));
        if (ends || (depth == 0 && token.isSign(u","))) {
            if (k > start && !at(k - 2).isWord(u"nulls"))
                written(k - 1) += at(k - 1).isWord(u"desc") ? QStringLiteral(" NULLS LAST")
                                                            : QStringLiteral(" NULLS FIRST");
            start = k + 1;
        }
        if (ends)
            return;
        depth += nesting(token);
    }
}

/// Whether a word tells which rows of a window count. Behind a sign or a word of the language it is a
/// column.
bool PostgresRewriter::beginsFrame(std::size_t k) const {
    const bool endsItem = endsValue(at(k - 1)) || at(k - 1).isOneOf({u"asc", u"desc"});
    return endsItem && at(k).isOneOf({u"rows", u"range", u"groups"});
}

} // namespace zkp::ado::dialect
