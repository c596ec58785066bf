#include "ado/dialect/plain_select.h"

#include "ado/dialect/tokenizer.h"

#include <algorithm>

namespace zkp::ado::dialect {

namespace {

/// Words at the outer level after which a record is no longer one row of one table.
bool joinsRows(const Token& token) {
    return token.isOneOf({u"distinct", u"group", u"having", u"union", u"except", u"intersect", u"join"});
}

bool isAggregate(const Token& token) {
    return token.isOneOf({u"count", u"sum", u"avg", u"min", u"max", u"total", u"group_concat"});
}

struct Parts {
    std::vector<Token> tokens;
    std::vector<std::size_t> solid; ///< tokens that are no space
    std::size_t from = 0;           ///< place in `solid`

    const Token& at(std::size_t k) const {
        static const Token none{TokenKind::Sign, {}};
        return k < solid.size() ? tokens[solid[k]] : none;
    }
    QString text(std::size_t first, std::size_t last) const {
        QString joined;
        for (std::size_t i = first; i < last; ++i)
            joined += tokens[i].text;
        return joined;
    }
};

/// Finds the outer FROM; false for statements that are no plain select.
bool findFrom(Parts& parts) {
    int depth = 0;
    if (!parts.at(0).isWord(u"select"))
        return false;
    for (std::size_t k = 1; k < parts.solid.size(); ++k) {
        const Token& token = parts.at(k);
        depth += token.isSign(u"(") ? 1 : token.isSign(u")") ? -1 : 0;
        if (depth != 0)
            continue;
        if (joinsRows(token) || (isAggregate(token) && parts.at(k + 1).isSign(u"(")))
            return false;
        if (token.isWord(u"from") && parts.from == 0)
            parts.from = k;
    }
    return parts.from > 0;
}

} // namespace

std::optional<PlainSelect> parsePlainSelect(const QString& statement, Dialect dialect) {
    Parts parts{tokenize(statement, dialect), {}, 0};
    for (std::size_t i = 0; i < parts.tokens.size(); ++i) {
        if (parts.tokens[i].kind != TokenKind::Space)
            parts.solid.push_back(i);
    }
    while (!parts.solid.empty() && parts.at(parts.solid.size() - 1).isSign(u";"))
        parts.solid.pop_back();
    if (!findFrom(parts))
        return std::nullopt;

    std::size_t k = parts.from + 1;
    PlainSelect select;
    if (parts.at(k + 1).isSign(u".")) {
        if (!parts.at(k).isName())
            return std::nullopt;
        select.qualifier = nameOf(parts.at(k));
        k += 2;
    }
    if (!parts.at(k).isName())
        return std::nullopt;
    select.table = nameOf(parts.at(k++));
    const auto ends = [](const Token& token) {
        return token.text.isEmpty() || token.isOneOf({u"where", u"order", u"limit"});
    };
    if (parts.at(k).isWord(u"as"))
        ++k;
    if (!ends(parts.at(k)) && parts.at(k).isName())
        ++k;
    if (!ends(parts.at(k)))
        return std::nullopt;

    const std::size_t from = parts.solid[parts.from];
    const std::size_t last = parts.solid.back() + 1;
    select.beforeFrom = parts.text(0, from);
    select.fromOn = parts.text(from, last);
    select.source = parts.text(from, k < parts.solid.size() ? parts.solid[k] : last).mid(4);
    return select;
}

} // namespace zkp::ado::dialect
