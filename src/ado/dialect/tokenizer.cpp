#include "ado/dialect/tokenizer.h"

#include <QSet>

#include <algorithm>
#include <utility>

namespace zkp::ado::dialect {

namespace {

bool isWordStart(QChar c) {
    return c.isLetter() || c == u'_' || c == u'@' || c == u'#' || c.isSurrogate();
}
bool isWordPart(QChar c) {
    return isWordStart(c) || c.isDigit() || c == u'$';
}
bool isAsciiDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}

/// Where a constant or name that a sign opened ends; a doubled closing sign is part of it.
qsizetype endOfQuoted(QStringView text, qsizetype start, QChar close) {
    for (qsizetype i = start + 1; i < text.size(); ++i) {
        if (text[i] != close)
            continue;
        if (close != u']' && i + 1 < text.size() && text[i + 1] == close)
            ++i;
        else
            return i + 1;
    }
    return text.size();
}

/// Where blanks and comments that start here end.
qsizetype endOfSpace(QStringView text, qsizetype i) {
    while (i < text.size()) {
        if (text[i].isSpace()) {
            ++i;
        } else if (text.sliced(i).startsWith(u"--")) {
            const qsizetype line = text.indexOf(u'\n', i);
            i = line < 0 ? text.size() : line + 1;
        } else if (text.sliced(i).startsWith(u"/*")) {
            const qsizetype end = text.indexOf(u"*/", i + 2);
            i = end < 0 ? text.size() : end + 2;
        } else {
            break;
        }
    }
    return i;
}

qsizetype endOfNumber(QStringView text, qsizetype i) {
    while (i < text.size() && (isWordPart(text[i]) || text[i] == u'.')) {
        const bool exponent = (text[i] == u'e' || text[i] == u'E') && i + 1 < text.size() &&
                              (text[i + 1] == u'-' || text[i + 1] == u'+');
        i += exponent ? 2 : 1;
    }
    return i;
}

qsizetype endOfSign(QStringView text, qsizetype i) {
    static const QSet<QStringView> pairs{u"<>", u"<=", u">=", u"!=", u"==", u"||", u"<<", u">>"};
    const bool pair = i + 1 < text.size() && pairs.contains(text.sliced(i, 2));
    return i + (pair ? 2 : 1);
}

Token tokenAt(QStringView text, qsizetype i) {
    const QChar c = text[i];
    const auto upTo = [&](TokenKind kind, qsizetype end) { return Token{kind, text.sliced(i, end - i)}; };
    if (const qsizetype end = endOfSpace(text, i); end > i)
        return upTo(TokenKind::Space, end);
    if (c == u'\'')
        return upTo(TokenKind::Text, endOfQuoted(text, i, c));
    if (c == u'"' || c == u'`')
        return upTo(TokenKind::Name, endOfQuoted(text, i, c));
    if (c == u'[')
        return upTo(TokenKind::Name, endOfQuoted(text, i, u']'));
    if (isAsciiDigit(c) || (c == u'.' && i + 1 < text.size() && isAsciiDigit(text[i + 1])))
        return upTo(TokenKind::Number, endOfNumber(text, i));
    if (!isWordStart(c))
        return upTo(TokenKind::Sign, endOfSign(text, i));
    qsizetype end = i;
    while (end < text.size() && isWordPart(text[end]))
        ++end;
    return upTo(TokenKind::Word, end);
}

/// Follows the words of a statement that creates a trigger or routine, whose body holds statements that
/// end in ";".
class BodyWatch {
public:
    void see(const Token& token) {
        if (words_++ == 0)
            creates_ = token.isWord(u"create");
        else if (words_ <= 5 && isOneOf(token, {u"trigger", u"procedure", u"function"}))
            hasBody_ = creates_;
        if (hasBody_)
            follow(token);
    }
    bool isInBody() const { return hasBody_ && depth_ > 0; }

private:
    static bool isOneOf(const Token& token, std::initializer_list<QStringView> words) {
        return std::any_of(words.begin(), words.end(), [&](QStringView word) { return token.isWord(word); });
    }
    /// "END IF" closes what was not counted, and the CASE of "END CASE" opens none.
    void follow(const Token& token) {
        const bool behindEnd = std::exchange(behindEnd_, token.isWord(u"end"));
        if (behindEnd_)
            --depth_;
        else if (token.isWord(u"begin") || (token.isWord(u"case") && !behindEnd))
            ++depth_;
        else if (behindEnd && isOneOf(token, {u"if", u"loop", u"while", u"repeat", u"for"}))
            ++depth_;
    }

    int words_ = 0;
    int depth_ = 0;
    bool creates_ = false;
    bool hasBody_ = false;
    bool behindEnd_ = false;
};

} // namespace

std::vector<Token> tokenize(QStringView statement) {
    std::vector<Token> tokens;
    for (qsizetype i = 0; i < statement.size(); i += tokens.back().text.size())
        tokens.push_back(tokenAt(statement, i));
    return tokens;
}

QString textOf(const Token& token) {
    QString text = token.text.sliced(1).toString();
    if (text.endsWith(u'\''))
        text.chop(1);
    return text.replace(QStringLiteral("''"), QStringLiteral("'"));
}

QString nameOf(const Token& token) {
    if (token.kind != TokenKind::Name)
        return token.text.toString();
    QString name = token.text.sliced(1).toString();
    name.chop(1);
    const QString sign = token.text.first(1).toString();
    return sign == u'[' ? name : name.replace(sign + sign, sign);
}

std::vector<QString> splitStatements(const QString& text) {
    std::vector<QString> statements;
    qsizetype start = 0;
    qsizetype at = 0;
    bool empty = true;
    BodyWatch body;
    const auto close = [&](qsizetype end) {
        if (!empty)
            statements.push_back(text.mid(start, end - start));
        empty = true;
        body = {};
    };
    const std::vector<Token> tokens = tokenize(text);
    for (const Token& token : tokens) {
        const bool ends = token.isSign(u";") && !body.isInBody();
        if (ends) {
            close(at);
            start = at + 1;
        } else if (token.kind != TokenKind::Space) {
            empty = false;
            body.see(token);
        }
        at += token.text.size();
    }
    close(text.size());
    return statements;
}

} // namespace zkp::ado::dialect
