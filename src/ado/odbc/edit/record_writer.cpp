#include "ado/odbc/edit/record_writer.h"

#include "ado/odbc/fetch/fetch.h"
#include "ado/odbc/session/read_only.h"
#include "ado/odbc/session/translate.h"

#include <utility>

namespace zkp::ado::odbc {

namespace {

/// Ends in a rollback unless it was committed; does nothing inside the host's own transaction.
class WriteTransaction {
public:
    explicit WriteTransaction(Session& session)
        : session_(session)
        , own_(!session.isInTransaction()) {
        if (own_)
            session_.begin();
    }
    ~WriteTransaction() {
        if (!own_)
            return;
        try {
            session_.rollback();
        } catch (const Error&) {
            // The connection is gone, and the transaction with it.
        }
    }
    WriteTransaction(const WriteTransaction&) = delete;
    WriteTransaction& operator=(const WriteTransaction&) = delete;
    void commit() {
        if (std::exchange(own_, false))
            session_.commit();
    }

private:
    Session& session_;
    bool own_;
};

Error cannotLocate(const Session& session) {
    return Error(kErrDatabase,
                 QStringLiteral("Row cannot be located for updating. Some values may have been "
                                "changed since it was last read."),
                 session.serverName());
}

Error noLongerThere(const Session& session) {
    return Error(kErrDatabase, QStringLiteral("The row is no longer there."), session.serverName());
}

/// Whether it doesn't matter which of the records is taken.
bool isOneRecord(const Result& result) {
    for (std::size_t row = 1; row < result.table.rows; ++row) {
        if (rowOf(result, row) != rowOf(result, 0))
            return false;
    }
    return true;
}

} // namespace

RecordWriter::RecordWriter(Session& session, const EditedTable& table, int timeoutSeconds)
    : session_(session)
    , table_(table)
    , options_{timeoutSeconds, {}} {}

RecordWriter::Written RecordWriter::insert(const QStringList& columns, const QVariantList& values) {
    checkWriting();
    WriteTransaction transaction(session_);
    const Result returned = run(insertText(columns), values, table_.kindsOf(columns));
    if (returned.table.rows != 1)
        throw Error(kErrDatabase, QStringLiteral("The row was not written."), session_.serverName());
    const QVariantList key = rowOf(returned, 0);
    Result record = readBack(key);
    transaction.commit();
    return {std::move(record), key};
}

/// It gives the new row's key.
QString RecordWriter::insertText(const QStringList& columns) const {
    QStringList names;
    for (const QString& column : columns)
        names << quotedName(session_, table_.find(column)->name);
    const QStringList places(columns.size(), QStringLiteral("?"));
    const bool outputs = session_.dialect() == Dialect::SqlServer;
    QString text = QStringLiteral("INSERT INTO ") + table_.name;
    if (!columns.isEmpty())
        text += QStringLiteral(" (%1)").arg(names.join(u','));
    if (outputs)
        text += QStringLiteral(" OUTPUT ") + table_.keyItems(QStringLiteral("INSERTED."));
    if (!columns.isEmpty())
        text += QStringLiteral(" VALUES (%1)").arg(places.join(u','));
    else
        text += session_.dialect() == Dialect::MariaDb ? QStringLiteral(" () VALUES ()")
                                                       : QStringLiteral(" DEFAULT VALUES");
    if (!outputs)
        text += QStringLiteral(" RETURNING ") + table_.keyItems();
    return text;
}

RecordWriter::Written RecordWriter::update(const QVariantList& key, const QStringList& columns,
                                           const QVariantList& values) {
    checkWriting();
    QStringList settings;
    for (const QString& column : columns)
        settings << quotedName(session_, table_.find(column)->name) + QStringLiteral("=?");
    const TableKeys::Condition condition = table_.keys.conditionFor(key);
    std::vector<ColumnKind> kinds = table_.kindsOf(columns);
    kinds.insert(kinds.end(), condition.kinds.begin(), condition.kinds.end());
    QString text =
        QStringLiteral("UPDATE %1 SET %2 WHERE %3").arg(table_.name, settings.join(u','), condition.text);
    // A row that is written gets another place.
    const bool moves = session_.dialect() == Dialect::PostgreSql;
    if (moves)
        text += QStringLiteral(" RETURNING ") + table_.keyItems();

    WriteTransaction transaction(session_);
    if (!table_.keys.isExact())
        checkOne(condition);
    const QVariantList returned = updateOne(text, values + condition.values, kinds, moves);
    const QVariantList after = moves ? returned : changedKey(key, columns, values);
    Result record = readBack(after);
    if (!isOneRecord(record))
        throw cannotLocate(session_);
    transaction.commit();
    return {std::move(record), after};
}

void RecordWriter::checkWriting() const {
    if (session_.isReadOnly() && !isWritableReadOnly(table_.select.table))
        refuseWriting();
}

/// Fails unless the condition finds exactly one row, which nobody else writes before the transaction ends.
void RecordWriter::checkOne(const TableKeys::Condition& condition) {
    const QString form =
        session_.dialect() == Dialect::SqlServer
            ? QStringLiteral("SELECT TOP (2) 1 AS found FROM %1 WITH (UPDLOCK, HOLDLOCK) WHERE %2")
            : QStringLiteral("SELECT 1 AS found FROM %1 WHERE %2 LIMIT 2 FOR UPDATE");
    if (run(form.arg(table_.name, condition.text), condition.values, condition.kinds).table.rows != 1)
        throw cannotLocate(session_);
}

/// Changes one row or fails; gives its new key where the statement returns it.
QVariantList RecordWriter::updateOne(const QString& text, const QVariantList& values,
                                     const std::vector<ColumnKind>& kinds, bool returns) {
    session_.setLastStatement(text);
    Statement statement(session_, options_.timeoutSeconds);
    statement.execute(text, values, kinds);
    // A statement that found nothing has no records to ask for.
    const bool fetches = returns && statement.rowCount() != 0;
    const Result written = fetches ? Fetch(statement, options_).run() : Result();
    const SQLLEN rows = returns ? static_cast<SQLLEN>(written.table.rows) : statement.rowCount();
    // MariaDB does not count a row that had these values already.
    const bool unchanged = rows == 0 && session_.dialect() == Dialect::MariaDb;
    if (rows != 1 && !unchanged)
        throw noLongerThere(session_);
    return fetches ? rowOf(written, 0) : QVariantList();
}

QVariantList RecordWriter::changedKey(QVariantList key, const QStringList& columns,
                                      const QVariantList& values) const {
    const QStringList items = table_.keys.items();
    for (qsizetype i = 0; i < columns.size(); ++i) {
        const qsizetype place = items.indexOf(quotedName(session_, table_.find(columns[i])->name));
        if (place >= 0)
            key[place] = values[i];
    }
    return key;
}

/// The select list's values of the row with a key; of a row that others look like, with theirs before it.
Result RecordWriter::readBack(const QVariantList& key) {
    const TableKeys::Condition condition = table_.keys.conditionFor(key);
    const QString text = table_.select.beforeFrom + QStringLiteral("FROM ") + table_.select.source +
                         QStringLiteral(" WHERE ") + condition.text;
    Result result = run(translate(session_, text).text, condition.values, condition.kinds);
    if (result.table.rows == 0 || (result.table.rows > 1 && table_.keys.isExact()))
        throw noLongerThere(session_);
    return result;
}

Result RecordWriter::run(const QString& text, const QVariantList& values,
                         const std::vector<ColumnKind>& kinds) {
    session_.setLastStatement(text);
    Statement statement(session_, options_.timeoutSeconds);
    if (session_.readsInsideBlocks())
        statement.useStaticCursor();
    statement.execute(text, values, kinds);
    return statement.columnCount() > 0 ? Fetch(statement, options_).run() : Result();
}

} // namespace zkp::ado::odbc
