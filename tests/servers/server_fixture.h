#pragma once

#include "ado/recordset.h"
#include "error_of.h"
#include "print_qt.h"

#include <gtest/gtest.h>

namespace zkp::servers {

/// A server that the tests run on, by the name of the variable that holds its connection string.
struct Server {
    const char* name;
    const char* variable;
    const char* bytesType;
    const char* momentType;
    const char* textType; ///< of any length
};

inline const Server kPostgres{"PostgreSQL", "ZKP_TEST_POSTGRES", "BYTEA", "TIMESTAMP", "TEXT"};
inline const Server kMariaDb{"MariaDB", "ZKP_TEST_MARIADB", "LONGBLOB", "DATETIME(3)", "LONGTEXT"};

inline void PrintTo(const Server& server, std::ostream* out) {
    *out << server.name;
}

using test::errorNumber;
using test::errorOf;
using test::errorText;
using test::u;

/// A connection to a server; the tests make their own tables, and drop them first.
class ServerTest : public testing::TestWithParam<Server> {
protected:
    ServerTest() { cn->Open(connectionString()); }

    static QString connectionString() { return QString::fromUtf8(qgetenv(GetParam().variable)); }
    bool isPostgres() const { return GetParam().variable == kPostgres.variable; }

    void run(const QString& sql) { cn->Execute(sql); }
    void run(const char* sql) { run(u(sql)); }
    /// Makes a table anew; BYTES, MOMENT and LONGTEXT become the server's own words.
    void make(const char* name, const char* columns) {
        run(u("DROP TABLE IF EXISTS ") + u(name));
        run(u("CREATE TABLE ") + u(name) + u(" (") +
            u(columns)
                .replace(u("BYTES"), u(GetParam().bytesType))
                .replace(u("MOMENT"), u(GetParam().momentType))
                .replace(u("LONGTEXT"), u(GetParam().textType)) +
            u(")"));
    }
    ado::RecordsetPtr open(const QString& sql, int lockType = -1) {
        auto rs = std::make_shared<ado::Recordset>();
        rs->Open(sql, cn, ado::adOpenStatic, lockType);
        return rs;
    }
    ado::RecordsetPtr open(const char* sql, int lockType = -1) { return open(u(sql), lockType); }
    QVariant one(const char* sql) { return open(sql)->Fields().Item(0).Value(); }

    ado::ConnectionPtr cn = std::make_shared<ado::Connection>();
};

/// The values of the first field, record by record.
inline QStringList firstField(const ado::RecordsetPtr& rs) {
    QStringList values;
    for (std::int64_t i = 0; i < rs->RecordCount(); ++i) {
        const QVariant value = rs->table().columns[0]->value(rs->tableRow(i));
        values << (value.isValid() ? value.toString() : QStringLiteral("NULL"));
    }
    return values;
}

} // namespace zkp::servers
