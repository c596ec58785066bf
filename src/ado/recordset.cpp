#include "ado/records/recordset_data.h"

#include "ado/object_state.h"
#include "ado/records/filter_match.h"
#include "ado/records/sort_order.h"
#include "base/text.h"

#include <utility>

namespace zkp::ado {

namespace {

Error noCurrentRecord() {
    return Error(kErrNoCurrentRecord,
                 QStringLiteral("Either BOF or EOF is True, or the current record has been "
                                "deleted. Requested operation requires a current record."));
}

} // namespace

Records& Recordset::Data::open() const {
    if (!records)
        throw objectClosed();
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
    const QString before =
        std::exchange(d->filter, isBlank(condition) || trimmed(condition) == u"0" ? QString() : condition);
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
    clone->d->provider = d->provider;
    clone->d->command = d->command;
    clone->d->source = d->source;
    clone->d->text = d->text;
    clone->d->lockType = d->lockType;
    return clone;
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
