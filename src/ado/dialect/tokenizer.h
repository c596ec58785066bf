#pragma once

#include <QString>
#include <QStringView>

#include <vector>

namespace zkp::ado::dialect {

enum class TokenKind {
    Space, ///< blanks, line ends and comments
    Word,  ///< a bare name or keyword
    Name,  ///< [name], "name" or `name`, with its signs
    Text,  ///< a constant in apostrophes, with them
    Number,
    Sign, ///< one operator (two characters where they belong together) or any other character
};

/// A piece of a statement; the pieces of a text follow each other without a gap.
struct Token {
    TokenKind kind;
    QStringView text;

    bool isWord(QStringView word) const {
        return kind == TokenKind::Word && text.compare(word, Qt::CaseInsensitive) == 0;
    }
    bool isSign(QStringView sign) const { return kind == TokenKind::Sign && text == sign; }
};

/// Cuts a statement into tokens that refer to the given text. Takes any text: a constant or name
/// without an end goes to the end of the text.
std::vector<Token> tokenize(QStringView statement);

/// The text of a Text token: without apostrophes, doubled ones single.
QString textOf(const Token& token);
/// A name without its signs, also for a Word.
QString nameOf(const Token& token);

/// The statements of a text, cut at each ";" outside constants, names, comments and the body of a
/// trigger or routine; pieces of nothing but blanks and comments are left out.
std::vector<QString> splitStatements(const QString& text);

} // namespace zkp::ado::dialect
