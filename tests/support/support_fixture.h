#pragma once

#include "ado/recordset.h"
#include "base/error.h"
#include "print_qt.h"
#include "test_database.h"

#include <gtest/gtest.h>

namespace zkp::test {

/// The number of the Error that a call throws; 0 when it throws none.
template <class F>
std::uint32_t errorNumber(F&& call) {
    try {
        call();
    } catch (const Error& error) {
        return error.number();
    }
    return 0;
}

/// A connection to an empty database.
class DatabaseTest : public testing::Test {
protected:
    void run(const QString& statement) { database.run(cn, statement); }
    ado::RecordsetPtr open(const QString& statement) {
        auto records = std::make_shared<ado::Recordset>();
        records->Open(statement, cn, ado::adOpenStatic);
        return records;
    }

    TestDatabase database;
    ado::ConnectionPtr cn = database.connect();
};

} // namespace zkp::test
