#include "ado/dialect/token_ends.h"

#include <QSet>

#include <limits>

namespace zkp::ado::dialect {

namespace {

bool isAsciiDigit(QChar c) {
    return c >= u'0' && c <= u'9';
}
bool isHexDigit(QChar c) {
    return isAsciiDigit(c) || (c >= u'a' && c <= u'f') || (c >= u'A' && c <= u'F');
}
bool isLetterE(QChar c) {
    return c == u'e' || c == u'E';
}

} // namespace

bool TokenEnds::isWordStart(QChar c) const {
    if (!readsBytes())
        return c.isLetter() || c == u'_' || c == u'@' || c == u'#' || c.isSurrogate();
    return c.unicode() >= 0x80 || c.isLetter() || c == u'_' || (c == u'$' && dialect_ == Dialect::MariaDb);
}

bool TokenEnds::isWordPart(QChar c) const {
    return isWordStart(c) || c.isDigit() || c == u'$';
}

bool TokenEnds::isDigitAt(qsizetype i) const {
    return i < text_.size() && isAsciiDigit(text_[i]);
}

qsizetype TokenEnds::ofSpace(qsizetype i) const {
    while (i < text_.size()) {
        qsizetype end = isBlank(text_[i]) ? i + 1 : ofLineComment(i);
        if (end == i)
            end = ofBlockComment(i);
        if (end == i)
            break;
        i = end;
    }
    return i;
}

/// For MariaDB two signs that no blank follows are a minus of a minus.
qsizetype TokenEnds::ofLineComment(qsizetype i) const {
    const bool isMariaDb = dialect_ == Dialect::MariaDb;
    bool opens = isAt(i, u'-') && isAt(i + 1, u'-');
    if (opens && isMariaDb && i + 2 < text_.size())
        opens = text_[i + 2] <= u' ' || text_[i + 2] == QChar(0x7f);
    if (!opens && !(isMariaDb && isAt(i, u'#')))
        return i;
    const auto isLineEnd = [this](QChar c) {
        return c == u'\n' || (c == u'\r' && dialect_ == Dialect::PostgreSql);
    };
    while (i < text_.size() && !isLineEnd(text_[i]))
        ++i;
    return i < text_.size() ? i + 1 : i;
}

qsizetype TokenEnds::ofBlockComment(qsizetype i) const {
    const bool nests = dialect_ == Dialect::PostgreSql || dialect_ == Dialect::SqlServer;
    const bool opens = isAt(i, u'/') && isAt(i + 1, u'*') && !isExecutable(i);
    return opens ? behindBlockComment(i, nests ? std::numeric_limits<int>::max() : 1) : i;
}

bool TokenEnds::isExecutable(qsizetype i) const {
    const QStringView rest = text_.sliced(i);
    return dialect_ == Dialect::MariaDb && (rest.startsWith(u"/*!") || rest.startsWith(u"/*M!"));
}

/// Comments of the plain form inside are comments, further ones of this form open nothing.
qsizetype TokenEnds::ofExecutableComment(qsizetype i) const {
    return isExecutable(i) ? behindBlockComment(i, 2) : i;
}

/// Comments open within each other up to a number of levels.
qsizetype TokenEnds::behindBlockComment(qsizetype i, int levels) const {
    int depth = 0;
    while (i + 1 < text_.size()) {
        const bool opens =
            text_[i] == u'/' && text_[i + 1] == u'*' && depth < levels && (depth == 0 || !isExecutable(i));
        const bool closes = text_[i] == u'*' && text_[i + 1] == u'/';
        depth += opens ? 1 : closes ? -1 : 0;
        i += opens || closes ? 2 : 1;
        if (depth == 0)
            return i;
    }
    return text_.size();
}

qsizetype TokenEnds::behindQuoted(qsizetype i, QChar close, bool doubles) const {
    for (++i; i < text_.size(); ++i) {
        if (text_[i] != close)
            continue;
        if (!doubles || !isAt(i + 1, close))
            return i + 1;
        ++i;
    }
    return text_.size();
}

qsizetype TokenEnds::ofText(qsizetype i) const {
    return text_[i] == u'\'' ? behindQuoted(i, u'\'', true) : i;
}

qsizetype TokenEnds::ofName(qsizetype i) const {
    const QChar open = text_[i];
    if (open == u'[')
        return behindQuoted(i, u']', dialect_ == Dialect::SqlServer);
    return open == u'"' || open == u'`' ? behindQuoted(i, open, true) : i;
}

qsizetype TokenEnds::ofEscapedText(qsizetype i) const {
    if (dialect_ != Dialect::PostgreSql || !isLetterE(text_[i]) || !isAt(i + 1, u'\''))
        return i;
    qsizetype end = behindEscaped(i + 1);
    for (qsizetype next = nextPart(end); next > end; next = nextPart(end))
        end = behindEscaped(next);
    return end;
}

qsizetype TokenEnds::behindEscaped(qsizetype i) const {
    for (++i; i < text_.size(); ++i) {
        if (text_[i] == u'\\')
            ++i;
        else if (text_[i] == u'\'' && !isAt(i + 1, u'\''))
            return i + 1;
        else if (text_[i] == u'\'')
            ++i;
    }
    return text_.size();
}

/// A constant goes on behind a line end, with nothing but blanks and comments of one line before it.
qsizetype TokenEnds::nextPart(qsizetype i) const {
    bool newLine = false;
    qsizetype at = i;
    while (at < text_.size()) {
        const qsizetype end = isBlank(text_[at]) ? at + 1 : ofLineComment(at);
        if (end == at)
            break;
        newLine = newLine || text_[end - 1] == u'\n' || text_[end - 1] == u'\r';
        at = end;
    }
    return newLine && isAt(at, u'\'') ? at : i;
}

qsizetype TokenEnds::ofDollarText(qsizetype i) const {
    if (dialect_ != Dialect::PostgreSql || text_[i] != u'$')
        return i;
    qsizetype behind = i + 1;
    if (!isDigitAt(behind)) {
        while (behind < text_.size() && text_[behind] != u'$' && isWordPart(text_[behind]))
            ++behind;
    }
    if (!isAt(behind, u'$'))
        return i;
    const QStringView sign = text_.sliced(i, behind + 1 - i);
    const qsizetype end = text_.indexOf(sign, behind + 1);
    return end < 0 ? text_.size() : end + sign.size();
}

/// What follows a number without a blank begins anew; on MariaDB a name may begin with digits.
qsizetype TokenEnds::ofNumber(qsizetype i) const {
    if (!isDigitAt(i) && !(text_[i] == u'.' && isDigitAt(i + 1)))
        return i;
    if (dialect_ == Dialect::Sqlite)
        return behindLooseNumber(i);
    const bool isHex =
        dialect_ != Dialect::PostgreSql && text_[i] == u'0' && (isAt(i + 1, u'x') || isAt(i + 1, u'X'));
    qsizetype end = isHex ? i + 2 : behindDigits(i);
    while (isHex && end < text_.size() && isHexDigit(text_[end]))
        ++end;
    const qsizetype whole = end;
    if (!isHex)
        end = behindExponent(isAt(end, u'.') ? behindDigits(end + 1) : end);
    const bool isName =
        dialect_ == Dialect::MariaDb && end == whole && end < text_.size() && isWordPart(text_[end]);
    return isName ? i : end;
}

qsizetype TokenEnds::behindDigits(qsizetype i) const {
    while (isDigitAt(i))
        ++i;
    return i;
}

/// SQL Server takes an exponent without digits.
qsizetype TokenEnds::behindExponent(qsizetype i) const {
    if (i >= text_.size() || !isLetterE(text_[i]))
        return i;
    const qsizetype digits = isAt(i + 1, u'+') || isAt(i + 1, u'-') ? i + 2 : i + 1;
    if (isDigitAt(digits))
        return behindDigits(digits);
    return dialect_ == Dialect::SqlServer ? i + 1 : i;
}

qsizetype TokenEnds::behindLooseNumber(qsizetype i) const {
    while (i < text_.size() && (isWordPart(text_[i]) || text_[i] == u'.')) {
        const bool exponent = isLetterE(text_[i]) && (isAt(i + 1, u'-') || isAt(i + 1, u'+'));
        i += exponent ? 2 : 1;
    }
    return i;
}

qsizetype TokenEnds::ofWord(qsizetype i) const {
    const bool isMariaDb = dialect_ == Dialect::MariaDb;
    qsizetype end = i;
    while (isMariaDb && isAt(end, u'@'))
        ++end;
    if (end == i && !isWordStart(text_[i]) && !(isMariaDb && isDigitAt(i)))
        return i;
    while (end < text_.size() && isWordPart(text_[end]))
        ++end;
    return end;
}

qsizetype TokenEnds::ofSign(qsizetype i) const {
    static const QSet<QStringView> pairs{u"<>", u"<=", u">=", u"!=", u"==", u"||", u"<<", u">>"};
    const bool pair = i + 1 < text_.size() && pairs.contains(text_.sliced(i, 2));
    return i + (pair ? 2 : 1);
}

} // namespace zkp::ado::dialect
