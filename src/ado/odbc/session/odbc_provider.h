#pragma once

#include "ado/odbc/session/session.h"
#include "ado/provider.h"

namespace zkp::ado::odbc {

/// Whatever server has an ODBC driver, as a provider.
class OdbcProvider final : public Provider {
public:
    OdbcProvider(const QString& connectionString, bool readOnly);

    Dialect dialect() const override { return session_->dialect(); }
    std::unique_ptr<ResultStream> start(const QString& statement, const RunOptions& options) override;
    QString lastStatementSent() const override;
    std::uint64_t statementsSent() const override;
    bool isLost() const override;
    void begin() override;
    void commit() override;
    void rollback() override;
    std::unique_ptr<BaseTable> baseTable(const QString& statement, const RunOptions& options) override;
    Result schema(int schema, const std::optional<QString>& table) override;

private:
    std::shared_ptr<Session> session_; ///< shared with the calls alone that run
};

} // namespace zkp::ado::odbc
