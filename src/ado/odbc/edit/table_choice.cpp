#include "ado/odbc/edit/table_choice.h"

#include "ado/odbc/session/run.h"
#include "ado/odbc/session/translate.h"
#include "base/text.h"

namespace zkp::ado::odbc {

namespace {

constexpr int kSeconds = 30;

using Tables = std::vector<CatalogueTable>;

/// Those that have the name to the letter, or else in any case.
template <class NameOf>
Tables named(const Tables& tables, const QString& name, NameOf&& nameOf) {
    Tables exact;
    Tables any;
    for (const CatalogueTable& table : tables) {
        if (nameOf(table) == name)
            exact.push_back(table);
        if (sameName(nameOf(table), name))
            any.push_back(table);
    }
    return exact.empty() ? any : exact;
}

/// Where the server looks for a name that says nothing of its schema.
QString homeOf(Session& session, const QString& name) {
    QString question;
    switch (session.dialect()) {
    case Dialect::PostgreSql: {
        const QString text = quotedName(session, name).replace(u'\'', QStringLiteral("''"));
        question = QStringLiteral("SELECT n.nspname FROM pg_class c JOIN pg_namespace n ON n.oid = "
                                  "c.relnamespace WHERE c.oid = to_regclass('%1')")
                       .arg(text);
        break;
    }
    case Dialect::MariaDb:
        return currentDatabase(session);
    default:
        question = QStringLiteral("SELECT SCHEMA_NAME()");
    }
    const Result told = runStatement(session, question, {kSeconds, {}});
    return told.table.rows == 1 ? told.table.columns[0]->value(0).toString() : QString();
}

} // namespace

std::optional<CatalogueTable> chooseTable(Session& session, const dialect::PlainSelect& select) {
    const bool hasDatabases = session.dialect() == Dialect::MariaDb;
    const auto space = [hasDatabases](const CatalogueTable& table) {
        return hasDatabases ? table.catalogue : table.schema;
    };
    const auto nameOf = [](const CatalogueTable& table) { return table.name; };
    const QString name = nameAsKept(session, select.table);
    Tables tables;
    for (CatalogueTable& table : readTables(session)) {
        if (sameName(table.name, name))
            tables.push_back(std::move(table));
    }
    const bool isSqlServer = session.dialect() == Dialect::SqlServer;
    if (!select.qualifier.isEmpty()) {
        tables = named(tables, select.qualifier, space);
    } else if (!isSqlServer || tables.size() > 1) {
        Tables home = named(tables, homeOf(session, name), space);
        // SQL Server looks there next.
        tables = home.empty() && isSqlServer ? named(tables, QStringLiteral("dbo"), space) : home;
    }
    tables = named(tables, name, nameOf);
    if (tables.size() != 1 || tables.front().type != QStringLiteral("TABLE"))
        return std::nullopt;
    return tables.front();
}

} // namespace zkp::ado::odbc
