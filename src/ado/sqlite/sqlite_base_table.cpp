#include "ado/sqlite/sqlite_base_table.h"

#include "ado/constants.h"
#include "ado/dialect/plain_select.h"
#include "ado/dialect/sqlite_rewrite.h"
#include "ado/object_state.h"
#include "ado/sqlite/field_types.h"
#include "ado/sqlite/run.h"
#include "base/text.h"

#include <QDateTime>
#include <QHash>

namespace zkp::ado::sqlite {

namespace {

QString quoted(const QString& name) {
    return u'"' + QString(name).replace(u'"', QStringLiteral("\"\"")) + u'"';
}

/// The columns of a table with what they were declared as; empty when it is no table.
QHash<QString, std::pair<QString, Declared>> tableColumns(const std::shared_ptr<Database>& database,
                                                          const QString& table) {
    QHash<QString, std::pair<QString, Declared>> columns;
    Statement query(database, QStringLiteral("SELECT c.name, c.type FROM sqlite_schema s JOIN "
                                             "pragma_table_info(s.name) c WHERE s.type = 'table' "
                                             "AND s.name = ?1 COLLATE NOCASE"));
    query.bind({table});
    const Turn turn(*database);
    while (query.step()) {
        const Declared declared = declaredType(query.text(1).toUtf8().constData());
        columns.insert(nameKey(query.text(0)), {query.text(0), declared});
    }
    return columns;
}

class SqliteBaseTable final : public BaseTable {
public:
    SqliteBaseTable(const std::shared_ptr<Database>& database, dialect::PlainSelect select,
                    RunOptions options, QHash<QString, std::pair<QString, Declared>> columns)
        : database_(database)
        , select_(std::move(select))
        , options_(std::move(options))
        , columns_(std::move(columns)) {
        // One row's select list: TOP and the key have no place there, the rest is the statement's.
        rowStatement_ = dialect::rewriteForSqlite(select_.beforeFrom + QStringLiteral("FROM ") +
                                                  select_.source + QStringLiteral(" WHERE _rowid_ = ?1"));
        const Statement statement(database, rowStatement_);
        for (int i = 0; i < statement.columnCount(); ++i)
            fieldColumns_.push_back(QString::fromUtf8(sqlite3_column_origin_name(statement.handle(), i)));
    }

    bool hasColumn(const QString& name) const override { return columns_.contains(nameKey(name)); }
    QString columnOfField(int field) const override { return fieldColumns_.value(field); }

    Result recordsWithKeys() override {
        const QString sql = select_.beforeFrom + QStringLiteral(", _rowid_ ") + select_.fromOn;
        return runStatement(stillOpen(database_), dialect::rewriteForSqlite(sql), {}, options_);
    }

    Result insert(const QStringList& columns, const QVariantList& values) override {
        QStringList names;
        QStringList places;
        for (const QString& column : columns) {
            names << quoted(columns_.value(nameKey(column)).first);
            places << QStringLiteral("?");
        }
        const QString what =
            columns.isEmpty() ? QStringLiteral(" DEFAULT VALUES")
                              : QStringLiteral(" (%1) VALUES (%2)").arg(names.join(u','), places.join(u','));
        return write(QStringLiteral("INSERT INTO ") + quoted(select_.table) + what, stored(columns, values),
                     {});
    }

    Result update(const QVariant& key, const QStringList& columns, const QVariantList& values) override {
        QStringList settings;
        for (const QString& column : columns)
            settings << quoted(columns_.value(nameKey(column)).first) + QStringLiteral("=?");
        QVariantList parameters = stored(columns, values);
        parameters << key;
        return write(QStringLiteral("UPDATE %1 SET %2 WHERE _rowid_=?")
                         .arg(quoted(select_.table), settings.join(u',')),
                     parameters, key);
    }

private:
    /// A column declared as a date takes no time of day.
    QVariantList stored(const QStringList& columns, const QVariantList& values) const {
        QVariantList list = values;
        for (qsizetype i = 0; i < list.size(); ++i) {
            const bool isDate = columns_.value(nameKey(columns[i])).second.type == adDBDate;
            if (isDate && list[i].typeId() == QMetaType::QDateTime)
                list[i] = list[i].toDateTime().date();
        }
        return list;
    }

    /// Writes one row and reads it back, or writes nothing; no key means the new row's. A savepoint works
    /// inside the host's transaction and outside.
    Result write(const QString& sql, const QVariantList& parameters, const QVariant& key) {
        const auto database = stillOpen(database_);
        database->execute("SAVEPOINT zkp_write");
        try {
            const qlonglong last = writeOne(database, sql, parameters);
            Result written = record(database, key.isValid() ? key : last);
            database->execute("RELEASE zkp_write");
            return written;
        } catch (...) {
            const Turn turn(*database);
            sqlite3_exec(database->handle(), "ROLLBACK TO zkp_write; RELEASE zkp_write", nullptr, nullptr,
                         nullptr);
            throw;
        }
    }

    /// Gives the number of the row that was added last.
    qlonglong writeOne(const std::shared_ptr<Database>& database, const QString& sql,
                       const QVariantList& parameters) const {
        const Turn turn(*database, Deadline::in(options_.timeoutSeconds));
        database->setLastStatement(sql);
        Statement statement(database, sql);
        statement.bind(parameters);
        while (statement.step()) {
        }
        if (sqlite3_changes(database->handle()) != 1)
            throw Error(kErrDatabase, QStringLiteral("The row is no longer there."));
        return sqlite3_last_insert_rowid(database->handle());
    }

    Result record(const std::shared_ptr<Database>& database, const QVariant& key) const {
        Result result = runStatement(database, rowStatement_, {key}, options_);
        if (result.table.rows != 1)
            throw Error(kErrDatabase, QStringLiteral("The row is no longer there."));
        return result;
    }

    std::weak_ptr<Database> database_;
    dialect::PlainSelect select_;
    RunOptions options_;
    QHash<QString, std::pair<QString, Declared>> columns_; ///< by name key
    QString rowStatement_;
    QStringList fieldColumns_;
};

} // namespace

std::unique_ptr<BaseTable> openBaseTable(const std::shared_ptr<Database>& database, const QString& statement,
                                         const RunOptions& options) {
    auto select = dialect::parsePlainSelect(statement, dialect::Dialect::Sqlite);
    // Writing is for the file itself, not for others attached to it.
    if (!select || !(select->qualifier.isEmpty() || sameName(select->qualifier, QStringLiteral("main"))))
        return nullptr;
    auto columns = tableColumns(database, select->table);
    if (columns.isEmpty())
        return nullptr;
    return std::make_unique<SqliteBaseTable>(database, std::move(*select), options, std::move(columns));
}

} // namespace zkp::ado::sqlite
