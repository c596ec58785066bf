#pragma once

#include "ado/provider.h"
#include "ado/sqlite/statement.h"

namespace zkp::ado::sqlite {

/// Runs one statement as SQLite understands it and fetches what it gives.
Result runStatement(const std::shared_ptr<Database>& database, const QString& sql,
                    const QVariantList& parameters, const RunOptions& options);

/// Runs the texts of a statement or stored procedure one by one, as the results are asked for.
class StatementStream final : public ResultStream {
public:
    StatementStream(std::weak_ptr<Database> database, std::vector<QString> statements,
                    QVariantList parameters, RunOptions options);
    std::optional<Result> next() override;
    bool isAtEnd() const override { return done_ == statements_.size(); }

private:
    std::weak_ptr<Database> database_;
    std::vector<QString> statements_;
    QVariantList parameters_;
    RunOptions options_;
    std::size_t done_ = 0;
};

} // namespace zkp::ado::sqlite
