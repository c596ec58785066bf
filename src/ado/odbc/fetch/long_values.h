#pragma once

#include "ado/odbc/session/statement.h"

#include <string>

namespace zkp::ado::odbc {

/// Reads values whole that no bound buffer could take, one by one.
class LongValues {
public:
    explicit LongValues(const Statement& statement)
        : statement_(statement) {}

    /// The row of the block that the values are read from, from 0. An error where the driver can't go back:
    /// some give another row's values.
    void goTo(std::size_t row);
    /// The value's bytes, valid until the next call; nothing for a null. UTF-16 for SQL_C_WCHAR.
    const std::string* read(int column, SQLSMALLINT cType);

private:
    const Statement& statement_;
    std::string bytes_;
};

} // namespace zkp::ado::odbc
