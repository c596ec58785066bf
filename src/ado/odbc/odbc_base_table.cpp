#include "ado/odbc/odbc_base_table.h"

#include "ado/constants.h"
#include "ado/dialect/plain_select.h"
#include "ado/dialect/select_shape.h"
#include "ado/odbc/fetch.h"
#include "ado/odbc/read_only.h"
#include "ado/odbc/table_choice.h"
#include "ado/odbc/table_keys.h"
#include "ado/odbc/translate.h"
#include "base/text.h"

#include <utility>

namespace zkp::ado::odbc {

namespace {

QVariantList rowOf(const Result& result, std::size_t row) {
    QVariantList values;
    for (const auto& column : result.table.columns)
        values << column->value(row);
    return values;
}

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

/// Keys go to the recordset as numbers of the list of keys that is kept here.
class OdbcBaseTable final : public BaseTable {
public:
    OdbcBaseTable(std::shared_ptr<Session> session, dialect::PlainSelect select, RunOptions options,
                  const CatalogueTable& table, std::vector<CatalogueColumn> columns)
        : session_(std::move(session))
        , select_(std::move(select))
        , options_(std::move(options))
        , columns_(std::move(columns))
        , keys_(*session_, table, columns_)
        , table_(qualified(table))
        , fieldColumns_(fieldColumns()) {}

    /// False for a table whose rows have nothing to tell them apart.
    bool canFindRows() const { return keys_.count() > 0; }

    bool hasColumn(const QString& name) const override { return find(name) != nullptr; }
    QString columnOfField(int field) const override { return fieldColumns_.value(field); }

    Result recordsWithKeys() override {
        const QString text = select_.beforeFrom + QStringLiteral(", ") + keyItems({}) + u' ' + select_.fromOn;
        return numbered(run(translate(*session_, text).text, {}, {}));
    }

    Result insert(const QStringList& columns, const QVariantList& values) override {
        checkWriting();
        QStringList names;
        QStringList places;
        for (const QString& column : columns) {
            names << quotedName(*session_, find(column)->name);
            places << QStringLiteral("?");
        }
        const bool outputs = session_->dialect() == Dialect::SqlServer;
        const QString returned = keyItems(outputs ? QStringLiteral("INSERTED.") : QString());
        QString text = QStringLiteral("INSERT INTO ") + table_;
        if (!columns.isEmpty())
            text += QStringLiteral(" (%1)").arg(names.join(u','));
        if (outputs)
            text += QStringLiteral(" OUTPUT ") + returned;
        if (!columns.isEmpty())
            text += QStringLiteral(" VALUES (%1)").arg(places.join(u','));
        else
            text += session_->dialect() == Dialect::MariaDb ? QStringLiteral(" () VALUES ()")
                                                            : QStringLiteral(" DEFAULT VALUES");
        if (!outputs)
            text += QStringLiteral(" RETURNING ") + returned;

        WriteTransaction transaction(*session_);
        const Result key = run(text, values, kindsOf(columns));
        if (key.table.rows != 1)
            throw Error(kErrDatabase, QStringLiteral("The row was not written."), session_->serverName());
        Result written = record(rowOf(key, 0));
        transaction.commit();
        return written;
    }

    Result update(const QVariant& key, const QStringList& columns, const QVariantList& values) override {
        checkWriting();
        QStringList settings;
        for (const QString& column : columns)
            settings << quotedName(*session_, find(column)->name) + QStringLiteral("=?");
        QVariantList& known = known_[static_cast<std::size_t>(key.toLongLong())];
        const TableKeys::Condition condition = keys_.conditionFor(known);
        QVariantList all = values + condition.values;
        std::vector<ColumnKind> kinds = kindsOf(columns);
        kinds.insert(kinds.end(), condition.kinds.begin(), condition.kinds.end());
        QString text =
            QStringLiteral("UPDATE %1 SET %2 WHERE %3").arg(table_, settings.join(u','), condition.text);
        // A row that is written gets another place.
        const bool moves = session_->dialect() == Dialect::PostgreSql;
        if (moves)
            text += QStringLiteral(" RETURNING ") + keyItems({});

        WriteTransaction transaction(*session_);
        if (!keys_.isExact())
            checkOne(condition);
        const QVariantList returned = writeOne(text, all, kinds, moves);
        const QVariantList after = moves ? returned : changedKey(known, columns, values);
        Result written = record(after);
        if (!isOneRecord(written))
            throw cannotLocate();
        transaction.commit();
        known = after;
        return written;
    }

private:
    /// The select list's values of the row with a key; of a row that others look like, with theirs before it.
    Result record(const QVariantList& key) {
        const TableKeys::Condition condition = keys_.conditionFor(key);
        const QString text = select_.beforeFrom + QStringLiteral("FROM ") + select_.source +
                             QStringLiteral(" WHERE ") + condition.text;
        Result result = run(translate(*session_, text).text, condition.values, condition.kinds);
        if (result.table.rows == 0 || (result.table.rows > 1 && keys_.isExact()))
            throw Error(kErrDatabase, QStringLiteral("The row is no longer there."), session_->serverName());
        return result;
    }

    /// Whether it doesn't matter which of the records is taken.
    static bool isOneRecord(const Result& result) {
        for (std::size_t row = 1; row < result.table.rows; ++row) {
            if (rowOf(result, row) != rowOf(result, 0))
                return false;
        }
        return true;
    }

    Error cannotLocate() const {
        return Error(kErrDatabase,
                     QStringLiteral("Row cannot be located for updating. Some values may have been "
                                    "changed since it was last read."),
                     session_->serverName());
    }

    /// Fails unless the condition finds exactly one row, which nobody else writes before the transaction
    /// ends.
    void checkOne(const TableKeys::Condition& condition) {
        const QString form =
            session_->dialect() == Dialect::SqlServer
                ? QStringLiteral("SELECT TOP (2) 1 AS found FROM %1 WITH (UPDLOCK, HOLDLOCK) WHERE %2")
                : QStringLiteral("SELECT 1 AS found FROM %1 WHERE %2 LIMIT 2 FOR UPDATE");
        if (run(form.arg(table_, condition.text), condition.values, condition.kinds).table.rows != 1)
            throw cannotLocate();
    }

    const CatalogueColumn* find(const QString& name) const {
        for (const CatalogueColumn& column : columns_) {
            if (sameName(column.name, name))
                return &column;
        }
        return nullptr;
    }

    QString qualified(const CatalogueTable& table) const {
        const QString name = quotedName(*session_, table.name);
        const QString& space = session_->dialect() == Dialect::MariaDb ? table.catalogue : table.schema;
        return space.isEmpty() ? name : quotedName(*session_, space) + u'.' + name;
    }

    QStringList fieldColumns() const {
        QStringList fields;
        for (const QString& column :
             dialect::sourceColumns(dialect::tokenize(select_.beforeFrom + u' ', session_->dialect()))) {
            if (column != QStringLiteral("*")) {
                const CatalogueColumn* found = column.isEmpty() ? nullptr : find(column);
                fields << (found ? found->name : QString());
                continue;
            }
            for (const CatalogueColumn& each : columns_)
                fields << each.name;
        }
        return fields;
    }

    QString keyItems(const QString& prefix) const {
        QStringList items = keys_.items();
        for (QString& item : items)
            item.prepend(prefix);
        return items.join(QStringLiteral(", "));
    }

    /// The records with the number of each one's key in place of the key's own columns.
    Result numbered(Result result) {
        const std::size_t fields = result.fields.size() - keys_.count();
        store::ColumnBuilder numbers;
        for (std::size_t row = 0; row < result.table.rows; ++row) {
            numbers.appendInteger(static_cast<std::int64_t>(known_.size()));
            known_.push_back(rowOf(result, row).mid(static_cast<qsizetype>(fields)));
        }
        result.fields.resize(fields);
        result.fields.push_back({QStringLiteral("key"), adBigInt, 8});
        result.table.columns.resize(fields);
        result.table.columns.push_back(numbers.finish());
        return result;
    }

    QVariantList changedKey(QVariantList key, const QStringList& columns, const QVariantList& values) const {
        const QStringList items = keys_.items();
        for (qsizetype i = 0; i < columns.size(); ++i) {
            const qsizetype place = items.indexOf(quotedName(*session_, find(columns[i])->name));
            if (place >= 0)
                key[place] = values[i];
        }
        return key;
    }

    void checkWriting() const {
        if (session_->isReadOnly() && !isWritableReadOnly(select_.table))
            refuseWriting();
    }

    std::vector<ColumnKind> kindsOf(const QStringList& columns) const {
        std::vector<ColumnKind> kinds;
        for (const QString& column : columns)
            kinds.push_back(find(column)->kind);
        return kinds;
    }

    Result run(const QString& text, const QVariantList& values, const std::vector<ColumnKind>& kinds) {
        session_->setLastStatement(text);
        Statement statement(*session_, options_.timeoutSeconds);
        if (session_->readsInsideBlocks())
            statement.useStaticCursor();
        statement.execute(text, values, kinds);
        return statement.columnCount() > 0 ? Fetch(statement, options_).run() : Result();
    }

    /// Writes one row or fails; gives the row's new key where the statement returns it.
    QVariantList writeOne(const QString& text, const QVariantList& values,
                          const std::vector<ColumnKind>& kinds, bool returns) {
        session_->setLastStatement(text);
        Statement statement(*session_, options_.timeoutSeconds);
        statement.execute(text, values, kinds);
        // A statement that found nothing has no records to ask for.
        const bool fetches = returns && statement.rowCount() != 0;
        const Result written = fetches ? Fetch(statement, {}).run() : Result();
        const SQLLEN rows = returns ? static_cast<SQLLEN>(written.table.rows) : statement.rowCount();
        // MariaDB does not count a row that had these values already.
        const bool unchanged = rows == 0 && session_->dialect() == Dialect::MariaDb;
        if (rows != 1 && !unchanged)
            throw Error(kErrDatabase, QStringLiteral("The row is no longer there."), session_->serverName());
        return fetches ? rowOf(written, 0) : QVariantList();
    }

    std::shared_ptr<Session> session_;
    dialect::PlainSelect select_;
    RunOptions options_;
    std::vector<CatalogueColumn> columns_;
    TableKeys keys_;
    QString table_;
    QStringList fieldColumns_;
    std::vector<QVariantList> known_; ///< the keys given out so far
};

} // namespace

std::unique_ptr<BaseTable> openBaseTable(const std::shared_ptr<Session>& session, const QString& statement,
                                         const RunOptions& options) {
    auto select = dialect::parsePlainSelect(statement, session->dialect());
    if (!select)
        return nullptr;
    const auto table = chooseTable(*session, *select);
    if (!table)
        return nullptr;
    auto columns = readColumns(*session, *table);
    auto base =
        std::make_unique<OdbcBaseTable>(session, std::move(*select), options, *table, std::move(columns));
    return base->canFindRows() ? std::move(base) : nullptr;
}

} // namespace zkp::ado::odbc
