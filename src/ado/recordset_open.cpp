// Where records come from and go to: opening, running again, going on to the next result, closing.

#include "ado/object_state.h"
#include "ado/records/recordset_data.h"
#include "base/scope_guard.h"
#include "base/text.h"

#include <utility>

namespace zkp::ado {

namespace {

/// The statement of a source that is given as a table or a procedure.
QString statementOf(const QString& source, int options) {
    if (options == adCmdTable)
        return QStringLiteral("SELECT * FROM ") +
               (trimmed(source).startsWith(u'[') ? source : u'[' + source + u']');
    if (options == adCmdStoredProc)
        return QStringLiteral("exec ") + source;
    return source;
}

} // namespace

const std::shared_ptr<Provider>& Recordset::Data::session() const {
    if (connection->State() != adStateOpen || connection->provider() != provider.lock())
        throw objectClosed();
    return connection->provider();
}

void Recordset::Data::keepFurther(std::unique_ptr<ResultStream> stream) {
    further = stream->isAtEnd() ? nullptr : std::move(stream);
}

void Recordset::Open(const QString& source, const ConnectionPtr& connection, int, int lockType, int options) {
    if (d->records || d->opening)
        throw objectOpen();
    d->source = source;
    d->command.reset();
    d->lockType = lockType;
    openText(statementOf(source, options), connection, false);
}

void Recordset::Open(const CommandPtr& command, int, int lockType, int) {
    if (d->records || d->opening)
        throw objectOpen();
    if (!command)
        throw Error(kErrBadArgument, QStringLiteral("Arguments are of the wrong type: there is no command."));
    d->source = command->CommandText;
    d->command = command;
    d->lockType = lockType;
    openText(command->CommandText, command->ActiveConnection, true);
}

void Recordset::openText(const QString& text, const ConnectionPtr& connection, bool several) {
    if (!connection || connection->State() != adStateOpen)
        throw noConnection();
    // The host may let go of both while it is told of the progress.
    const auto self = weak_from_this().lock();
    const ConnectionPtr kept = connection;
    d->opening = true;
    const ScopeGuard opened([this] { d->opening = false; });
    d->text = text;
    // Results that an earlier run had left may be in the way of this one.
    d->further.reset();
    const std::weak_ptr<Provider> provider = kept->provider();
    auto stream = kept->start(text, several ? Connection::Statements::Several : Connection::Statements::One);
    auto first = stream->next();
    d->provider = provider;
    d->keepFurther(std::move(stream));
    adopt(first ? std::move(*first) : Result(), kept);
}

void Recordset::adopt(Result result, const ConnectionPtr& connection) {
    d->connection = connection;
    d->edit.reset();
    d->base.reset();
    d->keyed.reset();
    d->filter.clear();
    d->sort.clear();
    d->records = result.fields.empty() ? nullptr : std::make_shared<Records>(std::move(result));
    d->everyRow = true;
    d->rows.clear();
    d->position = 0;
    ++d->revision;
}

void Recordset::Close() {
    d->open();
    d->records.reset();
    d->further.reset();
    d->edit.reset();
    d->base.reset();
    d->keyed.reset();
    d->rows.clear();
    d->filter.clear();
    d->sort.clear();
    ++d->revision;
}

void Recordset::Requery() {
    d->open();
    if (d->opening)
        throw Error(kErrObjectOpen,
                    QStringLiteral("Operation is not allowed while the object is executing."));
    if (d->text.isEmpty())
        throw Error(kErrNotSupported, QStringLiteral("The recordset cannot be run again."));
    const auto self = weak_from_this().lock();
    const QString filter = d->filter;
    const QString sort = d->sort;
    openText(d->text, d->connection, d->command != nullptr);
    d->filter = filter;
    d->sort = sort;
    if (d->records && !(filter.isEmpty() && sort.isEmpty()))
        arrange();
}

RecordsetPtr Recordset::NextRecordset() {
    if (!d->further)
        return nullptr;
    d->session();
    const auto self = weak_from_this().lock();
    auto stream = std::move(d->further);
    const ConnectionPtr connection = d->connection;
    auto result = stream->next();
    if (!result)
        return nullptr;
    if (d->records)
        Close();
    auto next = std::make_shared<Recordset>();
    next->d->source = d->source;
    next->d->command = d->command;
    next->d->lockType = d->lockType;
    next->d->provider = d->provider;
    next->d->keepFurther(std::move(stream));
    next->adopt(std::move(*result), connection);
    return next;
}

} // namespace zkp::ado
