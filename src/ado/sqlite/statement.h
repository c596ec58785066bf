#pragma once

#include "ado/sqlite/database.h"

#include <QVariantList>

namespace zkp::ado::sqlite {

/// A prepared statement. Reset and finalized in a turn of its own.
class Statement {
public:
    /// Error when the text is no statement, or has more than one.
    Statement(std::shared_ptr<Database> database, const QString& sql, Deadline deadline = {});
    ~Statement();
    Statement(Statement&& other) noexcept;
    Statement& operator=(Statement&&) = delete;

    sqlite3_stmt* handle() const { return handle_; }
    int columnCount() const { return sqlite3_column_count(handle_); }
    int parameterCount() const { return sqlite3_bind_parameter_count(handle_); }
    /// From the first parameter on.
    void bind(const QVariantList& values);
    /// True when a row is there; in the caller's turn.
    bool step();
    /// A value of the row as SQLite has it: integer, double, text, bytes or null.
    QVariant value(int column) const;
    QString text(int column) const { return value(column).toString(); }

private:
    void bindOne(int index, const QVariant& value);

    std::shared_ptr<Database> database_;
    sqlite3_stmt* handle_ = nullptr;
};

} // namespace zkp::ado::sqlite
