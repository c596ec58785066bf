#pragma once

#include "ado/dialect/dialect.h"
#include "store/table.h"

#include <QString>
#include <QStringList>
#include <QVariantList>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace zkp::ado {

/// One field of a result, as the published properties tell it.
struct FieldInfo {
    QString name;
    int type = 0; ///< DataTypeEnum
    int definedSize = 0;
};

/// The fields and records of one statement; no fields at all for a statement that gives none.
struct Result {
    std::vector<FieldInfo> fields;
    store::Table table;
};

/// What bounds and watches one statement.
struct RunOptions {
    int timeoutSeconds = 0;                     ///< 0 is no bound
    std::function<void(std::int64_t)> progress; ///< may throw: the fetch ends, the error reaches the caller
};

/// The results that one statement gives (a stored procedure may give several), fetched one by one.
class ResultStream {
public:
    virtual ~ResultStream() = default;
    /// The next result with all its records; nothing after the last. Error kErrObjectClosed when the
    /// database was closed before the last.
    virtual std::optional<Result> next() = 0;
    /// True when nothing can follow any more.
    virtual bool isAtEnd() const = 0;
};

/// The table behind the records of a plain select of one table, for editing them. Rows are known
/// by a key of the provider's own. Error kErrObjectClosed once the database was closed.
class BaseTable {
public:
    virtual ~BaseTable() = default;
    virtual bool hasColumn(const QString& name) const = 0;
    /// The table's column behind a field of the select list; empty for an expression.
    virtual QString columnOfField(int field) const = 0;

    /// The statement's records as they are now, the key of each as an additional last column.
    virtual Result recordsWithKeys() = 0;
    /// Writes inside a transaction with bound parameters, and gives the row as it was written: the last
    /// record of a result, as `recordsWithKeys` would give it, without the key. What can't be read back
    /// isn't written.
    virtual Result insert(const QStringList& columns, const QVariantList& values) = 0;
    virtual Result update(const QVariant& key, const QStringList& columns, const QVariantList& values) = 0;
};

/// A kind of database, open as long as the provider lives: neither streams nor tables of it keep it open,
/// but a call that runs ends first. Everything that Connection and Recordset ask of one is here; failures
/// are Errors with the database's own words.
class Provider {
public:
    virtual ~Provider() = default;
    /// Whose words its statements are sent in.
    virtual dialect::Dialect dialect() const = 0;

    /// Starts one statement, in the words of the report builders: what this database needs to
    /// understand it is done here.
    virtual std::unique_ptr<ResultStream> start(const QString& statement, const RunOptions& options) = 0;
    /// The text that the database received last.
    virtual QString lastStatementSent() const = 0;
    /// How many texts the database has received. Questions of the catalogue don't count.
    virtual std::uint64_t statementsSent() const = 0;
    /// True once the database has gone away; nothing but closing works then.
    virtual bool isLost() const { return false; }

    virtual void begin() = 0;
    virtual void commit() = 0;
    virtual void rollback() = 0;

    /// Nothing when the statement is no plain select of one table.
    virtual std::unique_ptr<BaseTable> baseTable(const QString& statement, const RunOptions& options) = 0;

    /// The answer of Connection::OpenSchema; a null name asks for all tables.
    virtual Result schema(int schema, const std::optional<QString>& table) = 0;
};

} // namespace zkp::ado
