#include "ado/dialect/keywords.h"
#include "ado/dialect/postgres_rewriter.h"
#include "base/text.h"

namespace zkp::ado::dialect {

namespace {

bool isBit(const Token& token) {
    return token.text == u"0" || token.text == u"1";
}

} // namespace

/// A flag that is compared with a number becomes one; a number that stands for a condition is asked
/// whether it is a flag that is set. What a flag is given must not be a number.
void PostgresRewriter::rewriteFlag(std::size_t k) {
    const bool flag = names().flags.contains(nameKey(nameOf(at(k))));
    const std::size_t first = at(k - 1).isSign(u".") && k > 1 ? k - 2 : k;
    if (flag && assigns(k + 1) && isBit(at(k + 2)))
        written(k + 2) = QStringLiteral("'%1'").arg(at(k + 2).text);
    else if (flag && (isComparedWithBit(first, k) || isBitInCase(first, k)))
        written(k) += QStringLiteral("::int");
    else if (!flag && at(k + 1).text != u"." && isCondition(first, k))
        written(k) += QStringLiteral("::text NOT IN ('0', 'false')");
}

bool PostgresRewriter::isComparedWithBit(std::size_t first, std::size_t last) const {
    return (compares(last + 1) && isBit(at(last + 2))) ||
           (first > 1 && compares(first - 1) && isBit(at(first - 2)));
}

/// Whether the name between two places is what a CASE compares with numbers, or is compared with one.
bool PostgresRewriter::isBitInCase(std::size_t first, std::size_t last) const {
    if (first == 0)
        return false;
    if (isSimpleWhen(first - 1)) {
        const std::size_t subject = caseOf(first - 1) + 1;
        return at(last + 1).isWord(u"then") && isBit(at(subject)) && at(subject + 1).isWord(u"when");
    }
    if (!at(first - 1).isWord(u"case") || !at(last + 1).isWord(u"when"))
        return false;
    for (std::size_t k = last + 1; k < count(); ++k) {
        if (at(k).isWord(u"when") && isBit(at(k + 1)) && caseOf(k) == first - 1)
            return true;
    }
    return false;
}

/// Whether the name between two places stands where a condition must.
bool PostgresRewriter::isCondition(std::size_t first, std::size_t last) const {
    if (first == 0 || isKeyword(at(last)))
        return false;
    const Token& before = at(first - 1);
    const Token& behind = at(last + 1);
    const bool begins = before.isOneOf({u"where", u"or", u"not", u"having"}) ||
                        (before.isWord(u"when") && !isSimpleWhen(first - 1)) ||
                        (before.isWord(u"and") && !isBetween(first - 1));
    const bool ends = behind.text.isEmpty() || behind.isSign(u")") || behind.isSign(u";") ||
                      behind.isOneOf({u"and", u"or", u"then", u"order", u"group"});
    const bool opens = before.isSign(u"(") && behind.isOneOf({u"and", u"or"});
    return (begins && ends) || opens;
}

/// Whether an "and" belongs to a "between".
bool PostgresRewriter::isBetween(std::size_t k) const {
    int depth = 0;
    while (k-- > 0) {
        depth += at(k).isSign(u")") ? 1 : at(k).isSign(u"(") ? -1 : 0;
        if (depth < 0 || (depth == 0 && at(k).isOneOf({u"and", u"or", u"where", u"on", u"when"})))
            return false;
        if (depth == 0 && at(k).isWord(u"between"))
            return true;
    }
    return false;
}

} // namespace zkp::ado::dialect
