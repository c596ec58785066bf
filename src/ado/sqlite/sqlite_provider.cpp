#include "ado/sqlite/sqlite_provider.h"

#include "ado/dialect/exec_call.h"
#include "ado/dialect/split_statements.h"
#include "ado/dialect/sqlite_rewrite.h"
#include "ado/sqlite/run.h"
#include "ado/sqlite/schema.h"
#include "ado/sqlite/sqlite_base_table.h"

namespace zkp::ado::sqlite {

namespace {

/// The statement that the database keeps under a procedure's name.
QString procedureText(const std::shared_ptr<Database>& database, const QString& name) {
    const Error missing(kErrBadStatement, QStringLiteral("Could not find stored procedure '%1'.").arg(name),
                        QStringLiteral("SQLite"));
    const Turn turn(*database);
    try {
        Statement query(database, QStringLiteral("SELECT statement FROM procedures "
                                                 "WHERE name = ?1 COLLATE ZKP_TEXT"));
        query.bind({name});
        if (query.step())
            return query.text(0);
    } catch (const Error& error) {
        if (error.number() != kErrBadStatement)
            throw;
    }
    throw missing;
}

} // namespace

SqliteProvider::SqliteProvider(const QString& file, bool readOnly)
    : database_(std::make_shared<Database>(file, readOnly)) {}

std::unique_ptr<ResultStream> SqliteProvider::start(const QString& statement, const RunOptions& options) {
    QVariantList parameters;
    std::vector<QString> texts{statement};
    if (const auto call = dialect::parseExec(statement, dialect())) {
        parameters = call->arguments;
        texts = dialect::splitStatements(procedureText(database_, call->name), dialect());
    }
    for (QString& text : texts)
        text = dialect::rewriteForSqlite(text);
    return std::make_unique<StatementStream>(database_, std::move(texts), std::move(parameters), options);
}

QString SqliteProvider::lastStatementSent() const {
    return database_->lastStatement();
}
std::uint64_t SqliteProvider::statementsSent() const {
    return database_->statementsSent();
}

void SqliteProvider::begin() {
    database_->execute("BEGIN");
}
void SqliteProvider::commit() {
    database_->execute("COMMIT");
}
void SqliteProvider::rollback() {
    database_->execute("ROLLBACK");
}

std::unique_ptr<BaseTable> SqliteProvider::baseTable(const QString& statement, const RunOptions& options) {
    return openBaseTable(database_, statement, options);
}

Result SqliteProvider::schema(int schema, const std::optional<QString>& table) {
    return readSchema(database_, schema, table);
}

} // namespace zkp::ado::sqlite
