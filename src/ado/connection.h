#pragma once

#include "ado/constants.h"

#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantList>

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

namespace zkp::ado {

class Provider;
class Recordset;
class ResultStream;
using RecordsetPtr = std::shared_ptr<Recordset>;

/// A database connection. Every failure is an Error (see base/error.h) with the provider's own words.
/// Used from the host's thread only; made with std::make_shared, since recordsets keep it alive.
class Connection : public std::enable_shared_from_this<Connection> {
public:
    Connection();
    ~Connection();

    /// "sqlite:FILE" opens (never creates) a SQLite file, "sqlite:" with no name an empty one in memory; any
    /// other text is an ODBC connection string (docs/databases.md). An empty argument takes the property's
    /// text.
    void Open(const QString& connectionString = {});
    /// Ends the connection and its session: what a transaction has not committed is undone, and locks are
    /// free. Recordsets of it stay readable; what they would need the session for is Error kErrObjectClosed,
    /// also when the connection is open again. Requery alone goes by the connection as it is then. Inside a
    /// fetch (see setFetchProgress) the session ends when that has ended.
    void Close();
    int State() const;

    QString ConnectionString() const;
    void setConnectionString(const QString& text);
    /// Seconds that one statement may take, fetching included; 0 is no bound. 30 at the start.
    int CommandTimeout() const;
    void setCommandTimeout(int seconds);
    /// ConnectModeEnum, before Open. adModeRead refuses all writing, except to the template and
    /// settings tables (`frms`, `frms2`, `QRN_Main`).
    int Mode() const;
    void setMode(int mode);

    /// Runs one statement at once. A statement without columns gives a closed recordset.
    RecordsetPtr Execute(const QString& statement);
    void BeginTrans();
    void CommitTrans();
    void RollbackTrans();
    /// adSchemaColumns: COLUMN_NAME, TABLE_NAME, ORDINAL_POSITION, DATA_TYPE of the table that the
    /// third restriction names (catalogue and schema are ignored); an unknown table gives no rows.
    /// adSchemaTables: TABLE_NAME and TABLE_TYPE ("TABLE", "VIEW"). adSchemaViews: the same, of views.
    RecordsetPtr OpenSchema(int schema, const QVariantList& restrictions = {});

    /// Called now and then during a fetch with the number of records read so far.
    using FetchProgress = std::function<void(std::int64_t rows)>;
    void setFetchProgress(FetchProgress callback);

    /// What a registered procedure gives: field names and records.
    struct ProcedureTable {
        QStringList names;
        std::vector<QVariantList> rows;
    };
    using Procedure = std::function<ProcedureTable(const QVariantList& arguments)>;
    /// `exec NAME 'a', 2` calls the function, ahead of a procedure that the database keeps under
    /// that name.
    void registerProcedure(const QString& name, Procedure function);

    /// The statement as the database received it last, after the dialect step.
    QString LastStatementSent() const;
    /// How many it has received since Open.
    std::uint64_t StatementsSent() const;

    /// For the parts of data access only; Error when closed. Whoever keeps it keeps the session.
    const std::shared_ptr<Provider>& provider() const;
    /// For the parts of data access only: starts a text, of one statement or of several.
    enum class Statements { One, Several };
    std::unique_ptr<ResultStream> start(const QString& text, Statements statements) const;

private:
    struct Data;
    std::unique_ptr<Data> d;
};

using ConnectionPtr = std::shared_ptr<Connection>;

} // namespace zkp::ado
