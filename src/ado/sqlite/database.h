#pragma once

#include "ado/sqlite/deadline.h"
#include "base/error.h"

#include <QString>

#include <sqlite3.h>

#include <cstdint>
#include <memory>
#include <mutex>

namespace zkp::ado::sqlite {

/// An open SQLite file. The handle has no lock of its own: whoever uses it holds a Turn.
class Database {
public:
    /// Never creates a file; an empty name is an empty database in memory. Read-only connections
    /// refuse all writing except to the template and settings tables.
    Database(const QString& file, bool readOnly);
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    sqlite3* handle() const { return handle_; }
    bool isReadOnly() const { return readOnly_; }

    /// The Error for a result code, with the database's words.
    Error failure(int code) const;
    /// Runs a text without results.
    void execute(const char* sql);

    /// The database is about to receive a statement.
    void setLastStatement(const QString& text) {
        lastStatement_ = text;
        ++statementsSent_;
    }
    const QString& lastStatement() const { return lastStatement_; }
    std::uint64_t statementsSent() const { return statementsSent_; }

private:
    friend class Turn;
    void openFile(const QString& file);
    void prepareHandle();

    sqlite3* handle_ = nullptr;
    bool readOnly_;
    QString lastStatement_;
    std::uint64_t statementsSent_ = 0;
    std::recursive_mutex turns_;
    std::unique_ptr<Interrupter> interrupter_;
};

/// The right to use the handle, and until when: a statement that runs longer is interrupted.
/// Everything that calls SQLite takes a turn, so that a fetch on its own thread and a statement
/// that the host runs meanwhile don't meet.
class Turn {
public:
    explicit Turn(Database& database, Deadline deadline = {});
    ~Turn();
    Turn(const Turn&) = delete;
    Turn& operator=(const Turn&) = delete;

private:
    std::lock_guard<std::recursive_mutex> lock_;
    Interrupter& interrupter_;
    Deadline before_;
};

} // namespace zkp::ado::sqlite
