#include "ado/odbc/edit/edited_table.h"

#include "ado/odbc/session/translate.h"
#include "base/text.h"

namespace zkp::ado::odbc {

namespace {

QString qualified(const Session& session, const CatalogueTable& table) {
    const QString name = quotedName(session, table.name);
    const QString& space = session.dialect() == Dialect::MariaDb ? table.catalogue : table.schema;
    return space.isEmpty() ? name : quotedName(session, space) + u'.' + name;
}

} // namespace

EditedTable::EditedTable(Session& session, dialect::PlainSelect from, const CatalogueTable& table)
    : select(std::move(from))
    , name(qualified(session, table))
    , columns(readColumns(session, table))
    , keys(session, table, columns) {}

const CatalogueColumn* EditedTable::find(const QString& column) const {
    for (const CatalogueColumn& each : columns) {
        if (sameName(each.name, column))
            return &each;
    }
    return nullptr;
}

std::vector<ColumnKind> EditedTable::kindsOf(const QStringList& names) const {
    std::vector<ColumnKind> kinds;
    for (const QString& each : names)
        kinds.push_back(find(each)->kind);
    return kinds;
}

QString EditedTable::keyItems(const QString& prefix) const {
    QStringList items = keys.items();
    for (QString& item : items)
        item.prepend(prefix);
    return items.join(QStringLiteral(", "));
}

QVariantList rowOf(const Result& result, std::size_t row) {
    QVariantList values;
    for (const auto& column : result.table.columns)
        values << column->value(row);
    return values;
}

} // namespace zkp::ado::odbc
