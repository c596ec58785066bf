#pragma once

#include "ado/dialect/server_rewriter.h"

namespace zkp::ado::dialect {

/// One statement in PostgreSQL's words.
class PostgresRewriter : public ServerRewriter {
public:
    PostgresRewriter(const QString& statement, const ServerFacts& server);

    QString rewrite();

private:
    void compareWithoutCase(const QString& collation);
    void rewriteName(std::size_t k);
    bool isOfTheServer(std::size_t k) const;

    // postgres_like.cpp
    void rewriteLike(std::size_t k, const QString& collation);
    void inSmallLetters(const Operand& operand, const QString& collation);

    // postgres_flags.cpp
    void rewriteFlag(std::size_t k);
    bool isComparedWithBit(std::size_t first, std::size_t last) const;
    bool isBitInCase(std::size_t first, std::size_t last) const;
    bool isCondition(std::size_t first, std::size_t last) const;
    bool isBetween(std::size_t k) const;

    // postgres_order.cpp
    void sortNullsFirst();
    void sortItems(std::size_t k);
    bool beginsFrame(std::size_t k) const;
};

} // namespace zkp::ado::dialect
