#include "ado/dialect/rewriter.h"

#include "ado/dialect/keywords.h"

#include <QDate>

#include <algorithm>

namespace zkp::ado::dialect {

namespace {

/// 8-4-4-4-12 hexadecimal digits.
bool isUniqueKey(QStringView text) {
    if (text.size() != 36)
        return false;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t c = text[i].toLower().unicode();
        const bool hexadecimal = (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f');
        const bool sign = i == 8 || i == 13 || i == 18 || i == 23;
        if (sign ? c != '-' : !hexadecimal)
            return false;
    }
    return true;
}

} // namespace

Rewriter::Rewriter(const QString& statement, Dialect dialect)
    : statement_(statement)
    , tokens_(tokenize(statement_, dialect)) {
    for (std::size_t i = 0; i < tokens_.size(); ++i) {
        written_.push_back(tokens_[i].text.toString());
        const bool national =
            tokens_[i].isWord(u"n") && i + 1 < tokens_.size() && tokens_[i + 1].kind == TokenKind::Text;
        if (national)
            drop(i);
        else if (tokens_[i].kind != TokenKind::Space)
            solid_.push_back(i);
    }
    survey();
}

const Token& Rewriter::at(std::size_t k) const {
    static const Token none{TokenKind::Sign, {}};
    return k < solid_.size() ? tokens_[solid_[k]] : none;
}

QString& Rewriter::written(std::size_t k) {
    changed_ = true;
    return written_[static_cast<qsizetype>(solid_[k])];
}

QString Rewriter::nowOf(QStringView part) const {
    QString now;
    for (std::size_t i = 0; i < tokens_.size(); ++i) {
        if (tokens_[i].text.begin() >= part.begin() && tokens_[i].text.end() <= part.end())
            now += written_[static_cast<qsizetype>(i)];
    }
    return now;
}

void Rewriter::drop(std::size_t token) {
    changed_ = true;
    written_[static_cast<qsizetype>(token)].clear();
}

/// The ">" of "->" gets a value out of another one.
bool Rewriter::isComparison(std::size_t k) const {
    const Token& token = at(k);
    static const QStringView signs[] = {u"=", u"==", u"<>", u"!=", u"<", u">", u"<=", u">="};
    return token.kind == TokenKind::Sign && !at(k - 1).isSign(u"-") &&
           std::find(std::begin(signs), std::end(signs), token.text) != std::end(signs);
}

void Rewriter::survey() {
    cases_.assign(count(), count());
    assigns_.assign(count(), false);
    std::vector<std::size_t> open;
    bool awaited = false;
    for (std::size_t k = 0; k < count(); ++k) {
        const Token& token = at(k);
        if (!open.empty() && at(open.back()).isWord(u"case"))
            cases_[k] = open.back();
        assigns_[k] = awaited && open.empty() && token.isSign(u"=");
        if (open.empty() && at(0).isWord(u"update"))
            awaited = token.isWord(u"set") || token.isSign(u",") ||
                      (awaited && !token.isWord(u"where") && !token.isSign(u"="));
        const int nests = nesting(token);
        if (nests > 0)
            open.push_back(k);
        else if (nests < 0 && !open.empty())
            open.pop_back();
    }
}

bool Rewriter::hasCase(QStringView constant) {
    const auto mayHaveCase = [](QChar c) { return c.isLetter() || c.unicode() >= 0x80; };
    return std::any_of(constant.begin(), constant.end(), mayHaveCase) &&
           !isUniqueKey(constant.sliced(1, std::max<qsizetype>(0, constant.size() - 2)));
}

bool Rewriter::isCasedConstant(std::size_t k) const {
    const QStringView text = at(k).text;
    // The database's words shall show a constant without an end as it came.
    const bool isClosed = text.size() > 1 && text.endsWith(u'\'');
    // Behind a type's name: interval '1 day'.
    const bool isTyped = at(k - 1).isName() && !isKeyword(at(k - 1));
    return at(k).kind == TokenKind::Text && isClosed && hasCase(text) && !isTyped &&
           !at(k + 1).isWord(u"collate");
}

int Rewriter::nesting(const Token& token) {
    return token.isWord(u"case") ? 1 : token.isWord(u"end") ? -1 : token.nesting();
}

bool Rewriter::isSimpleWhen(std::size_t k) const {
    if (!at(k).isWord(u"when"))
        return false;
    const std::size_t start = caseOf(k);
    return start < count() && !at(start + 1).isWord(u"when");
}

bool Rewriter::isAnswered() const {
    static const QStringView words[] = {u"select", u"with",    u"values",  u"insert",
                                        u"update", u"replace", u"explain", u"delete"};
    return std::any_of(std::begin(words), std::end(words),
                       [&](QStringView word) { return at(0).isWord(word); });
}

void Rewriter::datesToIso() {
    for (std::size_t k = 0; k < count(); ++k) {
        if (at(k).isWord(u"convert"))
            rewriteConvert(k);
    }
    survey();
}

void Rewriter::rewriteConvert(std::size_t k) {
    const bool fits = at(k + 1).isSign(u"(") && at(k + 2).isWord(u"datetime") && at(k + 3).isSign(u",") &&
                      at(k + 4).kind == TokenKind::Text && at(k + 5).isSign(u",") &&
                      at(k + 6).kind == TokenKind::Number && at(k + 7).isSign(u")");
    if (!fits)
        return;
    const QString text = textOf(at(k + 4)).trimmed();
    QDate date = QDate::fromString(text, QStringLiteral("M/d/yyyy"));
    if (!date.isValid())
        date = QDate::fromString(text, QStringLiteral("yyyy-MM-dd"));
    if (!date.isValid())
        return;
    for (std::size_t token = solid_[k] + 1; token <= solid_[k + 7]; ++token)
        drop(token);
    written(k) = u'\'' + date.toString(Qt::ISODate) + u'\'';
    solid_.erase(solid_.begin() + static_cast<std::ptrdiff_t>(k + 1),
                 solid_.begin() + static_cast<std::ptrdiff_t>(k + 8));
}

void Rewriter::divideAsReal(const QString& factor) {
    for (std::size_t k = 0; k < count(); ++k) {
        const bool bySum = at(k + 1).isWord(u"sum") && at(k + 2).isSign(u"(");
        const bool bySubquery = at(k + 1).isSign(u"(") && at(k + 2).isWord(u"select");
        if (at(k).isSign(u"/") && (bySum || bySubquery))
            written(k) = QStringLiteral("* ") + factor + QStringLiteral(" /");
    }
}

/// Behind what the other steps put at the end of a select, since a limit closes it.
void Rewriter::topToLimit(const QString& beforeMember, const QString& behindMember) {
    for (std::size_t k = 0; k < count(); ++k) {
        if (at(k).isWord(u"select"))
            rewriteTop(k, beforeMember, behindMember);
    }
}

void Rewriter::rewriteTop(std::size_t k, const QString& beforeMember, const QString& behindMember) {
    std::size_t top = k + 1;
    if (at(top).isWord(u"distinct") || at(top).isWord(u"all"))
        ++top;
    if (!at(top).isWord(u"top"))
        return;
    const bool bracketed = at(top + 1).isSign(u"(");
    const std::size_t number = top + (bracketed ? 2 : 1);
    const std::size_t behind = number + (bracketed ? 2 : 1);
    if (at(number).kind != TokenKind::Number || (bracketed && !at(number + 1).isSign(u")")) ||
        at(behind).isWord(u"percent"))
        return;
    const QString limit = QStringLiteral(" LIMIT %1").arg(at(number).text);
    for (std::size_t token = solid_[top]; behind < solid_.size() && token < solid_[behind]; ++token)
        drop(token);

    const bool isMember = k > 0 && (isCompound(at(k - 1)) || (at(k - 1).isWord(u"all") && k > 1));
    const std::size_t end = endOfSelect(behind, isMember);
    if (isMember || isCompound(at(end))) {
        // A limit stands only behind the whole of a UNION.
        written(k) = beforeMember + written(k);
        written(end - 1) += limit + behindMember;
    } else {
        written(end - 1) += limit;
    }
}

void Rewriter::orderBy(const QStringList& items, bool behindOrder) {
    std::size_t last = count();
    while (last > 0 && at(last - 1).isSign(u";"))
        --last;
    if (!items.isEmpty() && last > 0)
        written(last - 1) += (behindOrder ? QStringLiteral(", ") : QStringLiteral(" ORDER BY ")) +
                             items.join(QStringLiteral(", "));
}

std::size_t Rewriter::endOfSelect(std::size_t k, bool isMember) const {
    int depth = 0;
    for (; k < solid_.size(); ++k) {
        const Token& token = at(k);
        if (token.isSign(u"("))
            ++depth;
        else if (token.isSign(u")") && --depth < 0)
            return k;
        const bool ends = isCompound(token) || token.isSign(u";") || (isMember && token.isWord(u"order"));
        if (depth == 0 && ends)
            return k;
    }
    return k;
}

bool Rewriter::isCompared(std::size_t k) const {
    std::size_t before = k;
    while (before > 0 && at(before - 1).isSign(u"("))
        --before;
    const bool behindSign = before > 0 && compares(before - 1);
    const bool lower = k > 0 && at(k - 1).isWord(u"between");
    const bool upper = k > 2 && at(k - 1).isWord(u"and") && at(k - 3).isWord(u"between");
    const bool inCase = before > 0 && (isSimpleWhen(before - 1) || at(before - 1).isWord(u"case"));
    return behindSign || compares(k + 1) || lower || upper || inCase;
}

void Rewriter::collateConstants(const QString& collation) {
    for (std::size_t k = 0; k < count(); ++k) {
        if (isCasedConstant(k) && isCompared(k))
            written(k) += QStringLiteral(" COLLATE ") + collation;
    }
}

} // namespace zkp::ado::dialect
