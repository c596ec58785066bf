#pragma once

#include "ado/recordset.h"
#include "error_of.h"
#include "print_qt.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zkp::ado::test {

using zkp::test::errorNumber;
using zkp::test::errorText;
using zkp::test::u;

/// A connection to an empty database in memory.
class AdoTest : public testing::Test {
protected:
    AdoTest() { cn->Open(QStringLiteral("sqlite:")); }

    void run(const char* sql) { cn->Execute(QString::fromUtf8(sql)); }

    RecordsetPtr open(const QString& sql, int lockType = -1) {
        auto rs = std::make_shared<Recordset>();
        rs->Open(sql, cn, adOpenStatic, lockType);
        return rs;
    }
    RecordsetPtr open(const char* sql, int lockType = -1) { return open(QString::fromUtf8(sql), lockType); }

    QVariant one(const char* sql) { return open(sql)->Fields().Item(0).Value(); }

    /// An empty SQLite file in a folder that goes with the test.
    QString newFile(const char* name = "test.db") {
        const QString path = dir.filePath(QString::fromLatin1(name));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return path;
    }

    ConnectionPtr cn = std::make_shared<Connection>();
    QTemporaryDir dir;
};

/// The values of the first field, record by record.
inline QStringList firstField(const RecordsetPtr& rs) {
    QStringList values;
    for (std::int64_t i = 0; i < rs->RecordCount(); ++i) {
        const QVariant value = rs->table().columns[0]->value(rs->tableRow(i));
        values << (value.isValid() ? value.toString() : QStringLiteral("NULL"));
    }
    return values;
}

} // namespace zkp::ado::test
