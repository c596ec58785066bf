#pragma once

#include "ado/dialect/dialect.h"

#include <QString>
#include <QStringView>

#include <algorithm>
#include <initializer_list>
#include <vector>

namespace zkp::ado::dialect {

enum class TokenKind {
    Space,    ///< blanks, line ends and comments
    Word,     ///< a bare name or keyword
    Name,     ///< [name], "name" or `name`, with its signs
    Text,     ///< a constant in apostrophes, with them
    Constant, ///< a text in a form of the server's own, which stays as it is: E'…' and $$…$$ of PostgreSQL
    Number,
    Sign, ///< one operator (two characters where they belong together), any other character, or a comment
          ///< that MariaDB executes
};

/// A piece of a statement; the pieces of a text follow each other without a gap.
struct Token {
    TokenKind kind;
    QStringView text;

    bool isWord(QStringView word) const {
        return kind == TokenKind::Word && text.compare(word, Qt::CaseInsensitive) == 0;
    }
    bool isOneOf(std::initializer_list<QStringView> words) const {
        return std::any_of(words.begin(), words.end(), [this](QStringView word) { return isWord(word); });
    }
    bool isName() const { return kind == TokenKind::Word || kind == TokenKind::Name; }
    bool isSign(QStringView sign) const { return kind == TokenKind::Sign && text == sign; }
    /// A comment like /*! … */, which a server executes or skips by its version.
    bool isExecutableComment() const { return kind == TokenKind::Sign && text.startsWith(u"/*"); }
    /// 1 for a bracket that opens, -1 for one that closes.
    int nesting() const { return isSign(u"(") || isSign(u"[") ? 1 : isSign(u")") || isSign(u"]") ? -1 : 0; }
};

/// Cuts a statement into tokens that refer to the given text, as the server of the dialect reads it; names in
/// square brackets are names for every server. Takes any text: a constant or name without an end goes to the
/// end of the text.
std::vector<Token> tokenize(QStringView statement, Dialect dialect);

/// The text of a Text token: without apostrophes, doubled ones single.
QString textOf(const Token& token);
/// A name without its signs, also for a Word.
QString nameOf(const Token& token);

} // namespace zkp::ado::dialect
