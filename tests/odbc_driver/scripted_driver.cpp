// The calls of the driver manager that the data access makes. A connection string names the server that the
// driver says it is ("Name=") and the file that statements are written to as they came ("Log="), each behind
// its length in characters.

#include "scripted_driver.h"

#include <algorithm>
#include <cstring>
#include <fstream>

namespace {

using zkp::scripted::Answer;
using zkp::scripted::Word;

struct Handle {
    std::vector<Word> words;
};

struct Link : Handle {
    std::u16string name;
    std::string log;
    bool dead = false;
    bool connected = false;
    int statements = 0;
};

/// Of all connections.
int connectedLinks = 0;

struct Bound {
    SQLUSMALLINT column;
    SQLSMALLINT type;
    char* target;
    SQLLEN room;
    SQLLEN* length;
};

struct Statement : Handle {
    explicit Statement(Link& on)
        : link(on) {
        ++link.statements;
    }
    ~Statement() { --link.statements; }
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;
    Link& link;
    Answer answer;
    std::size_t at = 0;
    std::vector<Bound> bound;
    std::size_t blockRows = 1;
    SQLULEN* fetched = nullptr;
    SQLUSMALLINT* states = nullptr;
};

Statement& of(SQLHSTMT handle) {
    return *static_cast<Statement*>(handle);
}

std::u16string textOf(const SQLWCHAR* text, SQLINTEGER length) {
    const auto* units = reinterpret_cast<const char16_t*>(text);
    return length == SQL_NTS ? std::u16string(units)
                             : std::u16string(units, static_cast<std::size_t>(length));
}

/// Copies what there is room for, with a sign behind it; `length` is told in bytes.
template <class Length>
SQLRETURN give(const std::u16string& text, SQLPOINTER target, SQLLEN room, Length* length) {
    const std::size_t bytes = text.size() * sizeof(SQLWCHAR);
    if (length)
        *length = static_cast<Length>(bytes);
    if (!target || room < SQLLEN(sizeof(SQLWCHAR)))
        return SQL_SUCCESS;
    const std::size_t copied = std::min(bytes, static_cast<std::size_t>(room) - sizeof(SQLWCHAR));
    std::memcpy(target, text.data(), copied);
    std::memset(static_cast<char*>(target) + copied, 0, sizeof(SQLWCHAR));
    return copied < bytes ? SQL_SUCCESS_WITH_INFO : SQL_SUCCESS;
}

std::u16string partOf(const std::u16string& text, const std::u16string& key) {
    const auto start = text.find(key);
    if (start == std::u16string::npos)
        return {};
    const auto value = start + key.size();
    return text.substr(value, text.find(u';', value) - value);
}

SQLRETURN fail(Statement& statement) {
    statement.words = statement.answer.words;
    for (const Word& word : statement.words)
        statement.link.dead |= std::strncmp(word.state, "08", 2) == 0;
    return SQL_ERROR;
}

SQLRETURN answer(Statement& statement, Answer with) {
    statement.answer = std::move(with);
    statement.at = 0;
    return statement.answer.failsBehind == 0 ? fail(statement) : SQL_SUCCESS;
}

const std::vector<std::u16string>& recordAt(const Statement& statement, std::size_t row) {
    const auto& records = statement.answer.records;
    return records[std::min(row, records.size() - 1)];
}

void store(const Statement& statement, const Bound& bound, std::size_t row) {
    const auto place = static_cast<SQLLEN>(row);
    if (bound.type == SQL_C_WCHAR)
        give(recordAt(statement, statement.at + row)[bound.column - 1u], bound.target + place * bound.room,
             bound.room, bound.length + place);
    else
        bound.length[place] = SQL_NULL_DATA;
}

} // namespace

extern "C" {

SQLRETURN SQL_API SQLAllocHandle(SQLSMALLINT type, SQLHANDLE parent, SQLHANDLE* handle) {
    if (type == SQL_HANDLE_STMT)
        *handle = new Statement(*static_cast<Link*>(parent));
    else if (type == SQL_HANDLE_DBC)
        *handle = new Link;
    else
        *handle = new Handle;
    return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLFreeHandle(SQLSMALLINT type, SQLHANDLE handle) {
    if (type == SQL_HANDLE_STMT)
        delete static_cast<Statement*>(handle);
    else if (type == SQL_HANDLE_DBC)
        delete static_cast<Link*>(handle);
    else
        delete static_cast<Handle*>(handle);
    return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLDriverConnectW(SQLHDBC handle, SQLHWND, SQLWCHAR* text, SQLSMALLINT length, SQLWCHAR*,
                                    SQLSMALLINT, SQLSMALLINT*, SQLUSMALLINT) {
    Link& link = *static_cast<Link*>(handle);
    const std::u16string given = textOf(text, length);
    link.name = partOf(given, u"Name=");
    for (const char16_t unit : partOf(given, u"Log="))
        link.log += static_cast<char>(unit);
    // Only what is ours may reach a driver.
    if (given.find(u"Dialect") == std::u16string::npos) {
        link.connected = true;
        ++connectedLinks;
        return SQL_SUCCESS;
    }
    link.words = {{"HY000", 1, u"[Scripted] Dialect is not a word of this driver"}};
    return SQL_ERROR;
}

/// Statements that are left would lose the ground under them.
SQLRETURN SQL_API SQLDisconnect(SQLHDBC handle) {
    Link& link = *static_cast<Link*>(handle);
    if (!link.connected || link.statements > 0)
        return SQL_ERROR;
    link.connected = false;
    --connectedLinks;
    return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLGetInfoW(SQLHDBC handle, SQLUSMALLINT what, SQLPOINTER value, SQLSMALLINT room,
                              SQLSMALLINT* length) {
    if (what == SQL_DBMS_NAME)
        return give(static_cast<Link*>(handle)->name, value, room, length);
    if (what == SQL_DRIVER_ODBC_VER)
        return give(u"03.80", value, room, length);
    if (what == SQL_GETDATA_EXTENSIONS) {
        *static_cast<SQLUINTEGER*>(value) = SQL_GD_ANY_COLUMN | SQL_GD_ANY_ORDER;
        return SQL_SUCCESS;
    }
    return SQL_ERROR;
}

SQLRETURN SQL_API SQLSetEnvAttr(SQLHENV, SQLINTEGER, SQLPOINTER, SQLINTEGER) {
    return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLSetConnectAttrW(SQLHDBC, SQLINTEGER, SQLPOINTER, SQLINTEGER) {
    return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLGetConnectAttrW(SQLHDBC handle, SQLINTEGER what, SQLPOINTER value, SQLINTEGER,
                                     SQLINTEGER*) {
    if (what != SQL_ATTR_CONNECTION_DEAD)
        return SQL_ERROR;
    *static_cast<SQLUINTEGER*>(value) = static_cast<Link*>(handle)->dead ? SQL_CD_TRUE : SQL_CD_FALSE;
    return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLEndTran(SQLSMALLINT, SQLHANDLE, SQLSMALLINT) {
    return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLSetStmtAttrW(SQLHSTMT handle, SQLINTEGER what, SQLPOINTER value, SQLINTEGER) {
    Statement& statement = of(handle);
    if (what == SQL_ATTR_ROW_ARRAY_SIZE)
        statement.blockRows = reinterpret_cast<std::size_t>(value);
    else if (what == SQL_ATTR_ROWS_FETCHED_PTR)
        statement.fetched = static_cast<SQLULEN*>(value);
    else if (what == SQL_ATTR_ROW_STATUS_PTR)
        statement.states = static_cast<SQLUSMALLINT*>(value);
    return SQL_SUCCESS;
}

/// The manager asks for the descriptors of each new statement; their addresses are all that it needs.
SQLRETURN SQL_API SQLGetStmtAttrW(SQLHSTMT handle, SQLINTEGER, SQLPOINTER value, SQLINTEGER, SQLINTEGER*) {
    *static_cast<SQLPOINTER*>(value) = handle;
    return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLExecDirectW(SQLHSTMT handle, SQLWCHAR* text, SQLINTEGER length) {
    Statement& statement = of(handle);
    const std::u16string given = textOf(text, length);
    std::ofstream log(statement.link.log, std::ios::binary | std::ios::app);
    log << given.size() << '\n';
    log.write(reinterpret_cast<const char*>(given.data()),
              static_cast<std::streamsize>(given.size() * sizeof(char16_t)));
    return answer(statement, zkp::scripted::answerTo(given, connectedLinks));
}

SQLRETURN SQL_API SQLTablesW(SQLHSTMT handle, SQLWCHAR*, SQLSMALLINT, SQLWCHAR*, SQLSMALLINT, SQLWCHAR*,
                             SQLSMALLINT, SQLWCHAR*, SQLSMALLINT) {
    return answer(of(handle), zkp::scripted::tables());
}
SQLRETURN SQL_API SQLColumnsW(SQLHSTMT handle, SQLWCHAR*, SQLSMALLINT, SQLWCHAR*, SQLSMALLINT,
                              SQLWCHAR* table, SQLSMALLINT length, SQLWCHAR*, SQLSMALLINT) {
    return answer(of(handle), zkp::scripted::columnsOf(textOf(table, length)));
}
SQLRETURN SQL_API SQLPrimaryKeysW(SQLHSTMT handle, SQLWCHAR*, SQLSMALLINT, SQLWCHAR*, SQLSMALLINT, SQLWCHAR*,
                                  SQLSMALLINT) {
    return answer(of(handle), zkp::scripted::primaryKey());
}

SQLRETURN SQL_API SQLBindParameter(SQLHSTMT, SQLUSMALLINT, SQLSMALLINT, SQLSMALLINT, SQLSMALLINT, SQLULEN,
                                   SQLSMALLINT, SQLPOINTER, SQLLEN, SQLLEN*) {
    return SQL_SUCCESS;
}

/// Of the record fetched last; there are no bytes in any.
SQLRETURN SQL_API SQLGetData(SQLHSTMT handle, SQLUSMALLINT column, SQLSMALLINT type, SQLPOINTER target,
                             SQLLEN room, SQLLEN* length) {
    const Statement& statement = of(handle);
    if (type == SQL_C_WCHAR)
        return give(recordAt(statement, statement.at - 1)[column - 1u], target, room, length);
    *length = SQL_NULL_DATA;
    return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLCancel(SQLHSTMT) {
    return SQL_SUCCESS;
}
SQLRETURN SQL_API SQLMoreResults(SQLHSTMT handle) {
    Statement& statement = of(handle);
    if (statement.answer.further == 0)
        return SQL_NO_DATA;
    --statement.answer.further;
    statement.at = 0;
    return SQL_SUCCESS;
}
SQLRETURN SQL_API SQLRowCount(SQLHSTMT handle, SQLLEN* count) {
    *count = of(handle).answer.written;
    return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLNumResultCols(SQLHSTMT handle, SQLSMALLINT* count) {
    *count = static_cast<SQLSMALLINT>(of(handle).answer.columns.size());
    return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLDescribeColW(SQLHSTMT handle, SQLUSMALLINT column, SQLWCHAR* name, SQLSMALLINT room,
                                  SQLSMALLINT* length, SQLSMALLINT* type, SQLULEN* size, SQLSMALLINT* digits,
                                  SQLSMALLINT* nullable) {
    const zkp::scripted::Column& described = of(handle).answer.columns[column - 1u];
    *type = described.type;
    *size = described.size;
    *digits = 0;
    *nullable = SQL_NULLABLE;
    const SQLRETURN code = give(described.name, name, room * SQLLEN(sizeof(SQLWCHAR)), length);
    *length = static_cast<SQLSMALLINT>(described.name.size());
    return code;
}

SQLRETURN SQL_API SQLColAttributeW(SQLHSTMT, SQLUSMALLINT, SQLUSMALLINT, SQLPOINTER, SQLSMALLINT,
                                   SQLSMALLINT*, SQLLEN*) {
    return SQL_ERROR;
}

SQLRETURN SQL_API SQLBindCol(SQLHSTMT handle, SQLUSMALLINT column, SQLSMALLINT type, SQLPOINTER target,
                             SQLLEN room, SQLLEN* length) {
    of(handle).bound.push_back({column, type, static_cast<char*>(target), room, length});
    return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLFetch(SQLHSTMT handle) {
    Statement& statement = of(handle);
    const Answer& answer = statement.answer;
    if (statement.at >= answer.failsBehind)
        return fail(statement);
    const std::size_t end = std::min(answer.rows, answer.failsBehind);
    const std::size_t count = std::min(statement.blockRows, end - statement.at);
    if (count == 0)
        return SQL_NO_DATA;
    for (std::size_t row = 0; row < count; ++row) {
        for (const Bound& bound : statement.bound)
            store(statement, bound, row);
        if (statement.states)
            statement.states[row] = SQL_ROW_SUCCESS;
    }
    statement.at += count;
    if (statement.fetched)
        *statement.fetched = count;
    return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLFreeStmt(SQLHSTMT handle, SQLUSMALLINT what) {
    if (what == SQL_UNBIND)
        of(handle).bound.clear();
    return SQL_SUCCESS;
}

SQLRETURN SQL_API SQLGetDiagRecW(SQLSMALLINT, SQLHANDLE handle, SQLSMALLINT record, SQLWCHAR* state,
                                 SQLINTEGER* native, SQLWCHAR* text, SQLSMALLINT room, SQLSMALLINT* length) {
    const std::vector<Word>& words = static_cast<Handle*>(handle)->words;
    if (record < 1 || static_cast<std::size_t>(record) > words.size())
        return SQL_NO_DATA;
    const Word& word = words[static_cast<std::size_t>(record) - 1];
    std::copy_n(word.state, 6, state);
    *native = word.native;
    const SQLRETURN code = give(word.text, text, room * SQLLEN(sizeof(SQLWCHAR)), length);
    if (length)
        *length = static_cast<SQLSMALLINT>(word.text.size());
    return code;
}

/// The manager asks no driver for words that lacks this.
SQLRETURN SQL_API SQLGetDiagFieldW(SQLSMALLINT, SQLHANDLE, SQLSMALLINT, SQLSMALLINT, SQLPOINTER, SQLSMALLINT,
                                   SQLSMALLINT*) {
    return SQL_ERROR;
}

} // extern "C"
