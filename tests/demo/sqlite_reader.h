#pragma once

#include <QString>

#include <string>
#include <vector>

struct sqlite3;

namespace zkp::demo::test {

/// A made database as SQLite itself shows it, with nothing of the engine between.
class Reader {
public:
    explicit Reader(const QString& file);
    ~Reader();
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    /// All rows of a statement as text, "NULL" for a null. A failure throws std::runtime_error.
    std::vector<std::vector<std::string>> rows(const std::string& statement) const;
    /// The first column of all rows.
    std::vector<std::string> column(const std::string& statement) const;
    /// The only value, as a whole number.
    long long number(const std::string& statement) const;
    std::vector<std::string> columnNames(const std::string& table) const;
    /// What a view's or table's column is declared as.
    std::string declaredType(const std::string& source, const std::string& column) const;

private:
    sqlite3* handle_ = nullptr;
};

/// One database of 2,000 policies, made once for all tests that only read.
const Reader& smallDatabase();

} // namespace zkp::demo::test
