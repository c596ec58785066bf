#include "ado/dialect/sqlite_rewrite.h"

#include "ado/dialect/tokenizer.h"

#include <QDate>

#include <algorithm>

namespace zkp::ado::dialect {

namespace {

bool isComparison(const Token& token) {
    static const QStringView signs[] = {u"=", u"==", u"<>", u"!=", u"<", u">", u"<=", u">="};
    return token.kind == TokenKind::Sign &&
           std::find(std::begin(signs), std::end(signs), token.text) != std::end(signs);
}

/// Signs and digits stand before all letters whatever their case, so a constant of nothing else
/// (a date, a code of digits) compares alike with case and without, and an index stays of use.
bool hasCase(QStringView constant) {
    return std::any_of(constant.begin(), constant.end(), [](QChar c) { return c.unicode() >= u'A'; });
}

/// Statements whose comparisons are answered now. What others hold is stored (views, triggers) and
/// must stay readable to every program.
bool isAnswered(const Token& first) {
    static const QStringView words[] = {u"select", u"with",    u"values",  u"insert",
                                        u"update", u"replace", u"explain", u"delete"};
    return std::any_of(std::begin(words), std::end(words),
                       [&](QStringView word) { return first.isWord(word); });
}

class SqliteRewriter {
public:
    explicit SqliteRewriter(const QString& statement)
        : statement_(statement)
        , tokens_(tokenize(statement_)) {
        for (std::size_t i = 0; i < tokens_.size(); ++i) {
            written_.push_back(tokens_[i].text.toString());
            const bool national =
                tokens_[i].isWord(u"n") && i + 1 < tokens_.size() && tokens_[i + 1].kind == TokenKind::Text;
            if (national)
                drop(i);
            else if (tokens_[i].kind != TokenKind::Space)
                solid_.push_back(i);
        }
    }

    QString rewrite() {
        if (solid_.empty())
            return statement_;
        const bool answered = isAnswered(at(0));
        for (std::size_t k = 0; k < solid_.size(); ++k) {
            if (at(k).isWord(u"convert"))
                rewriteConvert(k);
            else if (at(k).isWord(u"in") && answered)
                collateList(k);
            else if (at(k).kind == TokenKind::Text && answered)
                collateConstant(k);
            else if (at(k).isSign(u"/") && answered)
                divideAsReal(k);
        }
        // Behind what the constants got, since a limit closes a select.
        for (std::size_t k = 0; k < solid_.size(); ++k) {
            if (at(k).isWord(u"select"))
                rewriteTop(k);
        }
        return changed_ ? written_.join(QString()) : statement_;
    }

private:
    /// A token that is no space; an empty sign beyond the end.
    const Token& at(std::size_t k) const {
        static const Token none{TokenKind::Sign, {}};
        return k < solid_.size() ? tokens_[solid_[k]] : none;
    }
    QString& written(std::size_t k) {
        changed_ = true;
        return written_[static_cast<qsizetype>(solid_[k])];
    }
    void drop(std::size_t token) {
        changed_ = true;
        written_[static_cast<qsizetype>(token)].clear();
    }

    /// Whole amounts are stored as integers, whose quotient would lose the decimals that the servers'
    /// money types keep: what is divided by a sum or a subquery is made real. Other divisions stay.
    void divideAsReal(std::size_t k) {
        const bool bySum = at(k + 1).isWord(u"sum") && at(k + 2).isSign(u"(");
        const bool bySubquery = at(k + 1).isSign(u"(") && at(k + 2).isWord(u"select");
        if (bySum || bySubquery)
            written(k) = QStringLiteral("* 1.0 /");
    }

    /// Convert(Datetime,'mm/dd/yyyy',102) becomes 'yyyy-mm-dd'.
    void rewriteConvert(std::size_t k) {
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

    /// SELECT [DISTINCT] TOP n … becomes SELECT [DISTINCT] … LIMIT n.
    void rewriteTop(std::size_t k) {
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
            // SQLite takes a limit only behind the whole of a UNION.
            written(k) = QStringLiteral("SELECT * FROM (") + written(k);
            written(end - 1) += limit + u')';
        } else {
            written(end - 1) += limit;
        }
    }

    static bool isCompound(const Token& token) {
        return token.isWord(u"union") || token.isWord(u"except") || token.isWord(u"intersect");
    }

    /// The first token that no longer belongs to the select.
    std::size_t endOfSelect(std::size_t k, bool isMember) const {
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

    void collateConstant(std::size_t k) {
        const QStringView text = at(k).text;
        const bool isClosed =
            text.size() > 1 && text.endsWith(u'\''); // else the database's words shall show it as it came
        if (!isClosed || !hasCase(text) || at(k + 1).isWord(u"collate"))
            return;
        std::size_t before = k;
        while (before > 0 && at(before - 1).isSign(u"("))
            --before;
        const bool behindSign = before > 0 && isComparison(at(before - 1));
        const bool lower = k > 0 && at(k - 1).isWord(u"between");
        const bool upper = k > 2 && at(k - 1).isWord(u"and") && at(k - 3).isWord(u"between");
        if (behindSign || isComparison(at(k + 1)) || lower || upper)
            written(k) += QStringLiteral(" COLLATE ZKP_TEXT");
    }

    /// In "x IN ('a', 'b')" the left side's collation counts.
    void collateList(std::size_t k) {
        if (k == 0 || !at(k + 1).isSign(u"("))
            return;
        bool cased = false;
        for (std::size_t i = k + 2; at(i).kind == TokenKind::Text; i += 2) {
            cased = cased || hasCase(at(i).text);
            if (!at(i + 1).isSign(u","))
                break;
        }
        if (!cased)
            return;
        QString& first = written(at(k - 1).isWord(u"not") ? k - 1 : k);
        first = QStringLiteral("COLLATE ZKP_TEXT ") + first;
    }

    const QString& statement_;
    std::vector<Token> tokens_;
    QStringList written_;            ///< what each token becomes
    std::vector<std::size_t> solid_; ///< the tokens that are no space
    bool changed_ = false;
};

} // namespace

QString rewriteForSqlite(const QString& statement) {
    return SqliteRewriter(statement).rewrite();
}

} // namespace zkp::ado::dialect
