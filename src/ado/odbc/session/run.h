#pragma once

#include "ado/odbc/session/statement.h"
#include "ado/provider.h"

#include <QStringList>

namespace zkp::ado::odbc {

/// The results of one statement, in the server's words.
class StatementStream final : public ResultStream {
public:
    /// `names` are the output names as the statement writes them, for servers that fold them; empty
    /// for those as the server has them.
    StatementStream(std::weak_ptr<Session> session, QString sql, QStringList names, RunOptions options);
    std::optional<Result> next() override;
    bool isAtEnd() const override { return started_ && !statement_ && !failure_; }

private:
    void start(Session& session);
    std::optional<Result> takeRecords();
    void goOn();

    std::weak_ptr<Session> session_;
    QString sql_;
    QStringList names_;
    RunOptions options_;
    bool started_ = false;
    std::unique_ptr<Statement> statement_; ///< while further results may come
    std::optional<Error> failure_;         ///< told when the result behind the one before is asked for
};

/// Runs a statement of the provider's own, and gives its first result.
Result runStatement(Session& session, const QString& sql, const RunOptions& options = {});

} // namespace zkp::ado::odbc
