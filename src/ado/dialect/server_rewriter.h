#pragma once

#include "ado/dialect/rewriter.h"
#include "ado/dialect/server_statement.h"

namespace zkp::ado::dialect {

/// The steps that servers share: they know the names of their catalogue, have a collation for comparisons
/// with constants, and have to be told to sort groups.
class ServerRewriter : public Rewriter {
protected:
    ServerRewriter(const QString& statement, Dialect dialect, const ServerFacts& server);

    const ServerFacts& server() const { return server_; }
    const StatementNames& names() const { return names_; }
    /// Empty when nothing that has a case is compared, which is not asked of the server then: asking can be
    /// a round trip.
    QString collation() const;
    /// Lets comparisons with constants, and with lists of them, ignore case.
    void collateComparisons(const QString& collation);
    /// Sorts by the items of the "group by", with a text behind each.
    void sortGroups(const QString& behindItem);

    /// Places from `first` to the one ahead of `end`.
    struct Operand {
        std::size_t first;
        std::size_t end;
    };
    // server_like.cpp
    /// The sides of the LIKE at a place; empty where it isn't sure how far one goes, so that nothing is put
    /// around it.
    Operand likened(std::size_t k) const;
    Operand pattern(std::size_t k) const;
    bool isConstant(const Operand& operand) const;
    /// Whether it doesn't tell by itself how it compares.
    bool isPlain(const Operand& operand) const;
    /// Whether a constant in it has letters.
    bool hasLetters(const Operand& operand) const;
    /// Lets a "\" in a pattern stand for itself, as it does on SQL Server and SQLite.
    void takeBackslashes(const Operand& pattern);

private:
    bool isWordOfLanguage(std::size_t k) const;
    bool endsOperand(std::size_t k) const;
    bool isSeam(std::size_t k) const;
    bool isJoin(std::size_t k) const;
    void collateList(std::size_t first, const QString& collation);

    const ServerFacts& server_;
    StatementNames names_;
};

} // namespace zkp::ado::dialect
