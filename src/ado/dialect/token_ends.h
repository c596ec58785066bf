#pragma once

#include "ado/dialect/dialect.h"

#include <QStringView>

namespace zkp::ado::dialect {

/// Where the pieces of a text end as the text's server reads them. Each is asked for a place and gives it
/// back when no such piece begins there; a piece without an end goes to the end of the text.
class TokenEnds {
public:
    TokenEnds(QStringView text, Dialect dialect)
        : text_(text)
        , dialect_(dialect) {}

    /// Blanks and comments.
    qsizetype ofSpace(qsizetype i) const;
    /// MariaDB's comments that are read as statement, depending on the server's version.
    qsizetype ofExecutableComment(qsizetype i) const;
    /// PostgreSQL's E'…', where "\" takes the next character's meaning away.
    qsizetype ofEscapedText(qsizetype i) const;
    /// PostgreSQL's $$…$$ and $tag$…$tag$.
    qsizetype ofDollarText(qsizetype i) const;
    qsizetype ofText(qsizetype i) const;
    qsizetype ofName(qsizetype i) const;
    qsizetype ofNumber(qsizetype i) const;
    qsizetype ofWord(qsizetype i) const;
    qsizetype ofSign(qsizetype i) const;

private:
    /// All that is no letter of ASCII counts as a letter for these, blanks too.
    bool readsBytes() const { return dialect_ == Dialect::PostgreSql || dialect_ == Dialect::MariaDb; }
    bool isWordStart(QChar c) const;
    bool isWordPart(QChar c) const;
    bool isBlank(QChar c) const { return c.isSpace() && (!readsBytes() || c.unicode() < 0x80); }
    bool isAt(qsizetype i, QChar c) const { return i < text_.size() && text_[i] == c; }
    bool isDigitAt(qsizetype i) const;
    bool isExecutable(qsizetype i) const;
    qsizetype ofLineComment(qsizetype i) const;
    qsizetype ofBlockComment(qsizetype i) const;
    qsizetype behindBlockComment(qsizetype i, int levels) const;
    qsizetype behindQuoted(qsizetype i, QChar close, bool doubles) const;
    qsizetype behindEscaped(qsizetype i) const;
    qsizetype nextPart(qsizetype i) const;
    qsizetype behindDigits(qsizetype i) const;
    qsizetype behindExponent(qsizetype i) const;
    qsizetype behindLooseNumber(qsizetype i) const;

    QStringView text_;
    Dialect dialect_;
};

} // namespace zkp::ado::dialect
