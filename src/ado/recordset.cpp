#include "ado/recordset_data.h"

#include "ado/filter_match.h"
#include "ado/sort_order.h"
#include "base/error.h"
#include "base/scope_guard.h"
#include "base/text.h"

#include <utility>

namespace zkp::ado {

namespace {

Error noCurrentRecord() {
    return Error(kErrNoCurrentRecord,
                 QStringLiteral("Either BOF or EOF is True, or the current record has been "
                                "deleted. Requested operation requires a current record."));
}

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

Records& Recordset::Data::open() const {
    if (!records)
        throw Error(kErrObjectClosed, QStringLiteral("Operation is not allowed when the object is closed."));
    return *records;
}

std::int64_t Recordset::Data::count() const {
    return static_cast<std::int64_t>(everyRow ? open().table.rows : rows.size());
}

std::uint32_t Recordset::Data::rowAt(std::int64_t place) const {
    return everyRow ? static_cast<std::uint32_t>(place) : rows[static_cast<std::size_t>(place)];
}

std::uint32_t Recordset::Data::currentRow() const {
    open();
    if (!atRecord())
        throw noCurrentRecord();
    return rowAt(position);
}

Recordset::Recordset()
    : d(std::make_unique<Data>()) {}
Recordset::~Recordset() = default;

void Recordset::Open(const QString& source, const ConnectionPtr& connection, int, int lockType, int options) {
    if (d->records || d->opening)
        throw Error(kErrObjectOpen, QStringLiteral("Operation is not allowed when the object is open."));
    d->source = source;
    d->command.reset();
    d->lockType = lockType;
    openText(statementOf(source, options), connection, false);
}

void Recordset::Open(const CommandPtr& command, int, int lockType, int) {
    if (d->records || d->opening)
        throw Error(kErrObjectOpen, QStringLiteral("Operation is not allowed when the object is open."));
    if (!command)
        throw Error(kErrBadArgument, QStringLiteral("Arguments are of the wrong type: there is no command."));
    d->source = command->CommandText;
    d->command = command;
    d->lockType = lockType;
    openText(command->CommandText, command->ActiveConnection, true);
}

void Recordset::openText(const QString& text, const ConnectionPtr& connection, bool several) {
    if (!connection || connection->State() != adStateOpen)
        throw Error(kErrNoConnection,
                    QStringLiteral("The connection cannot be used to perform this operation. "
                                   "It is either closed or invalid in this context."));
    // The host may let go of both while it is told of the progress.
    const auto self = weak_from_this().lock();
    const ConnectionPtr kept = connection;
    d->opening = true;
    const ScopeGuard opened([this] { d->opening = false; });
    d->text = text;
    auto stream = kept->start(text, several ? Connection::Statements::Several : Connection::Statements::One);
    auto first = stream->next();
    d->further = std::move(stream);
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

int Recordset::State() const {
    return d->records ? adStateOpen : adStateClosed;
}

bool Recordset::Bof() const {
    return d->count() == 0 || d->position < 0;
}
bool Recordset::Eof() const {
    return d->position >= d->count();
}

/// Leaving a record writes what was set in it.
void Recordset::moveTo(std::int64_t position) {
    if (d->edit)
        Update();
    d->position = position;
}

void Recordset::MoveFirst() {
    if (d->count() == 0)
        throw noCurrentRecord();
    moveTo(0);
}

void Recordset::MoveLast() {
    if (d->count() == 0)
        throw noCurrentRecord();
    moveTo(d->count() - 1);
}

void Recordset::MoveNext() {
    if (Eof())
        throw noCurrentRecord();
    moveTo(d->position + 1);
}

void Recordset::MovePrevious() {
    if (Bof())
        throw noCurrentRecord();
    moveTo(d->position - 1);
}

std::int64_t Recordset::RecordCount() const {
    return d->count();
}

std::int64_t Recordset::AbsolutePosition() const {
    if (d->position < 0)
        return -2;
    return Eof() ? -3 : d->position + 1;
}

void Recordset::setAbsolutePosition(std::int64_t position) {
    if (position < 1 || position > d->count())
        throw Error(kErrBadArgument, QStringLiteral("There is no record at position %1.").arg(position));
    moveTo(position - 1);
}

FieldList Recordset::Fields() {
    d->open();
    return FieldList(*this);
}

QString Recordset::Filter() const {
    return d->filter;
}
QString Recordset::Sort() const {
    return d->sort;
}

void Recordset::setFilter(const QString& condition) {
    d->open();
    if (d->edit)
        Update();
    const QString before = std::exchange(d->filter, isBlank(condition) || trimmed(condition) == u"0" ? QString() : condition);
    try {
        arrange();
    } catch (...) {
        d->filter = before;
        throw;
    }
}

void Recordset::setSort(const QString& order) {
    d->open();
    if (d->edit)
        Update();
    const QString before = std::exchange(d->sort, isBlank(order) ? QString() : order);
    try {
        arrange();
    } catch (...) {
        d->sort = before;
        throw;
    }
}

/// Makes the row order anew from filter and sort, and goes to the first record.
void Recordset::arrange() {
    Records& records = d->open();
    std::vector<std::uint32_t> rows;
    if (!d->filter.isEmpty())
        rows = filteredRows(parseFilter(d->filter, records), records);
    else if (!d->sort.isEmpty())
        rows = allRows(records);
    if (!d->sort.isEmpty())
        sortRows(rows, d->sort, records);
    d->everyRow = d->filter.isEmpty() && d->sort.isEmpty();
    d->rows = std::move(rows);
    d->position = 0;
    ++d->revision;
}

RecordsetPtr Recordset::Clone() {
    d->open();
    auto clone = std::make_shared<Recordset>();
    clone->d->records = d->records;
    clone->d->connection = d->connection;
    clone->d->command = d->command;
    clone->d->source = d->source;
    clone->d->text = d->text;
    clone->d->lockType = d->lockType;
    return clone;
}

void Recordset::Requery() {
    d->open();
    if (d->opening)
        throw Error(kErrObjectOpen,
                    QStringLiteral("Operation is not allowed while the object is executing."));
    if (d->text.isEmpty())
        throw Error(kErrNotSupported, QStringLiteral("The recordset cannot be run again."));
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
    next->adopt(std::move(*result), connection);
    next->d->further = std::move(stream);
    return next;
}

QString Recordset::Source() const {
    return d->source;
}
CommandPtr Recordset::ActiveCommand() const {
    return d->command;
}
ConnectionPtr Recordset::ActiveConnection() const {
    return d->connection;
}

const store::Table& Recordset::table() const {
    return d->open().table;
}
std::uint32_t Recordset::tableRow(std::int64_t position) const {
    return d->rowAt(position);
}
std::uint32_t Recordset::currentTableRow() const {
    return d->currentRow();
}
std::uint64_t Recordset::revision() const {
    return d->revision + (d->records ? d->records->version : 0);
}
std::uint64_t Recordset::rowsWalked() const {
    return d->open().rowsWalked;
}

} // namespace zkp::ado
