#pragma once

#include "ado/recordset.h"
#include "error_of.h"
#include "print_qt.h"
#include "test_database.h"

#include <gtest/gtest.h>

namespace zkp::test {

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
