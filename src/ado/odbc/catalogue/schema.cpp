#include "ado/odbc/catalogue/schema.h"

#include "ado/constants.h"
#include "ado/odbc/fetch/column_types.h"
#include "ado/odbc/fetch/fetch.h"
#include "ado/odbc/session/run.h"
#include "ado/odbc/session/translate.h"
#include "ado/odbc/session/wide_text.h"
#include "ado/result_builder.h"
#include "base/text.h"

#include <limits>

namespace zkp::ado::odbc {

namespace {

constexpr int kSeconds = 30;

/// A record of a catalogue result.
class Record {
public:
    Record(const Result& result, std::size_t row)
        : result_(result)
        , row_(row) {}
    /// By the standard's number of the column, from 1.
    QString text(std::size_t column) const { return value(column).toString(); }
    int number(std::size_t column) const { return value(column).toInt(); }

private:
    QVariant value(std::size_t column) const {
        return column <= result_.table.columns.size() ? result_.table.columns[column - 1]->value(row_)
                                                      : QVariant();
    }
    const Result& result_;
    std::size_t row_;
};

SQLWCHAR* wideOrNull(const std::optional<QString>& text) {
    return text ? wide(*text) : nullptr;
}

template <class F>
Result catalogueCall(Session& session, F&& function) {
    Statement statement(session, kSeconds);
    if (session.readsInsideBlocks())
        statement.useStaticCursor();
    statement.call([&] { return function(statement.get()); });
    return Fetch(statement, {}).run();
}

bool isServersOwn(const QString& schema) {
    const QString key = nameKey(schema);
    return key == u"SYS" || key == u"INFORMATION_SCHEMA" || key == u"PG_CATALOG";
}

FieldInfo textField(const char* name) {
    return {QString::fromLatin1(name), adVarWChar, 128};
}
FieldInfo numberField(const char* name) {
    return {QString::fromLatin1(name), adInteger, 4};
}

/// Those of other databases, which MariaDB's driver tells of too, are none of the connection's own.
Result tablesResult(Session& session, bool viewsOnly, const std::optional<QString>& table) {
    const QString home = session.dialect() == Dialect::MariaDb ? currentDatabase(session) : QString();
    ResultBuilder rows({textField("TABLE_NAME"), textField("TABLE_TYPE")});
    for (const CatalogueTable& found : readTables(session)) {
        const bool isView = found.type == QStringLiteral("VIEW");
        const bool isOwn = home.isEmpty() || found.catalogue == home;
        if (isOwn && (isView || !viewsOnly) && (!table || sameName(found.name, *table)))
            rows.addRow({found.name, found.type});
    }
    return rows.finish();
}

Result columnsResult(Session& session, const std::optional<QString>& table) {
    ResultBuilder rows({textField("TABLE_NAME"), textField("COLUMN_NAME"), numberField("ORDINAL_POSITION"),
                        numberField("DATA_TYPE"), numberField("CHARACTER_MAXIMUM_LENGTH")});
    const auto kept = table ? std::optional(nameAsKept(session, *table)) : std::nullopt;
    for (const CatalogueColumn& column : readColumns(session, std::nullopt, kept)) {
        if (table && !sameName(column.table, *table))
            continue;
        const int type = publishedType(column.kind.type);
        const auto longest = static_cast<SQLULEN>(std::numeric_limits<int>::max());
        const QVariant length =
            type >= adVarChar ? QVariant(static_cast<int>(std::min(column.kind.size, longest))) : QVariant();
        rows.addRow({column.table, column.name, column.position, type, length});
    }
    return rows.finish();
}

/// Names are patterns for the driver; `isWanted` tells which of the columns found are meant.
template <class F>
std::vector<CatalogueColumn> columnsWhere(Session& session, const std::optional<QString>& catalogue,
                                          const std::optional<QString>& schema,
                                          const std::optional<QString>& table, F&& isWanted) {
    const Result result = catalogueCall(session, [&](SQLHSTMT statement) {
        return SQLColumnsW(statement, wideOrNull(catalogue), SQL_NTS, wideOrNull(schema), SQL_NTS,
                           wideOrNull(table), SQL_NTS, nullptr, 0);
    });
    std::vector<CatalogueColumn> columns;
    for (std::size_t row = 0; row < result.table.rows; ++row) {
        const Record record(result, row);
        if (!isWanted(record))
            continue;
        columns.push_back(
            {record.text(3),
             record.text(4),
             {static_cast<SQLSMALLINT>(record.number(5)), static_cast<SQLULEN>(record.number(7)),
              static_cast<SQLSMALLINT>(record.number(9))},
             record.number(17)});
    }
    return columns;
}

} // namespace

std::vector<CatalogueTable> readTables(Session& session) {
    const QString types = QStringLiteral("TABLE,VIEW");
    const Result result = catalogueCall(session, [&](SQLHSTMT statement) {
        return SQLTablesW(statement, nullptr, 0, nullptr, 0, nullptr, 0, wide(types), SQL_NTS);
    });
    std::vector<CatalogueTable> tables;
    for (std::size_t row = 0; row < result.table.rows; ++row) {
        const Record record(result, row);
        if (!isServersOwn(record.text(2)))
            tables.push_back({record.text(1), record.text(2), record.text(3), record.text(4)});
    }
    return tables;
}

std::vector<CatalogueColumn> readColumns(Session& session, const std::optional<QString>& schema,
                                         const std::optional<QString>& table) {
    return columnsWhere(session, std::nullopt, schema, table, [&](const Record& record) {
        return !isServersOwn(record.text(2)) && (!table || sameName(record.text(3), *table));
    });
}

std::vector<CatalogueColumn> readColumns(Session& session, const CatalogueTable& table) {
    const auto given = [](const QString& text) {
        return text.isEmpty() ? std::nullopt : std::optional(text);
    };
    return columnsWhere(
        session, given(table.catalogue), given(table.schema), table.name,
        [&](const Record& record) { return record.text(2) == table.schema && record.text(3) == table.name; });
}

QStringList readPrimaryKey(Session& session, const CatalogueTable& table) {
    const auto given = [](const QString& text) { return text.isEmpty() ? nullptr : wide(text); };
    const Result result = catalogueCall(session, [&](SQLHSTMT statement) {
        return SQLPrimaryKeysW(statement, given(table.catalogue), SQL_NTS, given(table.schema), SQL_NTS,
                               wide(table.name), SQL_NTS);
    });
    QStringList columns;
    for (std::size_t row = 0; row < result.table.rows; ++row)
        columns << Record(result, row).text(4);
    return columns;
}

QString currentDatabase(Session& session) {
    const Result told = runStatement(session, QStringLiteral("SELECT DATABASE()"), {kSeconds, {}});
    return told.table.rows == 1 ? told.table.columns[0]->value(0).toString() : QString();
}

Result readSchema(Session& session, int schema, const std::optional<QString>& table) {
    switch (schema) {
    case adSchemaColumns:
        return columnsResult(session, table);
    case adSchemaTables:
        return tablesResult(session, false, table);
    case adSchemaViews:
        return tablesResult(session, true, table);
    default:
        throw Error(kErrNotSupported, QStringLiteral("The provider does not support this schema"));
    }
}

} // namespace zkp::ado::odbc
