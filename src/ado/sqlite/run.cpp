#include "ado/sqlite/run.h"

#include "ado/dialect/tokenizer.h"
#include "ado/object_state.h"
#include "ado/sqlite/fetch.h"

namespace zkp::ado::sqlite {

namespace {

/// What writes rows was asked of the guard table by table; whatever else writes (REINDEX, some
/// pragmas) it is not asked about.
void checkWriting(const Database& database, const Statement& statement, const QString& sql) {
    if (!database.isReadOnly() || sqlite3_stmt_readonly(statement.handle()) != 0)
        return;
    for (const dialect::Token& token : dialect::tokenize(sql, dialect::Dialect::Sqlite)) {
        for (const QStringView word : {u"insert", u"update", u"delete", u"replace", u"with"}) {
            if (token.isWord(word))
                return;
        }
        if (token.kind != dialect::TokenKind::Space)
            throw Error(kErrDatabase, QStringLiteral("The connection is open for reading only"),
                        QStringLiteral("SQLite"));
    }
}

} // namespace

Result runStatement(const std::shared_ptr<Database>& database, const QString& sql,
                    const QVariantList& parameters, const RunOptions& options) {
    const Deadline deadline = Deadline::in(options.timeoutSeconds);
    Statement statement(database, sql, deadline);
    checkWriting(*database, statement, sql);
    statement.bind(parameters);
    if (statement.columnCount() > 0)
        return Fetch(database, statement, deadline, options).run();
    const Turn turn(*database, deadline);
    while (statement.step()) {
    }
    return {};
}

StatementStream::StatementStream(std::weak_ptr<Database> database, std::vector<QString> statements,
                                 QVariantList parameters, RunOptions options)
    : database_(std::move(database))
    , statements_(std::move(statements))
    , parameters_(std::move(parameters))
    , options_(std::move(options)) {}

std::optional<Result> StatementStream::next() {
    if (isAtEnd())
        return std::nullopt;
    const auto database = stillOpen(database_);
    const QString& sql = statements_[done_++];
    database->setLastStatement(sql);
    return runStatement(database, sql, parameters_, options_);
}

} // namespace zkp::ado::sqlite
