#pragma once

#include "ado/provider.h"
#include "ado/sqlite/database.h"

namespace zkp::ado::sqlite {

/// SQLite files as a provider.
class SqliteProvider final : public Provider {
public:
    SqliteProvider(const QString& file, bool readOnly);

    dialect::Dialect dialect() const override { return dialect::Dialect::Sqlite; }
    std::unique_ptr<ResultStream> start(const QString& statement, const RunOptions& options) override;
    QString lastStatementSent() const override;
    std::uint64_t statementsSent() const override;
    void begin() override;
    void commit() override;
    void rollback() override;
    std::unique_ptr<BaseTable> baseTable(const QString& statement, const RunOptions& options) override;
    Result schema(int schema, const std::optional<QString>& table) override;

private:
    std::shared_ptr<Database> database_; ///< shared with the calls alone that run
};

} // namespace zkp::ado::sqlite
