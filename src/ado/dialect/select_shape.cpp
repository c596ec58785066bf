#include "ado/dialect/select_shape.h"

#include "ado/dialect/keywords.h"

#include <algorithm>

namespace zkp::ado::dialect {

namespace {

/// Tokens that are no space.
std::vector<Token> solid(const std::vector<Token>& tokens) {
    std::vector<Token> kept;
    std::copy_if(tokens.begin(), tokens.end(), std::back_inserter(kept),
                 [](const Token& token) { return token.kind != TokenKind::Space; });
    return kept;
}

using Item = std::vector<Token>;

/// The items from a place on, cut at the outer commas, up to a token that ends them; `at` is then there.
template <class F>
std::vector<Item> itemsUpTo(const std::vector<Token>& tokens, std::size_t& at, F&& ends) {
    std::vector<Item> items(1);
    int depth = 0;
    for (; at < tokens.size(); ++at) {
        const Token& token = tokens[at];
        if (depth == 0 && ends(at))
            break;
        depth += token.nesting();
        if (depth < 0)
            break;
        if (depth == 0 && token.isSign(u","))
            items.emplace_back();
        else
            items.back().push_back(token);
    }
    return items;
}

/// The items of the outer select list; `at` is then at its FROM.
std::vector<Item> selectItems(const std::vector<Token>& tokens, std::size_t& at) {
    if (tokens.empty() || !tokens.front().isWord(u"select"))
        return {};
    at = 1;
    if (at < tokens.size() && tokens[at].isOneOf({u"distinct", u"all"}))
        ++at;
    if (at + 1 < tokens.size() && tokens[at].isWord(u"top") && tokens[at + 1].kind == TokenKind::Number)
        at += 2;
    return itemsUpTo(tokens, at,
                     [&](std::size_t k) { return tokens[k].isWord(u"from") || tokens[k].isSign(u";"); });
}

QString textOfItem(const Item& item) {
    QStringList texts;
    for (const Token& token : item)
        texts << token.text.toString();
    return texts.join(u' ');
}

/// The item without its alias.
Item expressionOf(const Item& item) {
    const bool aliased = item.size() > 2 && item[item.size() - 2].isWord(u"as");
    return aliased ? Item(item.begin(), item.end() - 2) : item;
}

/// An item of an order without its direction.
Item sortedBy(const Item& item) {
    const bool directed = item.size() > 1 && item.back().isOneOf({u"asc", u"desc"});
    return directed ? Item(item.begin(), item.end() - 1) : item;
}

/// As it stands in the statement, blanks included: they may mean something ahead of a bracket.
QStringView sourceText(const Item& item) {
    return {item.front().text.begin(), item.back().text.end()};
}

bool sameText(const Item& a, const Item& b) {
    return textOfItem(a).compare(textOfItem(b), Qt::CaseInsensitive) == 0;
}

/// Whether the items of a "group by" or an order end ahead of a place. Some of the words that end them may
/// be columns, too.
bool endsGroups(const std::vector<Token>& tokens, std::size_t k) {
    const Token& before = tokens[k - 1];
    const bool behindItem = before.kind == TokenKind::Sign ? before.nesting() < 0 : !before.isWord(u"by");
    return tokens[k].isSign(u";") ||
           tokens[k].isOneOf({u"having", u"order", u"union", u"except", u"intersect"}) ||
           (behindItem && tokens[k].isOneOf({u"limit", u"offset", u"fetch", u"for", u"window", u"with",
                                             u"lock", u"into", u"procedure"}));
}

/// The place behind the outer "group by"; 0 when there is none.
std::size_t behindGroupBy(const std::vector<Token>& tokens, std::size_t at) {
    int depth = 0;
    for (; at + 1 < tokens.size(); ++at) {
        depth += tokens[at].nesting();
        if (depth == 0 && tokens[at].isWord(u"group") && tokens[at + 1].isWord(u"by"))
            return at + 2;
    }
    return 0;
}

} // namespace

QStringList outputNames(const std::vector<Token>& statement) {
    const std::vector<Token> tokens = solid(statement);
    std::size_t at = 0;
    QStringList names;
    for (const Item& item : selectItems(tokens, at)) {
        if (item.empty() || item.back().isSign(u"*"))
            return {};
        const bool named = item.back().isName() && !item.back().isWord(u"end");
        names << (named ? nameOf(item.back()) : QString());
    }
    return names;
}

QStringList sourceColumns(const std::vector<Token>& statement) {
    const std::vector<Token> tokens = solid(statement);
    std::size_t at = 0;
    QStringList columns;
    for (const Item& item : selectItems(tokens, at)) {
        const Item expression = expressionOf(item);
        const bool plain = expression.size() == 1 || (expression.size() == 3 && expression[1].isSign(u"."));
        if (plain && expression.back().isSign(u"*"))
            columns << QStringLiteral("*");
        else
            columns << (plain && expression.back().isName() ? nameOf(expression.back()) : QString());
    }
    return columns;
}

GroupOrder groupOrder(const std::vector<Token>& statement) {
    const std::vector<Token> tokens = solid(statement);
    std::size_t at = 0;
    const std::vector<Item> selected = selectItems(tokens, at);
    at = selected.empty() ? 0 : behindGroupBy(tokens, at);
    if (at == 0)
        return {};
    const auto ends = [&](std::size_t k) { return endsGroups(tokens, k); };
    const std::vector<Item> groups = itemsUpTo(tokens, at, ends);
    if (at < tokens.size() && tokens[at].isWord(u"having"))
        itemsUpTo(tokens, ++at, ends);
    GroupOrder order;
    order.behindOrder = at < tokens.size() && tokens[at].isWord(u"order");
    at += order.behindOrder ? 2 : 0;
    const std::vector<Item> sorted = order.behindOrder ? itemsUpTo(tokens, at, ends) : std::vector<Item>();
    if (at < tokens.size() && !tokens[at].isSign(u";"))
        return {};
    for (const Item& group : groups) {
        const bool selectedToo = std::any_of(selected.begin(), selected.end(), [&](const Item& item) {
            return sameText(expressionOf(item), group);
        });
        const bool sortedToo = std::any_of(sorted.begin(), sorted.end(),
                                           [&](const Item& item) { return sameText(sortedBy(item), group); });
        if (selectedToo && !sortedToo && !group.empty())
            order.items.push_back(sourceText(group));
    }
    return order;
}

} // namespace zkp::ado::dialect
