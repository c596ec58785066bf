#include "ado/sqlite/run.h"

#include "ado/sqlite/fetch.h"

namespace zkp::ado::sqlite {

Result runStatement(const std::shared_ptr<Database>& database, const QString& sql,
                    const QVariantList& parameters, const RunOptions& options) {
    const Deadline deadline = Deadline::in(options.timeoutSeconds);
    Statement statement(database, sql, deadline);
    statement.bind(parameters);
    if (statement.columnCount() > 0)
        return Fetch(database, statement, deadline, options).run();
    const Turn turn(*database, deadline);
    while (statement.step()) {
    }
    return {};
}

StatementStream::StatementStream(std::shared_ptr<Database> database, std::vector<QString> statements,
                                 QVariantList parameters, RunOptions options)
    : database_(std::move(database))
    , statements_(std::move(statements))
    , parameters_(std::move(parameters))
    , options_(std::move(options)) {}

std::optional<Result> StatementStream::next() {
    if (done_ == statements_.size())
        return std::nullopt;
    const QString& sql = statements_[done_++];
    database_->setLastStatement(sql);
    return runStatement(database_, sql, parameters_, options_);
}

} // namespace zkp::ado::sqlite
