#include "ado/odbc/session/server_facts.h"

#include "ado/odbc/session/run.h"
#include "base/scope_guard.h"

#include <string_view>

namespace zkp::ado::odbc {

namespace {

constexpr int kSeconds = 30;

Result ask(Session& session, const char* sql) {
    return runStatement(session, QString::fromLatin1(sql), {kSeconds, {}});
}

/// Names with anything but small letters, digits and "_" are not what the server folds a bare name to;
/// "f" tells of Boolean columns.
constexpr char kPostgresNames[] =
    "SELECT 'r' AS kind, c.relname AS relation, '' AS name FROM pg_class c JOIN pg_namespace n ON n.oid = "
    "c.relnamespace WHERE n.nspname NOT LIKE 'pg\\_%' AND n.nspname <> 'information_schema' "
    "AND c.relkind IN ('r','v','m','f','p') AND c.relname ~ '[^a-z0-9_]' "
    "UNION ALL SELECT CASE WHEN a.attname ~ '[^a-z0-9_]' THEN 'c' ELSE '' END || "
    "CASE WHEN a.atttypid = 'bool'::regtype THEN 'f' ELSE '' END, c.relname, a.attname FROM pg_attribute a "
    "JOIN pg_class c ON c.oid = a.attrelid JOIN pg_namespace n ON n.oid = c.relnamespace "
    "WHERE n.nspname NOT LIKE 'pg\\_%' AND n.nspname <> 'information_schema' AND a.attnum > 0 "
    "AND NOT a.attisdropped AND c.relkind IN ('r','v','m','f','p') "
    "AND (a.attname ~ '[^a-z0-9_]' OR a.atttypid = 'bool'::regtype) "
    "UNION ALL SELECT 'r', p.proname, '' FROM pg_proc p JOIN pg_namespace n ON n.oid = p.pronamespace "
    "WHERE n.nspname NOT LIKE 'pg\\_%' AND n.nspname <> 'information_schema' AND p.proname ~ '[^a-z0-9_]'";

dialect::Catalogue readPostgres(Session& session) {
    dialect::Catalogue catalogue;
    const Result names = ask(session, kPostgresNames);
    for (std::size_t row = 0; row < names.table.rows; ++row) {
        const auto text = [&](std::size_t column) {
            return names.table.columns[column]->value(row).toString();
        };
        const QString kind = text(0);
        if (kind.contains(u'r'))
            catalogue.addSpelling(text(1));
        if (kind.contains(u'c'))
            catalogue.addColumnSpelling(text(1), text(2));
        if (kind.contains(u'f'))
            catalogue.addFlag(text(1), text(2));
    }
    return catalogue;
}

dialect::Catalogue readMariaDb(Session& session) {
    dialect::Catalogue catalogue;
    const Result names =
        ask(session, "SELECT TABLE_NAME FROM information_schema.TABLES WHERE TABLE_SCHEMA = DATABASE()");
    for (std::size_t row = 0; row < names.table.rows; ++row)
        catalogue.addSpelling(names.table.columns[0]->value(row).toString());
    const Result greek = ask(session, "SELECT TABLE_NAME, COLUMN_NAME FROM information_schema.COLUMNS WHERE "
                                      "TABLE_SCHEMA = DATABASE() AND "
                                      "COLUMN_NAME <> CONVERT(COLUMN_NAME USING ascii)");
    for (std::size_t row = 0; row < greek.table.rows; ++row)
        catalogue.addColumnSpelling(greek.table.columns[0]->value(row).toString(),
                                    greek.table.columns[1]->value(row).toString());
    return catalogue;
}

/// Sessions for reading, ours and those of users who have it as their default, may make one all the same.
void makePostgresCollation(Session& session) {
    const Result reading = ask(session, "SHOW default_transaction_read_only");
    const bool unlock = !session.isInTransaction() && reading.table.rows > 0 &&
                        reading.table.columns[0]->value(0).toString() == QStringLiteral("on");
    const ScopeGuard guard([&] {
        try {
            if (unlock)
                allowWriting(session, false);
        } catch (const Error&) {
            // The connection is gone.
        }
    });
    if (unlock)
        allowWriting(session, true);
    ask(session, "CREATE COLLATION IF NOT EXISTS pg_temp.zkp_text (provider = icu, locale = "
                 "'und-u-ks-level2', deterministic = false)");
}

QString postgresEncoding(Session& session) {
    const Result encoding = ask(session, "SHOW server_encoding");
    return encoding.table.rows > 0 ? encoding.table.columns[0]->value(0).toString() : QString();
}

/// A database of bytes without an encoding has no letters either: its texts compare as they are.
bool hasLetters(Session& session) {
    const QString name = postgresEncoding(session);
    return name != QStringLiteral("SQL_ASCII") && name != QStringLiteral("MULE_INTERNAL");
}

/// An administrator's collation where there is one, so that its indexes are of use, or else one that
/// lasts as long as the session.
QString choosePostgresCollation(Session& session) {
    const Result kept =
        ask(session, "SELECT quote_ident(n.nspname) FROM pg_collation c JOIN pg_namespace n ON "
                     "n.oid = c.collnamespace WHERE c.collname = 'zkp_text' AND "
                     "pg_collation_is_visible(c.oid)");
    if (kept.table.rows > 0)
        return kept.table.columns[0]->value(0).toString() + QStringLiteral(".zkp_text");
    if (!hasLetters(session))
        return {};
    try {
        makePostgresCollation(session);
    } catch (const Error& error) {
        if (session.isLost())
            throw;
        throw Error(kErrDatabase,
                    QStringLiteral("Texts can't be compared without regard to case: an administrator has to "
                                   "make the collation zkp_text in this database.\n") +
                        error.description(),
                    error.source());
    }
    return QStringLiteral("pg_temp.zkp_text");
}

/// Versions before 10.10 have none with accents.
QString chooseMariaDbCollation(Session& session) {
    try {
        ask(session, "SELECT 'a' COLLATE utf8mb4_uca1400_nopad_as_ci");
    } catch (const Error&) {
        if (session.isLost())
            throw;
        return {};
    }
    return QStringLiteral("utf8mb4_uca1400_nopad_as_ci");
}

/// Constants mean what they say: no "\" opens anything, and "||" joins texts. Texts that a statement makes
/// itself are sorted and grouped as those of the tables.
void prepareMariaDb(Session& session) {
    ask(session, "SET SESSION sql_mode = CONCAT(@@sql_mode, ',NO_BACKSLASH_ESCAPES,PIPES_AS_CONCAT')");
    const Result told = ask(session, "SELECT @@collation_database");
    if (told.table.columns[0]->value(0).toString().startsWith(QStringLiteral("utf8mb4_")))
        ask(session, "SET collation_connection = @@collation_database");
}

/// Tries it with an omega: what a driver makes of narrow characters depends on its settings, the server's
/// and the machine's.
bool givesUtf8(Session& session) {
    const bool postgres = session.dialect() == Dialect::PostgreSql;
    try {
        Statement statement(session, kSeconds);
        statement.execute(QString::fromLatin1(postgres ? "SELECT chr(937)" : "SELECT _utf8mb4 X'CEA9'"));
        char bytes[16] = {};
        SQLLEN length = 0;
        return statement.fetch() &&
               SQL_SUCCEEDED(SQLGetData(statement.get(), 1, SQL_C_CHAR, bytes, sizeof bytes, &length)) &&
               std::string_view(bytes) == "\xCE\xA9";
    } catch (const Error&) {
        if (session.isLost())
            throw;
        return false;
    }
}

} // namespace

void prepareServer(Session& session) {
    // A "\" in a constant opens nothing.
    if (session.dialect() == Dialect::PostgreSql)
        ask(session, "SET standard_conforming_strings = on");
    if (session.dialect() == Dialect::MariaDb)
        prepareMariaDb(session);
    if (session.dialect() != Dialect::SqlServer && givesUtf8(session))
        session.setGivesUtf8();
}

void allowWriting(Session& session, bool writable) {
    const char* words = writable ? "READ WRITE" : "READ ONLY";
    if (session.dialect() == Dialect::PostgreSql)
        ask(session, (QByteArray("SET SESSION CHARACTERISTICS AS TRANSACTION ") + words).constData());
    else if (session.dialect() == Dialect::MariaDb)
        ask(session, (QByteArray("SET SESSION TRANSACTION ") + words).constData());
}

dialect::Catalogue readCatalogue(Session& session) {
    switch (session.dialect()) {
    case Dialect::PostgreSql:
        return readPostgres(session);
    case Dialect::MariaDb:
        return readMariaDb(session);
    default:
        return {};
    }
}

QString chooseCollation(Session& session) {
    switch (session.dialect()) {
    case Dialect::PostgreSql:
        return choosePostgresCollation(session);
    case Dialect::MariaDb:
        return chooseMariaDbCollation(session);
    default:
        return {};
    }
}

bool postgresHasSigma(Session& session) {
    const QString name = postgresEncoding(session);
    return name == QStringLiteral("UTF8") || name == QStringLiteral("ISO_8859_7") ||
           name == QStringLiteral("WIN1253");
}

} // namespace zkp::ado::odbc
