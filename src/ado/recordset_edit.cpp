#include "ado/records/recordset_data.h"

#include "base/error.h"
#include "base/scope_guard.h"
#include "base/text.h"
#include "store/column_builder.h"

namespace zkp::ado {

namespace {

Error notUpdatable() {
    return Error(kErrNotSupported,
                 QStringLiteral("Current Recordset does not support updating. This may be a "
                                "limitation of the provider, or of the selected locktype."));
}

/// Whether two results hold the same values in a row each, over the fields of the first.
bool sameRow(const store::Table& a, std::size_t rowA, const store::Table& b, std::size_t rowB) {
    for (std::size_t i = 0; i < a.columns.size(); ++i) {
        if (a.columns[i]->value(rowA) != b.columns[i]->value(rowB))
            return false;
    }
    return true;
}

/// Where a record stands among the records read anew: at its own place, or else at the only one
/// with the same values.
std::size_t locate(const store::Table& records, std::size_t row, const store::Table& anew) {
    if (row < anew.rows && sameRow(records, row, anew, row))
        return row;
    std::vector<std::size_t> same;
    for (std::size_t i = 0; i < anew.rows; ++i) {
        if (sameRow(records, row, anew, i))
            same.push_back(i);
    }
    if (same.size() != 1)
        throw Error(kErrDatabase,
                    QStringLiteral("Row cannot be located for updating. Some values may have been "
                                   "changed since it was last read."));
    return same.front();
}

} // namespace

QVariant Recordset::fieldValue(int field) const {
    Records& records = d->open();
    if (d->edit) {
        const auto pending = d->edit->byField.find(field);
        if (pending != d->edit->byField.end())
            return pending->second;
        if (d->edit->isNew)
            return {};
    }
    return records.table.columns[static_cast<std::size_t>(field)]->value(d->currentRow());
}

void Recordset::setFieldValue(int field, const QVariant& value) {
    openEdit(false);
    const QString column = d->base->columnOfField(field);
    if (column.isEmpty())
        throw notUpdatable();
    setPending(column, value);
    d->edit->byField[field] = value;
}

QVariant Recordset::Collect(const QString& field) {
    const int index = d->open().indexOf(field);
    if (index < 0 && d->edit) {
        for (qsizetype i = 0; i < d->edit->columns.size(); ++i) {
            if (sameName(d->edit->columns[i], field))
                return d->edit->values[i];
        }
    }
    return Fields().Item(field).Value();
}

void Recordset::setCollect(const QString& field, const QVariant& value) {
    const int index = d->open().indexOf(field);
    if (index >= 0)
        return setFieldValue(index, value);
    openEdit(false);
    if (!d->base->hasColumn(field))
        Fields().Item(field); // tells that it is not there
    setPending(field, value);
}

void Recordset::setPending(const QString& name, const QVariant& value) {
    PendingEdit& edit = *d->edit;
    for (qsizetype i = 0; i < edit.columns.size(); ++i) {
        if (sameName(edit.columns[i], name)) {
            edit.values[i] = value;
            return;
        }
    }
    edit.columns.push_back(name);
    edit.values.push_back(value);
}

/// Makes sure that there is a table to write to and an edit to gather values in.
void Recordset::openEdit(bool isNew) {
    d->open();
    if (d->edit && !isNew)
        return;
    if (!isNew)
        d->currentRow();
    if (d->lockType == adLockReadOnly || d->text.isEmpty())
        throw notUpdatable();
    const auto session = d->session();
    if (!d->base)
        d->base = session->baseTable(d->text, {d->connection->CommandTimeout(), {}});
    if (!d->base)
        throw notUpdatable();
    d->edit.emplace();
    d->edit->isNew = isNew;
}

void Recordset::AddNew() {
    d->open();
    if (d->edit)
        Update();
    openEdit(true);
}

void Recordset::CancelUpdate() {
    d->open();
    d->edit.reset();
}

void Recordset::Update() {
    d->open();
    if (!d->edit)
        return;
    d->session();
    if (d->edit->isNew)
        insertRecord();
    else if (!d->edit->columns.isEmpty())
        updateRecord();
    d->edit.reset();
    ++d->revision;
}

/// Writes the new record, and reads it back as the last one of the records and the current one.
void Recordset::insertRecord() {
    const Result record = d->base->insert(d->edit->columns, d->edit->values);
    const std::size_t written = record.table.rows - 1;
    Records& records = d->open();
    store::Table table = records.table;
    for (std::size_t i = 0; i < table.columns.size(); ++i)
        table.columns[i] =
            store::withValue(table.columns[i], table.rows, record.table.columns[i]->value(written));
    ++table.rows;
    records.setTable(std::move(table));
    if (!d->everyRow)
        d->rows.push_back(static_cast<std::uint32_t>(records.table.rows - 1));
    d->position = d->count() - 1;
    d->keyed.reset();
}

void Recordset::updateRecord() {
    Records& records = d->open();
    const std::uint32_t row = d->currentRow();
    if (!d->keyed)
        d->keyed = d->base->recordsWithKeys();
    const std::size_t place = locate(records.table, row, d->keyed->table);
    const QVariant key = d->keyed->table.columns.back()->value(place);
    // The keys of a row that somebody else has written since are of no use any more.
    bool isWritten = false;
    const ScopeGuard forgetKeys([&] {
        if (!isWritten)
            d->keyed.reset();
    });
    const Result record = d->base->update(key, d->edit->columns, d->edit->values);
    isWritten = true;

    const std::size_t written = record.table.rows - 1;
    store::Table table = records.table;
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        const QVariant value = record.table.columns[i]->value(written);
        table.columns[i] = store::withValue(table.columns[i], row, value);
        d->keyed->table.columns[i] = store::withValue(d->keyed->table.columns[i], place, value);
    }
    records.setTable(std::move(table));
}

} // namespace zkp::ado
