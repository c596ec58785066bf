#include "demo/sqlite_reader.h"

#include "demo/demo_database.h"

#include <QTemporaryDir>

#include <sqlite3.h>

#include <stdexcept>

namespace zkp::demo::test {

namespace {

struct Statement {
    Statement(sqlite3* database, const std::string& text) {
        if (sqlite3_prepare_v2(database, text.c_str(), -1, &handle, nullptr) != SQLITE_OK)
            throw std::runtime_error(std::string{sqlite3_errmsg(database)} + " in " + text);
    }
    ~Statement() { sqlite3_finalize(handle); }
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    std::string text(int column) const {
        const auto* bytes = sqlite3_column_text(handle, column);
        return bytes ? reinterpret_cast<const char*>(bytes) : "NULL";
    }

    sqlite3_stmt* handle = nullptr;
};

} // namespace

Reader::Reader(const QString& file) {
    if (sqlite3_open_v2(file.toUtf8().constData(), &handle_, SQLITE_OPEN_READONLY, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(handle_));
}

Reader::~Reader() {
    sqlite3_close(handle_);
}

std::vector<std::vector<std::string>> Reader::rows(const std::string& statement) const {
    const Statement running(handle_, statement);
    std::vector<std::vector<std::string>> all;
    int code = sqlite3_step(running.handle);
    for (; code == SQLITE_ROW; code = sqlite3_step(running.handle)) {
        auto& row = all.emplace_back();
        for (int column = 0; column < sqlite3_column_count(running.handle); ++column)
            row.push_back(running.text(column));
    }
    if (code != SQLITE_DONE)
        throw std::runtime_error(std::string{sqlite3_errmsg(handle_)} + " in " + statement);
    return all;
}

std::vector<std::string> Reader::column(const std::string& statement) const {
    std::vector<std::string> values;
    for (const auto& row : rows(statement))
        values.push_back(row.at(0));
    return values;
}

long long Reader::number(const std::string& statement) const {
    return std::stoll(rows(statement).at(0).at(0));
}

std::vector<std::string> Reader::columnNames(const std::string& table) const {
    return column("SELECT name FROM pragma_table_info('" + table + "')");
}

std::string Reader::declaredType(const std::string& source, const std::string& column) const {
    const Statement statement(handle_, "SELECT [" + column + "] FROM " + source);
    const char* type = sqlite3_column_decltype(statement.handle, 0);
    return type ? type : "";
}

const Reader& smallDatabase() {
    static const QTemporaryDir folder;
    static const QString file = folder.filePath(QStringLiteral("small.db"));
    static const Reader reader = [] {
        makeDatabase({file, 2000, 1});
        return Reader(file);
    }();
    return reader;
}

} // namespace zkp::demo::test
