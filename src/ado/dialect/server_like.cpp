#include "ado/dialect/keywords.h"
#include "ado/dialect/server_rewriter.h"

#include <algorithm>

namespace zkp::ado::dialect {

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
    return first < end && !isJoin(first) && !isJoin(end - 1) ? Operand{first, end} : Operand{end, end};
}

ServerRewriter::Operand ServerRewriter::pattern(std::size_t k) const {
    const std::size_t first = k + 1;
    std::size_t end = first;
    for (int depth = 0; end < count(); ++end) {
        const int nests = nesting(at(end));
        if (depth == 0 && (nests < 0 || endsOperand(end) || (end > first && isSeam(end))))
            break;
        depth += nests;
    }
    return first < end && !isJoin(first) && !isJoin(end - 1) ? Operand{first, end} : Operand{first, first};
}

bool ServerRewriter::isConstant(const Operand& operand) const {
    return operand.end == operand.first + 1 && at(operand.first).kind == TokenKind::Text;
}

bool ServerRewriter::isPlain(const Operand& operand) const {
    for (std::size_t k = operand.first; k < operand.end; ++k) {
        if (at(k).isOneOf({u"collate", u"binary"}))
            return false;
    }
    return operand.first < operand.end;
}

bool ServerRewriter::hasLetters(const Operand& operand) const {
    for (std::size_t k = operand.first; k < operand.end; ++k) {
        if (at(k).kind == TokenKind::Constant || isCasedConstant(k))
            return true;
    }
    return false;
}

/// With an escape sign that the pattern doesn't hold: MariaDB takes no empty one.
void ServerRewriter::takeBackslashes(const Operand& pattern) {
    const QStringView text = at(pattern.first).text;
    if (!isConstant(pattern) || !text.contains(u'\\') || at(pattern.end).isWord(u"escape"))
        return;
    constexpr QStringView signs = u"|!~^#";
    const auto* const sign =
        std::find_if(signs.begin(), signs.end(), [&](QChar c) { return !text.contains(c); });
    if (sign != signs.end())
        written(pattern.first) += QStringLiteral(" ESCAPE '%1'").arg(*sign);
}

/// Words beside a point are columns, whatever they are else.
bool ServerRewriter::isWordOfLanguage(std::size_t k) const {
    return isKeyword(at(k)) && !mayBeName(at(k)) && !at(k - 1).isSign(u".") && !at(k + 1).isSign(u".");
}

bool ServerRewriter::endsOperand(std::size_t k) const {
    const Token& token = at(k);
    const bool isPart =
        token.isOneOf({u"case", u"end", u"collate", u"null", u"over", u"true", u"false", u"user"});
    const bool isCall = token.isOneOf({u"left", u"right"}) && at(k + 1).isSign(u"(");
    return token.isSign(u",") || token.isSign(u";") || compares(k) || assigns(k) ||
           (isWordOfLanguage(k) && !isPart && !isCall);
}

/// Whether a name begins here that nothing joins to the value before it: an alias, or words of a server's
/// own.
bool ServerRewriter::isSeam(std::size_t k) const {
    const bool behindValue = endsValue(at(k - 1)) || (at(k - 1).isName() && at(k - 2).isSign(u"."));
    return at(k).isName() && !isWordOfLanguage(k) && !at(k).isWord(u"varying") && behindValue;
}

/// Whether a sign joins two values, so that no operand begins or ends with it.
bool ServerRewriter::isJoin(std::size_t k) const {
    static const QString signs = QStringLiteral("|/*%^&.:");
    return at(k).kind == TokenKind::Sign && signs.contains(at(k).text.front());
}

} // namespace zkp::ado::dialect
