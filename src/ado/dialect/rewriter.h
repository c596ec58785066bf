#pragma once

#include "ado/dialect/tokenizer.h"

#include <QStringList>

namespace zkp::ado::dialect {

/// A statement cut into tokens, each of which can be written anew, and the steps that servers share.
/// Places count the tokens that are no space. The statement must outlive it.
class Rewriter {
public:
    Rewriter(const QString& statement, Dialect dialect);

    /// The statement as it was when no step changed anything.
    QString text() const { return changed_ ? written_.join(QString()) : statement_; }
    const std::vector<Token>& tokens() const { return tokens_; }

protected:
    std::size_t count() const { return solid_.size(); }
    /// An empty sign beyond both ends.
    const Token& at(std::size_t k) const;
    const QString& now(std::size_t k) const { return written_[static_cast<qsizetype>(solid_[k])]; }
    QString& written(std::size_t k);
    /// What a part of the statement, from token to token, has become.
    QString nowOf(QStringView part) const;

    /// Whether the token at a place compares what stands on its two sides.
    bool compares(std::size_t k) const { return isComparison(k) && !assigns(k); }
    /// Whether it is the "=" by which an UPDATE gives a column its value.
    bool assigns(std::size_t k) const { return k < count() && assigns_[k]; }
    static bool isCompound(const Token& token) {
        return token.isWord(u"union") || token.isWord(u"except") || token.isWord(u"intersect");
    }
    /// A constant of nothing but signs and digits (a date, a code) compares alike with case and without:
    /// an index stays of use. So does one that can be a key of a server's own making.
    static bool hasCase(QStringView constant);
    /// Whether a text constant that has a case stands at a place, without a collation or type of its own.
    bool isCasedConstant(std::size_t k) const;
    /// Whether a constant stands where it is compared.
    bool isCompared(std::size_t k) const;
    /// 1 for a bracket or CASE that opens, -1 for what closes one.
    static int nesting(const Token& token);
    /// The CASE that a WHEN belongs to, and whether the WHEN holds a value that the CASE compares: it holds
    /// a condition where nothing stands between "case" and the first "when".
    std::size_t caseOf(std::size_t when) const { return when < count() ? cases_[when] : count(); }
    bool isSimpleWhen(std::size_t k) const;
    /// Statements whose comparisons are answered now. What others hold is stored (views, triggers) and
    /// must stay readable to every program.
    bool isAnswered() const;

    /// Convert(Datetime,'mm/dd/yyyy',102) becomes 'yyyy-mm-dd'.
    void datesToIso();
    /// Whole amounts may be stored as integers, whose quotient would lose the decimals that a money type
    /// keeps: what is divided by a sum or a subquery is made real. Other divisions stay.
    void divideAsReal(const QString& factor);
    /// SELECT [DISTINCT] TOP n … becomes SELECT [DISTINCT] … LIMIT n. A member of a union with a limit
    /// gets the texts around it.
    void topToLimit(const QString& beforeMember, const QString& behindMember);
    /// Lets comparisons of a text constant ignore case: `collation` goes behind the constant.
    void collateConstants(const QString& collation);
    /// Adds items to the end of the statement: behind an order that it has, or as its order.
    void orderBy(const QStringList& items, bool behindOrder);
    /// The place behind the last token of the select that a place is in.
    std::size_t endOfSelect(std::size_t k, bool isMember) const;

private:
    /// Works out in one walk what is asked of each place, for the places as they are now.
    void survey();
    bool isComparison(std::size_t k) const;
    void rewriteConvert(std::size_t k);
    void rewriteTop(std::size_t k, const QString& beforeMember, const QString& behindMember);
    void drop(std::size_t token);

    const QString& statement_;
    std::vector<Token> tokens_;
    QStringList written_;            ///< what each token becomes
    std::vector<std::size_t> solid_; ///< the tokens that are no space
    std::vector<std::size_t> cases_; ///< the CASE that each place is in, or their count
    std::vector<bool> assigns_;
    bool changed_ = false;
};

} // namespace zkp::ado::dialect
