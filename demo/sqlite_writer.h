#pragma once

#include "demo/calendar.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace zkp::demo {

/// An amount in cents.
struct Money {
    std::int64_t cents = 0;
    friend bool operator==(Money, Money) = default;
};

/// A new SQLite file being filled by one writer. Every failure is an Error kErrDatabase in SQLite's words.
class Database {
public:
    /// Creates `path`, or takes an empty file there.
    explicit Database(const QString& path);
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    /// Runs all statements of the text.
    void run(const std::string& statements);
    /// Ends the connection and reports what may still fail there.
    void close();

    sqlite3* handle() const { return handle_; }
    [[noreturn]] void fail() const;

private:
    sqlite3* handle_ = nullptr;
};

/// Adds rows to one table: `insert.row(1, "Βόλος", Money{12500}, std::nullopt)`, one value a column.
class Insert {
public:
    /// A table that exists already.
    Insert(Database& database, std::string_view table);
    ~Insert();
    Insert(const Insert&) = delete;
    Insert& operator=(const Insert&) = delete;

    template <typename... Values>
    void row(const Values&... values) {
        int column = 0;
        (bind(++column, values), ...);
        step(column);
    }

private:
    void bind(int column, std::nullopt_t);
    void bind(int column, bool value) { bind(column, std::int64_t{value}); }
    void bind(int column, int value) { bind(column, std::int64_t{value}); }
    void bind(int column, std::int64_t value);
    void bind(int column, double value);
    void bind(int column, Money value) { bind(column, static_cast<double>(value.cents) / 100); }
    void bind(int column, std::string_view text);
    void bind(int column, const std::string& text) { bind(column, std::string_view{text}); }
    void bind(int column, const char* text) { bind(column, std::string_view{text}); }
    void bind(int column, Day value);
    void bind(int column, const Moment& value);
    template <typename Value>
    void bind(int column, const std::optional<Value>& value) {
        if (value)
            bind(column, *value);
        else
            bind(column, std::nullopt);
    }

    void bindCopy(int column, std::string_view text);
    void step(int values);

    Database& database_;
    sqlite3_stmt* statement_ = nullptr;
};

} // namespace zkp::demo
