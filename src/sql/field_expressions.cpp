#include "sql/field_expressions.h"

#include "base/text.h"
#include "base/texts/statements.h"
#include "sql/statement_text.h"

namespace zkp {

namespace {

QVariant read(ado::Recordset& row, const char16_t* field) {
    return row.Fields().Item(QStringView(field)).Value();
}

} // namespace

QString FieldExpressions::makefldSql(const QString& FieldName, QString& Tables, bool WithAlias) {
    if (isBlank(inputs_.data.clmns))
        return {};
    QString item;
    try {
        ado::Recordset row;
        // The key is not escaped, as wanted: the statement is the host's to see as it is.
        row.Open(QStringLiteral("Select * From ") + inputs_.data.clmns + QStringLiteral(" Where DtFld = '") +
                     upper(FieldName) + u'\'',
                 inputs_.source.Cn, ado::adOpenDynamic, ado::adLockBatchOptimistic, ado::adCmdText);
        if (row.Eof())
            return {};
        item = itemOf(row);
        if (!canReadSourceColumns(row))
            return QStringLiteral(" ");
        if (WithAlias)
            item += QStringLiteral(" AS [") + upper(FieldName) + u']';
        addTable(read(row, u"SourceTableName"), Tables);
    } catch (const std::exception&) {
        inputs_.tellFailure(texts::fieldItemFailed());
    }
    return item;
}

QString FieldExpressions::itemOf(ado::Recordset& row) const {
    const QString field = textOrEmpty(read(row, u"SOURCEFIELDNAME"));
    if (isBlank(field))
        return textOf(read(row, u"Expr"));
    if (inputs_.source.SourceType != ZKP_Table_QUERY)
        return u'[' + field + u']';
    const QString kind = upper(inputs_.sourceText().left(3));
    if (kind == QStringLiteral("QRY") || kind == QStringLiteral("VI_"))
        return u'[' + trimmed(field).toString() + u']';
    return u'[' + textOrEmpty(read(row, u"SourceTableName")) + QStringLiteral("].[") +
           trimmed(field).toString() + u']';
}

/// Asks for the source's columns. Whether the field is among them changes nothing, as wanted; only a
/// failure counts, so that one answer does for all fields of a load. The catalogue's name is a fixed one.
bool FieldExpressions::canReadSourceColumns(ado::Recordset& row) {
    try {
        const QString source = inputs_.sourceText();
        if (inputs_.source.SourceType != ZKP_Table_QUERY || isBlank(source))
            return true;
        if (nameKey(textOrEmpty(read(row, u"SOURCEFIELDNAME"))).isEmpty())
            return true;
        if (readSource_ && readSource_->text == source && readSource_->connection.lock() == inputs_.source.Cn)
            return true;
        const ado::RecordsetPtr schema = inputs_.source.Cn->OpenSchema(
            ado::adSchemaColumns, {QStringLiteral("OrtolFunds"), QStringLiteral("dbo"), source});
        schema->Close();
        readSource_ = {inputs_.source.Cn, source};
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

/// A table that stands last with no blank behind it is not seen and is added again, as wanted.
void FieldExpressions::addTable(const QVariant& table, QString& Tables) {
    if (!table.isValid())
        return;
    const QString name = table.toString();
    const QString listed = upper(Tables);
    if (!listed.contains(u' ' + upper(name) + u' ') && !listed.contains(u'[' + upper(name) + u']'))
        Tables += QStringLiteral(", ") + trimmed(name).toString() + u' ';
}

} // namespace zkp
