#pragma once

#include "ado/dialect/catalogue.h"
#include "ado/odbc/session/canceller.h"
#include "ado/odbc/session/connection_text.h"
#include "ado/odbc/session/diagnostics.h"
#include "ado/odbc/session/handle.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

namespace zkp::ado::odbc {

class Statement;

/// An open connection to a server. It ends with the object: what is not committed is undone.
class Session {
public:
    /// Error kErrDatabase in the driver's words.
    Session(const QString& connectionString, bool readOnly);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    SQLHDBC connection() const { return connection_.get(); }
    /// Those that live, which have to end before the connection does.
    void add(Statement& statement) { statements_.push_back(&statement); }
    void remove(Statement& statement);
    Dialect dialect() const { return dialect_; }
    bool isReadOnly() const { return readOnly_; }
    /// Asks the server, where it can, to refuse or allow writing from the next transaction on.
    void setWritable(bool writable);
    const QString& serverName() const { return serverName_; }
    Canceller& canceller() { return canceller_; }
    /// Whether a value that did not fit its buffer can be read in the middle of a block of rows.
    bool readsInsideBlocks() const { return readsInsideBlocks_; }

    /// Whether texts can be taken as UTF-8, which PostgreSQL's and MariaDB's drivers hand on as the server
    /// sends it. Their wide characters take twice the time, and MariaDB's fail where a text is cut.
    bool givesUtf8() const { return givesUtf8_; }
    void setGivesUtf8() { givesUtf8_ = true; }

    /// True once the server or the network has ended the connection.
    bool isLost() const { return lost_; }
    /// The Error for what a call on a handle of this session just failed with; a cancelled statement
    /// whose deadline is over is a time-out.
    Error failure(SQLSMALLINT type, SQLHANDLE handle, Deadline deadline = {});

    void begin();
    void commit();
    void rollback();
    bool isInTransaction() const { return inTransaction_; }

    /// The database is about to receive a statement.
    void setLastStatement(const QString& text) {
        lastStatement_ = text;
        ++statementsSent_;
    }
    const QString& lastStatement() const { return lastStatement_; }
    std::uint64_t statementsSent() const { return statementsSent_; }

    /// Names as the server's catalogue spells them, read when first asked for.
    const dialect::Catalogue& catalogue();
    /// It may have changed.
    void forgetCatalogue() { catalogue_.reset(); }
    /// The collation for comparisons with constants; empty where the server has none to offer. Error
    /// kErrDatabase where one can't be made.
    const QString& collation();
    /// Whether the texts of a PostgreSQL database can hold a "ς".
    bool hasSigma();

private:
    void connect(const QString& text);
    void prepare();
    QString info(SQLUSMALLINT what) const;
    void chooseCollationEarly();
    void setAutoCommit(bool on);
    void endTransaction(SQLSMALLINT how);
    /// A connection for reading refuses writing from now on.
    void readAgain();

    Handle environment_;
    Handle connection_;
    Dialect dialect_ = Dialect::SqlServer;
    bool readOnly_;
    bool readsInsideBlocks_ = false;
    bool givesUtf8_ = false;
    bool inTransaction_ = false;
    bool lost_ = false;
    QString serverName_ = QStringLiteral("ODBC");
    QString lastStatement_;
    std::uint64_t statementsSent_ = 0;
    std::optional<dialect::Catalogue> catalogue_;
    std::optional<QString> collation_;
    bool triedCollation_ = false;
    std::optional<bool> hasSigma_;
    std::vector<Statement*> statements_;
    Canceller canceller_;
};

} // namespace zkp::ado::odbc
