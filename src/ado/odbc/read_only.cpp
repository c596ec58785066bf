#include "ado/odbc/read_only.h"

#include "ado/dialect/tokenizer.h"
#include "base/error.h"
#include "base/text.h"

#include <algorithm>
#include <initializer_list>

namespace zkp::ado::odbc {

namespace {

using dialect::Token;

bool isOneOf(const Token& token, std::initializer_list<QStringView> words) {
    return std::any_of(words.begin(), words.end(), [&](QStringView word) { return token.isWord(word); });
}

bool isName(const Token& token) {
    return token.kind == dialect::TokenKind::Word || token.kind == dialect::TokenKind::Name;
}

/// The table that a statement writes to, by its first words; empty when they are no such statement.
QString writtenTable(const std::vector<Token>& tokens) {
    std::size_t at = 1;
    if (tokens[0].isWord(u"insert") || tokens[0].isWord(u"delete")) {
        if (tokens.size() > 1 && isOneOf(tokens[1], {u"into", u"from"}))
            ++at;
    } else if (!tokens[0].isWord(u"update")) {
        return {};
    }
    while (at + 2 < tokens.size() && tokens[at + 1].isSign(u"."))
        at += 2;
    return at < tokens.size() && isName(tokens[at]) ? dialect::nameOf(tokens[at]) : QString();
}

} // namespace

bool isWritableReadOnly(const QString& table) {
    const QString key = nameKey(table);
    return key == u"FRMS" || key == u"FRMS2" || key == u"QRN_MAIN";
}

Reading readingOf(const QString& statement) {
    std::vector<Token> tokens = dialect::tokenize(statement);
    std::erase_if(tokens, [](const Token& token) { return token.kind == dialect::TokenKind::Space; });
    if (tokens.empty())
        return Reading::Reads;
    const auto writes = [](const Token& token) {
        return isOneOf(token, {u"insert", u"update", u"delete", u"merge", u"into", u"truncate"});
    };
    if (const QString table = writtenTable(tokens); !table.isEmpty()) {
        const bool intoOnly = std::none_of(tokens.begin() + 2, tokens.end(), writes);
        return isWritableReadOnly(table) && intoOnly ? Reading::WritesAllowed : Reading::Refused;
    }
    const bool reads = isOneOf(tokens[0], {u"select", u"with", u"values", u"table", u"show", u"explain",
                                           u"describe", u"exec", u"execute", u"call"}) &&
                       std::none_of(tokens.begin(), tokens.end(), writes);
    return reads ? Reading::Reads : Reading::Refused;
}

void refuseWriting() {
    throw Error(kErrDatabase, QStringLiteral("The connection is open for reading only"),
                QStringLiteral("ODBC"));
}

} // namespace zkp::ado::odbc
