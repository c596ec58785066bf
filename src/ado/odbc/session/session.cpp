#include "ado/odbc/session/session.h"

#include "ado/odbc/session/server_facts.h"
#include "ado/odbc/session/statement.h"
#include "ado/odbc/session/wide_text.h"
#include "base/scope_guard.h"

#include <algorithm>
#include <array>
#include <utility>

namespace zkp::ado::odbc {

namespace {

constexpr SQLULEN kLoginSeconds = 15;

SQLPOINTER number(SQLULEN value) {
    return reinterpret_cast<SQLPOINTER>(value);
}

} // namespace

Session::Session(const QString& connectionString, bool readOnly)
    : readOnly_(readOnly) {
    const ConnectionText text = readConnectionText(connectionString);
    connect(text.forDriver);
    try {
        serverName_ = info(SQL_DBMS_NAME);
        dialect_ = text.dialect.value_or(dialectOfServer(serverName_));
        prepare();
    } catch (...) {
        SQLDisconnect(connection_.get());
        throw;
    }
}

Session::~Session() {
    for (Statement* statement : statements_)
        statement->end();
    // A driver does not disconnect inside a transaction.
    if (inTransaction_)
        SQLEndTran(SQL_HANDLE_DBC, connection_.get(), SQL_ROLLBACK);
    SQLDisconnect(connection_.get());
}

void Session::connect(const QString& text) {
    environment_ = Handle(SQL_HANDLE_ENV, SQL_NULL_HANDLE, SQL_HANDLE_ENV);
    SQLSetEnvAttr(environment_.get(), SQL_ATTR_ODBC_VERSION, number(SQL_OV_ODBC3), 0);
    connection_ = Handle(SQL_HANDLE_DBC, environment_.get(), SQL_HANDLE_ENV);
    SQLSetConnectAttrW(connection_.get(), SQL_ATTR_LOGIN_TIMEOUT, number(kLoginSeconds), SQL_IS_UINTEGER);
    const SQLRETURN code = SQLDriverConnectW(connection_.get(), nullptr, wide(text), SQL_NTS, nullptr, 0,
                                             nullptr, SQL_DRIVER_NOPROMPT);
    if (!SQL_SUCCEEDED(code)) {
        // Whatever class the driver puts a refusal in, no statement is to blame.
        const Error error = Diagnostics(SQL_HANDLE_DBC, connection_.get()).error(serverName_);
        throw Error(kErrDatabase, error.description(), error.source());
    }
}

void Session::prepare() {
    SQLUINTEGER extensions = 0;
    SQLGetInfoW(connection_.get(), SQL_GETDATA_EXTENSIONS, &extensions, sizeof extensions, nullptr);
    constexpr SQLUINTEGER kNeeded = SQL_GD_BLOCK | SQL_GD_BOUND | SQL_GD_ANY_COLUMN | SQL_GD_ANY_ORDER;
    // For SQL Server this would take a cursor on the server; MariaDB's driver says that it can, and gives
    // values of another row.
    readsInsideBlocks_ = dialect_ == Dialect::PostgreSql && (extensions & kNeeded) == kNeeded;
    if (readOnly_)
        SQLSetConnectAttrW(connection_.get(), SQL_ATTR_ACCESS_MODE, number(SQL_MODE_READ_ONLY),
                           SQL_IS_UINTEGER);
    prepareServer(*this);
    if (readOnly_)
        setWritable(false);
}

QString Session::info(SQLUSMALLINT what) const {
    std::array<SQLWCHAR, 256> text{};
    SQLSMALLINT bytes = 0;
    if (!SQL_SUCCEEDED(SQLGetInfoW(connection_.get(), what, text.data(), sizeof text, &bytes)))
        return {};
    return wideText(text.data(), bytes / static_cast<int>(sizeof(SQLWCHAR)));
}

Error Session::failure(SQLSMALLINT type, SQLHANDLE handle, Deadline deadline) {
    const Diagnostics said(type, handle);
    SQLUINTEGER dead = SQL_CD_FALSE;
    SQLGetConnectAttrW(connection_.get(), SQL_ATTR_CONNECTION_DEAD, &dead, SQL_IS_UINTEGER, nullptr);
    lost_ = lost_ || said.isLinkLost() || dead == SQL_CD_TRUE;
    const Error error = said.error(serverName_);
    if (said.isTimeout() || (said.isCancelled() && deadline.isOver()))
        return Error(kErrTimeout, QStringLiteral("Timeout expired\n") + error.description(), serverName_);
    // Names may be of a table that came meanwhile.
    if (error.number() == kErrBadStatement)
        forgetCatalogue();
    // A collation goes with a transaction that the host began and undid in the server's own words.
    if (error.description().contains(QStringLiteral("zkp_text")) ||
        error.description().contains(QStringLiteral("pg_temp")))
        collation_.reset();
    return error;
}

void Session::setAutoCommit(bool on) {
    const SQLRETURN code =
        SQLSetConnectAttrW(connection_.get(), SQL_ATTR_AUTOCOMMIT,
                           number(on ? SQL_AUTOCOMMIT_ON : SQL_AUTOCOMMIT_OFF), SQL_IS_UINTEGER);
    if (!SQL_SUCCEEDED(code))
        throw failure(SQL_HANDLE_DBC, connection_.get());
}

void Session::begin() {
    if (inTransaction_)
        throw Error(kErrDatabase, QStringLiteral("There is a transaction already."), serverName_);
    chooseCollationEarly();
    if (readOnly_)
        setWritable(true);
    try {
        setAutoCommit(false);
    } catch (const Error&) {
        readAgain();
        throw;
    }
    inTransaction_ = true;
}

/// PostgreSQL's is made, once a session: made inside a transaction it would go with a rollback, and there a
/// user whose transactions only read couldn't make it. Where it can't be made, the comparison tells that
/// needs it.
void Session::chooseCollationEarly() {
    if (dialect_ != Dialect::PostgreSql || std::exchange(triedCollation_, true))
        return;
    try {
        collation();
    } catch (const Error&) {
        if (lost_)
            throw;
    }
}

void Session::commit() {
    endTransaction(SQL_COMMIT);
}
void Session::rollback() {
    endTransaction(SQL_ROLLBACK);
}

void Session::endTransaction(SQLSMALLINT how) {
    if (!inTransaction_)
        throw Error(kErrDatabase, QStringLiteral("There is no transaction."), serverName_);
    inTransaction_ = false;
    const ScopeGuard reading([this] { readAgain(); });
    if (!SQL_SUCCEEDED(SQLEndTran(SQL_HANDLE_DBC, connection_.get(), how))) {
        const Error error = failure(SQL_HANDLE_DBC, connection_.get());
        SQLEndTran(SQL_HANDLE_DBC, connection_.get(), SQL_ROLLBACK);
        SQLSetConnectAttrW(connection_.get(), SQL_ATTR_AUTOCOMMIT, number(SQL_AUTOCOMMIT_ON),
                           SQL_IS_UINTEGER);
        throw error;
    }
    setAutoCommit(true);
}

void Session::readAgain() {
    if (!readOnly_)
        return;
    try {
        setWritable(false);
    } catch (const Error&) {
        // The connection is gone.
    }
}

void Session::setWritable(bool writable) {
    allowWriting(*this, writable);
}

void Session::remove(Statement& statement) {
    statements_.erase(std::find(statements_.begin(), statements_.end(), &statement));
}

const dialect::Catalogue& Session::catalogue() {
    if (!catalogue_)
        catalogue_ = readCatalogue(*this);
    return *catalogue_;
}

const QString& Session::collation() {
    if (!collation_)
        collation_ = chooseCollation(*this);
    return *collation_;
}

bool Session::hasSigma() {
    if (!hasSigma_)
        hasSigma_ = postgresHasSigma(*this);
    return *hasSigma_;
}

} // namespace zkp::ado::odbc
