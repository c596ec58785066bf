#pragma once

#include "ado/connection.h"
#include "base/error.h"
#include "base/scope_guard.h"

#include <optional>

namespace zkp {

/// What is noted while a load runs: the statement that asks for its records, and what failed first. A part
/// whose failure shows a box of its own and lets its caller go on says so here, and so the load knows it.
class LoadNotes {
public:
    /// A load begins: nothing has been asked for, and nothing has failed.
    void begin() { *this = {}; }

    void failed(const Error& error) {
        if (!failure_)
            failure_ = error;
    }
    /// What failed first.
    const std::optional<Error>& failure() const { return failure_; }

    /// Runs `ask`, which sends a statement to the database and may fail.
    template <class Ask>
    void asking(const QString& statement, const ado::ConnectionPtr& connection, Ask ask) {
        const ado::ConnectionPtr asked = connection; // whoever is told of the fetch may give another
        const std::uint64_t before = asked ? asked->StatementsSent() : 0;
        built_ = statement;
        sent_.clear();
        const ScopeGuard done([&] {
            if (asked && asked->StatementsSent() != before)
                sent_ = asked->LastStatementSent();
        });
        ask();
    }
    /// The statement as its builder, or the host, made it.
    const QString& built() const { return built_; }
    /// As the database received it; empty when it never did.
    const QString& sent() const { return sent_; }

private:
    QString built_;
    QString sent_;
    std::optional<Error> failure_;
};

} // namespace zkp
