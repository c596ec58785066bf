#include "ado/sqlite/aggregate_types.h"

#include "ado/dialect/tokenizer.h"

#include <algorithm>
#include <memory>

namespace zkp::ado::sqlite {

namespace {

using dialect::Token;
using dialect::TokenKind;

bool isAggregate(const Token& token) {
    return token.isWord(u"sum") || token.isWord(u"avg") || token.isWord(u"min") || token.isWord(u"max");
}

/// Whether "(name)" or "(name.name)" stands at a place.
bool isPlainColumn(const std::vector<Token>& tokens, std::size_t at) {
    const auto is = [&](std::size_t i, QStringView sign) {
        return i < tokens.size() && tokens[i].isSign(sign);
    };
    if (!is(at, u"(") || at + 1 >= tokens.size() || !tokens[at + 1].isName())
        return false;
    return is(at + 2, u")") ||
           (is(at + 2, u".") && at + 3 < tokens.size() && tokens[at + 3].isName() && is(at + 4, u")"));
}

std::vector<Token> withoutSpaces(const std::vector<Token>& tokens) {
    std::vector<Token> solid;
    std::copy_if(tokens.begin(), tokens.end(), std::back_inserter(solid),
                 [](const Token& token) { return token.kind != TokenKind::Space; });
    return solid;
}

} // namespace

QString withBareColumns(const QString& sql) {
    const std::vector<Token> tokens = withoutSpaces(dialect::tokenize(sql, dialect::Dialect::Sqlite));
    if (tokens.empty() || !tokens.front().isWord(u"select"))
        return {};
    QStringList words;
    bool found = false;
    bool inList = true;
    int depth = 0;
    for (std::size_t i = 0; i < tokens.size(); ++i) {
        const Token& token = tokens[i];
        depth += token.isSign(u"(") ? 1 : token.isSign(u")") ? -1 : 0;
        inList = inList && !(depth == 0 && token.isWord(u"from"));
        if (inList && depth == 0 && isAggregate(token) && isPlainColumn(tokens, i + 1))
            found = true;
        else
            words << token.text.toString();
    }
    return found ? words.join(u' ') : QString();
}

void declareAggregates(sqlite3* database, const char* sql, std::vector<Declared>& columns) {
    const bool complete =
        std::none_of(columns.begin(), columns.end(), [](const Declared& c) { return c.type == 0; });
    const QByteArray bare = complete ? QByteArray() : withBareColumns(QString::fromUtf8(sql)).toUtf8();
    if (bare.isEmpty())
        return;
    sqlite3_stmt* handle = nullptr;
    sqlite3_prepare_v2(database, bare.constData(), static_cast<int>(bare.size()), &handle, nullptr);
    const std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt*)> statement(handle, sqlite3_finalize);
    if (!handle || sqlite3_column_count(handle) != static_cast<int>(columns.size()))
        return;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const Declared ofColumn = declaredType(sqlite3_column_decltype(handle, static_cast<int>(i)));
        if (columns[i].type == 0 &&
            (ofColumn.storage == Storage::Amount || ofColumn.storage == Storage::Date))
            columns[i] = ofColumn;
    }
}

} // namespace zkp::ado::sqlite
