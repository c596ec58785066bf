#pragma once

#include "ado/dialect/rewriter.h"
#include "ado/dialect/server_rewrite.h"

#include <optional>

namespace zkp::ado::dialect {

/// The steps that servers share: they know the names of their catalogue, have a collation for comparisons
/// with constants, and have to be told to sort groups.
class ServerRewriter : public Rewriter {
protected:
    ServerRewriter(const QString& statement, Dialect dialect, const ServerFacts& server);

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
    /// The sides of the LIKE at a place.
    Operand likened(std::size_t k) const;
    Operand pattern(std::size_t k) const;
    /// The constant whose case a LIKE has to ignore: the first of the pattern, or what is likened. Nothing
    /// where an operand tells by itself how it compares, or is a select.
    std::optional<std::size_t> casedConstant(const Operand& likened, const Operand& pattern) const;

private:
    bool endsOperand(std::size_t k) const;
    bool isSeam(std::size_t k) const;
    bool isPlain(const Operand& operand) const;
    void collateList(std::size_t first, const QString& collation);

    const ServerFacts& server_;
    StatementNames names_;
};

} // namespace zkp::ado::dialect
