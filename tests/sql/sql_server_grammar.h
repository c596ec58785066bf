#pragma once

#include "ado/dialect/tokenizer.h"

#include <QStringList>

#include <stdexcept>

namespace zkp::sqlcases {

/// Why SQL Server would not take a statement.
struct Refusal : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Reads a statement as SQL Server's grammar has it, as far as the report builders go: SELECT with DISTINCT,
/// TOP, joins in brackets, subqueries, CASE, Convert, Group By and Order By, and EXEC with constants. Beyond
/// the grammar it holds what SQL Server refuses before it looks at the tables: conditions that are mere
/// values, orders that a DISTINCT does not select, items that are not grouped, tables named twice.
class SqlServerGrammar {
public:
    /// Refusal for a statement that it would not take.
    static void check(const QString& statement);

private:
    struct Item {
        QString text;  ///< without blanks, brackets and case
        QString alias; ///< alike; empty for none
        QStringList columns;
        bool aggregate = false;
    };

    explicit SqlServerGrammar(const QString& statement);

    [[noreturn]] static void refuse(const QString& why) { throw Refusal(why.toStdString()); }

    bool ends() const { return at_ == tokens_.size(); }
    const ado::dialect::Token& now() const;
    bool isWord(QStringView word) const { return now().isWord(word); }
    bool takeWord(QStringView word);
    bool takeSign(QStringView sign);
    void needWord(const char* word);
    void needSign(const char* sign);
    bool isName() const;
    QString name();
    QString columnName();
    QString textSince(std::size_t start) const;

    void exec();
    void select();
    void items(QList<Item>& list);
    Item item();
    QString alias();
    void from();
    void joined(QStringList& names);
    void table(QStringList& names);
    void groupBy(const QList<Item>& list);
    void orderBy(const QList<Item>& list, bool distinct);
    void condition();
    void conjunction();
    void negation();
    void predicate();
    bool bracketedCondition();
    void comparison();
    void expression();
    void term();
    void factor();
    void caseExpression();
    void convert();
    void call(const QString& function);
    void bracketed();

    std::vector<ado::dialect::Token> tokens_;
    std::size_t at_ = 0;
    QStringList columns_; ///< read outside aggregates in the item at hand
    bool aggregate_ = false;
    bool inAggregate_ = false;
};

} // namespace zkp::sqlcases
