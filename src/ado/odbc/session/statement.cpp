#include "ado/odbc/session/statement.h"

#include "ado/odbc/session/parameters.h"
#include "ado/odbc/session/wide_text.h"

namespace zkp::ado::odbc {

Statement::Statement(Session& session, int timeoutSeconds)
    : session_(session)
    , timeoutSeconds_(timeoutSeconds)
    , handle_(SQL_HANDLE_STMT, session_.connection(), SQL_HANDLE_DBC)
    , deadline_(Deadline::in(timeoutSeconds)) {
    // A driver that can't leaves it to the canceller.
    SQLSetStmtAttrW(get(), SQL_ATTR_QUERY_TIMEOUT, reinterpret_cast<SQLPOINTER>(SQLULEN(timeoutSeconds)),
                    SQL_IS_UINTEGER);
    session_.add(*this);
}

Statement::~Statement() {
    if (get() != SQL_NULL_HSTMT)
        session_.remove(*this);
}

Statement::Watched::Watched(const Statement& statement)
    : session_(statement.session_) {
    if (statement.deadline_.isOver())
        throw Error(kErrTimeout, QStringLiteral("Timeout expired"), session_.serverName());
    session_.canceller().watch(statement.get(), statement.deadline_);
}

Statement::Watched::~Watched() {
    session_.canceller().rest();
}

void Statement::check(SQLRETURN code) const {
    if (!SQL_SUCCEEDED(code))
        throw session_.failure(SQL_HANDLE_STMT, handle_.get(), deadline_);
}

void Statement::useStaticCursor() {
    SQLSetStmtAttrW(get(), SQL_ATTR_CURSOR_TYPE, reinterpret_cast<SQLPOINTER>(SQLULEN(SQL_CURSOR_STATIC)),
                    SQL_IS_UINTEGER);
}

void Statement::execute(const QString& text) {
    const SQLRETURN code = timed([&] { return SQLExecDirectW(get(), wide(text), SQL_NTS); });
    // What changes no record may say so.
    if (code != SQL_NO_DATA)
        check(code);
}

void Statement::execute(const QString& text, const QVariantList& values,
                        const std::vector<ColumnKind>& kinds) {
    Parameters parameters(values, kinds);
    check(parameters.bind(get()));
    execute(text);
    SQLFreeStmt(get(), SQL_RESET_PARAMS);
}

bool Statement::moreResults() {
    const SQLRETURN code = timed([&] { return SQLMoreResults(get()); });
    if (code == SQL_NO_DATA)
        return false;
    check(code);
    return true;
}

int Statement::columnCount() const {
    SQLSMALLINT count = 0;
    check(SQLNumResultCols(get(), &count));
    return count;
}

SQLLEN Statement::rowCount() const {
    SQLLEN count = -1;
    SQLRowCount(get(), &count);
    return count;
}

bool Statement::fetch() {
    const SQLRETURN code = timed([&] { return SQLFetch(get()); });
    if (code == SQL_NO_DATA)
        return false;
    check(code);
    return true;
}

QVariant Statement::text(int column) const {
    QString value;
    for (;;) {
        SQLWCHAR part[1024];
        SQLLEN bytes = 0;
        const SQLRETURN code =
            SQLGetData(get(), static_cast<SQLUSMALLINT>(column + 1), SQL_C_WCHAR, part, sizeof part, &bytes);
        if (code == SQL_NO_DATA)
            return value;
        check(code);
        if (bytes == SQL_NULL_DATA)
            return {};
        constexpr SQLLEN kRoom = sizeof part - sizeof(SQLWCHAR);
        const bool cut = bytes == SQL_NO_TOTAL || bytes > kRoom;
        value += wideText(part, (cut ? kRoom : bytes) / SQLLEN(sizeof(SQLWCHAR)));
        if (!cut)
            return value;
    }
}

} // namespace zkp::ado::odbc
