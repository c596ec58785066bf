#include "ado/sqlite/schema.h"

#include "ado/constants.h"
#include "ado/result_builder.h"
#include "ado/sqlite/field_types.h"
#include "ado/sqlite/statement.h"

namespace zkp::ado::sqlite {

namespace {

FieldInfo textField(const char* name) {
    return {QString::fromLatin1(name), adVarWChar, 128};
}
FieldInfo numberField(const char* name) {
    return {QString::fromLatin1(name), adInteger, 4};
}

/// Names that the database keeps for itself are left out.
constexpr char kObjects[] = "SELECT name, upper(type) FROM sqlite_schema WHERE type IN ('table', 'view') "
                            "AND name NOT LIKE 'sqlite\\_%' ESCAPE '\\' ";

Result readObjects(const std::shared_ptr<Database>& database, const QString& condition,
                   const std::optional<QString>& table) {
    ResultBuilder rows({textField("TABLE_NAME"), textField("TABLE_TYPE")});
    Statement query(database,
                    QString::fromLatin1(kObjects) + condition +
                        QStringLiteral(" AND (?1 IS NULL OR name = ?1 COLLATE ZKP_TEXT) ORDER BY name"));
    query.bind({table ? QVariant(*table) : QVariant()});
    const Turn turn(*database);
    while (query.step())
        rows.addRow({query.value(0), query.value(1)});
    return rows.finish();
}

Result readColumns(const std::shared_ptr<Database>& database, const std::optional<QString>& table) {
    ResultBuilder rows({textField("TABLE_NAME"), textField("COLUMN_NAME"), numberField("ORDINAL_POSITION"),
                        numberField("DATA_TYPE"), numberField("CHARACTER_MAXIMUM_LENGTH")});
    Statement query(
        database,
        QStringLiteral("SELECT o.name, c.name, c.cid + 1, c.type FROM (") + QString::fromLatin1(kObjects) +
            QStringLiteral(") o JOIN pragma_table_info(o.name) c "
                           "WHERE ?1 IS NULL OR o.name = ?1 COLLATE ZKP_TEXT ORDER BY o.name, c.cid"));
    query.bind({table ? QVariant(*table) : QVariant()});
    const Turn turn(*database);
    while (query.step()) {
        const Declared declared = declaredType(query.text(3).toUtf8().constData());
        const int type = declared.type != 0 ? declared.type : adVarWChar;
        const QVariant length = type >= adVarChar ? QVariant(definedSize(declared, type)) : QVariant();
        rows.addRow({query.value(0), query.value(1), query.value(2), type, length});
    }
    return rows.finish();
}

} // namespace

Result readSchema(const std::shared_ptr<Database>& database, int schema,
                  const std::optional<QString>& table) {
    switch (schema) {
    case adSchemaColumns:
        return readColumns(database, table);
    case adSchemaTables:
        return readObjects(database, {}, table);
    case adSchemaViews:
        return readObjects(database, QStringLiteral("AND type = 'view'"), table);
    default:
        throw Error(kErrNotSupported, QStringLiteral("The provider does not support this schema"));
    }
}

} // namespace zkp::ado::sqlite
