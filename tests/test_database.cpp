#include "test_database.h"

#include "ado/recordset.h"

#include <QFile>
#include <QRegularExpression>

namespace zkp::test {

using namespace Qt::StringLiterals;

namespace {

const QString kProcedure = u"Sec_GetUserIerarxiaID"_s;

struct TypeWord {
    const char* embedded;
    const char* postgres;
    const char* mariaDb;
};

/// A row of a table without a key is known by its texts, unless they may be of any length.
constexpr TypeWord kTypeWords[] = {
    {"text", "TEXT", "VARCHAR(255)"},       {"money", "DECIMAL(19,4)", "DECIMAL(19,4)"},
    {"bit", "BOOLEAN", "BIT(1)"},           {"double", "DOUBLE PRECISION", "DOUBLE"},
    {"real", "DOUBLE PRECISION", "DOUBLE"}, {"datetime", "TIMESTAMP(3)", "DATETIME(3)"},
    {"blob", "BYTEA", "LONGBLOB"},
};

} // namespace

TestDatabase::TestDatabase(const QString& file)
    : server_(qEnvironmentVariable("ZKP_TEST_ON"))
    , connectionString_(isServer() ? qEnvironmentVariable(server_.toUtf8()) : u"sqlite:"_s + file) {
    if (isServer()) {
        emptyServer();
        embedded_->Open(u"sqlite:"_s);
    } else if (!file.isEmpty()) {
        QFile(file).open(QIODevice::WriteOnly | QIODevice::Truncate);
    }
}

ado::ConnectionPtr TestDatabase::connect() const {
    auto connection = std::make_shared<ado::Connection>();
    connection->Open(connectionString_);
    return connection;
}

void TestDatabase::emptyServer() const {
    const ado::ConnectionPtr connection = connect();
    if (isPostgres()) {
        connection->Execute(u"DROP SCHEMA IF EXISTS public CASCADE"_s);
        connection->Execute(u"CREATE SCHEMA public"_s);
        // As the other databases do, it shall take 0 and 1 for a flag.
        connection->Execute(u"UPDATE pg_cast SET castcontext = chr(97)::\"char\" "
                            "WHERE castsource = 23 AND casttarget = 16"_s);
        return;
    }
    const QString name = connection->Execute(u"SELECT DATABASE()"_s)->Fields().Item(0).Value().toString();
    connection->Execute(u"DROP DATABASE "_s + name);
    connection->Execute(u"CREATE DATABASE %1 CHARACTER SET utf8mb4 COLLATE utf8mb4_nopad_bin"_s.arg(name));
}

ado::RecordsetPtr TestDatabase::run(const ado::ConnectionPtr& connection, const QString& statement) const {
    if (!isServer())
        return connection->Execute(statement);
    embedded_->Execute(statement);
    const ado::RecordsetPtr result = connection->Execute(withServerTypes(statement));
    if (statement.contains(u" procedures"))
        makeProcedure(connection);
    return result;
}

QString TestDatabase::withServerTypes(QString statement) const {
    static const QRegularExpression makesTable(u"^\\s*(create|alter)\\s+table\\b"_s,
                                               QRegularExpression::CaseInsensitiveOption);
    if (!makesTable.match(statement).hasMatch())
        return statement;
    for (const TypeWord& word : kTypeWords)
        statement.replace(QRegularExpression(u"\\b%1\\b"_s.arg(QLatin1StringView(word.embedded)),
                                             QRegularExpression::CaseInsensitiveOption),
                          QLatin1StringView(isPostgres() ? word.postgres : word.mariaDb));
    return statement;
}

void TestDatabase::refuseWriting(const ado::ConnectionPtr& connection, bool refused) const {
    if (!isServer())
        connection->Execute(u"PRAGMA query_only = %1"_s.arg(refused ? 1 : 0));
    else if (isPostgres())
        connection->Execute(u"SET default_transaction_read_only = "_s + (refused ? u"on"_s : u"off"_s));
    else
        connection->Execute(u"SET SESSION TRANSACTION READ "_s + (refused ? u"ONLY"_s : u"WRITE"_s));
}

/// A view beside it has the columns of what it gives.
void TestDatabase::makeProcedure(const ado::ConnectionPtr& connection) const {
    connection->Execute(isPostgres() ? u"DROP VIEW IF EXISTS procedure_row CASCADE"_s
                                     : u"DROP PROCEDURE IF EXISTS "_s + kProcedure);
    const auto row = connection->Execute(u"SELECT statement FROM procedures"_s);
    if (row->Eof())
        return;
    const QString text = row->Fields().Item(0).Value().toString();
    if (isPostgres()) {
        connection->Execute(u"CREATE VIEW procedure_row AS "_s + QString(text).replace(u"?1"_s, u"''"_s));
        connection->Execute(
            u"CREATE FUNCTION %1(who TEXT) RETURNS SETOF procedure_row LANGUAGE sql AS '%2'"_s.arg(
                kProcedure, QString(text).replace(u"?1"_s, u"who"_s)));
    } else {
        connection->Execute(
            u"CREATE PROCEDURE %1(who TEXT) %2"_s.arg(kProcedure, QString(text).replace(u"?1"_s, u"who"_s)));
    }
}

QString TestDatabase::constant(const QByteArray& bytes) const {
    return (isPostgres() ? u"'\\x%1'"_s : u"x'%1'"_s).arg(QString::fromLatin1(bytes.toHex()));
}

} // namespace zkp::test
