#include "ado/connection.h"

#include "ado/dialect/split_statements.h"
#include "ado/object_state.h"
#include "ado/odbc/session/odbc_provider.h"
#include "ado/recordset.h"
#include "ado/sqlite/sqlite_provider.h"
#include "ado/text_stream.h"
#include "base/text.h"

namespace zkp::ado {

struct Connection::Data {
    QString connectionString;
    int commandTimeout = 30;
    int mode = adModeUnknown;
    std::shared_ptr<Provider> provider; ///< shared with the calls alone that run
    FetchProgress progress;
    Procedures procedures;
};

namespace {

std::shared_ptr<Provider> openProvider(const QString& connectionString, int mode) {
    const QString scheme = QStringLiteral("sqlite:");
    if (connectionString.startsWith(scheme, Qt::CaseInsensitive))
        return std::make_shared<sqlite::SqliteProvider>(connectionString.mid(scheme.size()),
                                                        mode == adModeRead);
    if (!connectionString.contains(u'='))
        throw Error(kErrDatabase,
                    QStringLiteral("No provider for the connection string '%1'").arg(connectionString));
    return std::make_shared<odbc::OdbcProvider>(connectionString, mode == adModeRead);
}

/// Nothing for a null, which stands for every name.
std::optional<QString> restriction(const QVariantList& restrictions, qsizetype place) {
    const QVariant value = restrictions.value(place);
    return value.isValid() && !value.isNull() ? std::optional(value.toString()) : std::nullopt;
}

} // namespace

Connection::Connection()
    : d(std::make_unique<Data>()) {}
Connection::~Connection() = default;

void Connection::Open(const QString& connectionString) {
    if (d->provider && !d->provider->isLost())
        throw objectOpen();
    d->provider.reset();
    const QString text = connectionString.isEmpty() ? d->connectionString : connectionString;
    d->provider = openProvider(text, d->mode);
    d->connectionString = text;
}

void Connection::Close() {
    if (!d->provider)
        throw objectClosed();
    d->provider.reset();
}

int Connection::State() const {
    return d->provider ? adStateOpen : adStateClosed;
}
QString Connection::ConnectionString() const {
    return d->connectionString;
}
void Connection::setConnectionString(const QString& text) {
    d->connectionString = text;
}
int Connection::CommandTimeout() const {
    return d->commandTimeout;
}
int Connection::Mode() const {
    return d->mode;
}

void Connection::setCommandTimeout(int seconds) {
    if (seconds < 0)
        throw Error(kErrBadArgument, QStringLiteral("CommandTimeout cannot be negative."));
    d->commandTimeout = seconds;
}

void Connection::setMode(int mode) {
    if (d->provider)
        throw objectOpen();
    d->mode = mode;
}

RecordsetPtr Connection::Execute(const QString& statement) {
    auto recordset = std::make_shared<Recordset>();
    recordset->Open(statement, shared_from_this());
    return recordset;
}

void Connection::BeginTrans() {
    provider()->begin();
}
void Connection::CommitTrans() {
    provider()->commit();
}
void Connection::RollbackTrans() {
    provider()->rollback();
}

RecordsetPtr Connection::OpenSchema(int schema, const QVariantList& restrictions) {
    auto recordset = std::make_shared<Recordset>();
    recordset->adopt(provider()->schema(schema, restriction(restrictions, 2)), shared_from_this());
    return recordset;
}

void Connection::setFetchProgress(FetchProgress callback) {
    d->progress = std::move(callback);
}

void Connection::registerProcedure(const QString& name, Procedure function) {
    d->procedures.insert(nameKey(name), std::move(function));
}

QString Connection::LastStatementSent() const {
    return d->provider ? d->provider->lastStatementSent() : QString();
}

std::uint64_t Connection::StatementsSent() const {
    return d->provider ? d->provider->statementsSent() : 0;
}

const std::shared_ptr<Provider>& Connection::provider() const {
    if (!d->provider)
        throw noConnection();
    return d->provider;
}

std::unique_ptr<ResultStream> Connection::start(const QString& text, Statements statements) const {
    std::vector<QString> parts = dialect::splitStatements(text, provider()->dialect());
    if (parts.empty())
        throw Error(kErrBadStatement, QStringLiteral("Command text was not set for the command object."));
    if (statements == Statements::One && parts.size() > 1)
        throw Error(kErrBadStatement,
                    QStringLiteral("Text found after the end of the statement: %1").arg(parts[1].trimmed()));
    return std::make_unique<TextStream>(d->provider, d->procedures, std::move(parts),
                                        RunOptions{d->commandTimeout, d->progress});
}

} // namespace zkp::ado
