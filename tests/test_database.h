#pragma once

#include "ado/connection.h"

#include <QString>

namespace zkp::test {

/// The database that tests run on: embedded, or the server whose connection string stands in the
/// environment variable that ZKP_TEST_ON names. Statements that make tables write SQLite's types; a server
/// gets its own words for them, and a row of the table `procedures` becomes a procedure there.
class TestDatabase {
public:
    /// An empty one. `file` keeps an embedded one, which else stands in memory.
    explicit TestDatabase(const QString& file = {});

    bool isServer() const { return !server_.isEmpty(); }
    const QString& connectionString() const { return connectionString_; }
    ado::ConnectionPtr connect() const;
    /// An embedded database that a server's is to be compared with, prepared by the same statements.
    const ado::ConnectionPtr& embedded() const { return embedded_; }
    /// Runs a statement that prepares a test.
    ado::RecordsetPtr run(const ado::ConnectionPtr& connection, const QString& statement) const;
    /// Whether the database refuses what the connection would write.
    void refuseWriting(const ado::ConnectionPtr& connection, bool refused) const;
    /// Bytes as a constant of a statement.
    QString constant(const QByteArray& bytes) const;

private:
    bool isPostgres() const { return server_.contains(QStringLiteral("POSTGRES")); }
    void emptyServer() const;
    void makeProcedure(const ado::ConnectionPtr& connection) const;
    QString withServerTypes(QString statement) const;

    QString server_; ///< name of the variable; empty for an embedded one
    QString connectionString_;
    ado::ConnectionPtr embedded_ = std::make_shared<ado::Connection>();
};

} // namespace zkp::test
