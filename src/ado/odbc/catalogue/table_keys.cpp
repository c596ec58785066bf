#include "ado/odbc/catalogue/table_keys.h"

#include "ado/constants.h"
#include "ado/odbc/fetch/column_types.h"
#include "ado/odbc/session/translate.h"
#include "base/text.h"

namespace zkp::ado::odbc {

namespace {

/// What a row of a table without a key is known by: neither bytes nor long texts, nor what has fractions that
/// may be kept otherwise than they were given.
bool isComparable(const ColumnKind& kind) {
    const int type = publishedType(kind.type);
    return type != adLongVarBinary && type != adDouble && type != adDBTimeStamp &&
           kind.type != SQL_LONGVARCHAR && kind.type != SQL_WLONGVARCHAR;
}

bool isText(const ColumnKind& kind) {
    const int type = publishedType(kind.type);
    return type == adVarChar || type == adVarWChar;
}

} // namespace

TableKeys::TableKeys(Session& session, const CatalogueTable& table,
                     const std::vector<CatalogueColumn>& columns) {
    const QStringList primary = readPrimaryKey(session, table);
    if (primary.isEmpty() && session.dialect() == Dialect::PostgreSql) {
        isPlace_ = true;
        items_ << QStringLiteral("CAST(ctid AS text)") << QStringLiteral("CAST(xmin AS text)");
        return;
    }
    exact_ = !primary.isEmpty();
    const bool isMariaDb = session.dialect() == Dialect::MariaDb;
    for (const CatalogueColumn& column : columns) {
        if (exact_ ? !primary.contains(column.name) : !isComparable(column.kind))
            continue;
        const QString name = quotedName(session, column.name);
        items_ << name;
        kinds_.push_back(column.kind);
        // Texts that differ only in case are two rows.
        compared_ << (isMariaDb && !exact_ && isText(column.kind)
                          ? QStringLiteral("CONVERT(%1 USING utf8mb4) COLLATE utf8mb4_bin").arg(name)
                          : name);
    }
}

TableKeys::Condition TableKeys::conditionFor(const QVariantList& key) const {
    // Both are the server's own texts, of digits: "(0,1)" and "748". Another row may take the place later,
    // written by another transaction.
    if (isPlace_)
        return {QStringLiteral("ctid = '%1' AND xmin = '%2'")
                    .arg(key.value(0).toString(), key.value(1).toString()),
                {},
                {}};
    Condition condition;
    QStringList parts;
    for (qsizetype i = 0; i < compared_.size(); ++i) {
        const QVariant value = key.value(i);
        parts << compared_[i] + (value.isValid() ? QStringLiteral(" = ?") : QStringLiteral(" IS NULL"));
        if (!value.isValid())
            continue;
        condition.values << value;
        condition.kinds.push_back(kinds_[static_cast<std::size_t>(i)]);
    }
    condition.text = parts.isEmpty() ? QStringLiteral("1=1") : parts.join(QStringLiteral(" AND "));
    return condition;
}

} // namespace zkp::ado::odbc
