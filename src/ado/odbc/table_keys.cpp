#include "ado/odbc/table_keys.h"

#include "ado/constants.h"
#include "ado/odbc/column_types.h"
#include "ado/odbc/translate.h"
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

} // namespace

TableKeys::TableKeys(Session& session, const CatalogueTable& table,
                     const std::vector<CatalogueColumn>& columns) {
    const QStringList primary = readPrimaryKey(session, table);
    if (primary.isEmpty() && session.dialect() == Dialect::PostgreSql) {
        isPlace_ = true;
        items_ << QStringLiteral("CAST(ctid AS text)");
        return;
    }
    exact_ = !primary.isEmpty();
    for (const CatalogueColumn& column : columns) {
        if (exact_ ? !primary.contains(column.name) : !isComparable(column.kind))
            continue;
        items_ << quotedName(session, column.name);
        kinds_.push_back(column.kind);
    }
    compared_ = items_;
}

TableKeys::Condition TableKeys::conditionFor(const QVariantList& key) const {
    // The place is the server's own text, of digits: "(0,1)".
    if (isPlace_)
        return {QStringLiteral("ctid = '%1'").arg(key.value(0).toString()), {}, {}};
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
