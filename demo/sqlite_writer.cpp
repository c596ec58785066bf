#include "demo/sqlite_writer.h"

#include "base/error.h"

#include <sqlite3.h>

namespace zkp::demo {

namespace {

/// `digits` decimal digits of a number, zeros in front.
char* putDigits(char* at, int number, int digits) {
    for (int i = digits - 1; i >= 0; --i, number /= 10)
        at[i] = static_cast<char>('0' + number % 10);
    return at + digits;
}

char* putDay(char* at, Day value) {
    const std::chrono::year_month_day date{value};
    at = putDigits(at, static_cast<int>(date.year()), 4);
    *at++ = '-';
    at = putDigits(at, static_cast<int>(static_cast<unsigned>(date.month())), 2);
    *at++ = '-';
    return putDigits(at, static_cast<int>(static_cast<unsigned>(date.day())), 2);
}

char* putTime(char* at, int secondOfDay) {
    at = putDigits(at, secondOfDay / 3600, 2);
    *at++ = ':';
    at = putDigits(at, secondOfDay / 60 % 60, 2);
    *at++ = ':';
    return putDigits(at, secondOfDay % 60, 2);
}

int length(std::string_view text) {
    return static_cast<int>(text.size());
}

} // namespace

Database::Database(const QString& path) {
    const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
    if (sqlite3_open_v2(path.toUtf8().constData(), &handle_, flags, nullptr) != SQLITE_OK) {
        const QString words = QString::fromUtf8(sqlite3_errmsg(handle_));
        sqlite3_close(handle_);
        throw Error(kErrDatabase, words);
    }
}

Database::~Database() {
    sqlite3_close_v2(handle_);
}

void Database::run(const std::string& statements) {
    if (sqlite3_exec(handle_, statements.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
        fail();
}

void Database::close() {
    if (sqlite3_close(handle_) != SQLITE_OK)
        fail();
    handle_ = nullptr;
}

void Database::fail() const {
    throw Error(kErrDatabase, QString::fromUtf8(sqlite3_errmsg(handle_)));
}

Insert::Insert(Database& database, std::string_view table)
    : database_(database) {
    const std::string counting = "SELECT count(*) FROM pragma_table_info('" + std::string{table} + "')";
    sqlite3_stmt* count = nullptr;
    if (sqlite3_prepare_v2(database.handle(), counting.c_str(), -1, &count, nullptr) != SQLITE_OK)
        database.fail();
    const int columns = sqlite3_step(count) == SQLITE_ROW ? sqlite3_column_int(count, 0) : 0;
    sqlite3_finalize(count);

    std::string text = "INSERT INTO " + std::string{table} + " VALUES (?";
    for (int column = 1; column < columns; ++column)
        text += ",?";
    text += ")";
    if (sqlite3_prepare_v2(database.handle(), text.c_str(), -1, &statement_, nullptr) != SQLITE_OK)
        database.fail();
}

Insert::~Insert() {
    sqlite3_finalize(statement_);
}

void Insert::bind(int column, std::nullopt_t) {
    sqlite3_bind_null(statement_, column);
}

void Insert::bind(int column, std::int64_t value) {
    sqlite3_bind_int64(statement_, column, value);
}

void Insert::bind(int column, double value) {
    sqlite3_bind_double(statement_, column, value);
}

void Insert::bind(int column, std::string_view text) {
    // The caller's text outlives the step, so it is not copied. A view of no text at all has no
    // address, which SQLite would take for a null; the empty text is not one.
    sqlite3_bind_text(statement_, column, text.data() ? text.data() : "", length(text), SQLITE_STATIC);
}

void Insert::bindCopy(int column, std::string_view text) {
    sqlite3_bind_text(statement_, column, text.data(), length(text), SQLITE_TRANSIENT);
}

void Insert::bind(int column, Day value) {
    char text[10];
    putDay(text, value);
    bindCopy(column, {text, sizeof text});
}

void Insert::bind(int column, const Moment& value) {
    char text[19];
    char* at = putDay(text, value.day);
    *at++ = ' ';
    putTime(at, value.secondOfDay);
    bindCopy(column, {text, sizeof text});
}

void Insert::step(int values) {
    if (values != sqlite3_bind_parameter_count(statement_))
        throw Error(kErrInvalidCall, QStringLiteral("A row needs one value for each column."));
    if (sqlite3_step(statement_) != SQLITE_DONE) {
        const QString words = QString::fromUtf8(sqlite3_errmsg(database_.handle()));
        sqlite3_reset(statement_);
        throw Error(kErrDatabase, words);
    }
    sqlite3_reset(statement_);
}

} // namespace zkp::demo
