#include "window/dictionary_fields.h"

#include "ado/constants.h"
#include "ado/recordset.h"
#include "base/error.h"
#include "base/number.h"
#include "base/text.h"
#include "window/table_text.h"

#include <algorithm>

namespace zkp::app {

namespace {

DictionaryField fieldOf(ado::Recordset& row) {
    DictionaryField field;
    field.key = columnText(row, u"dtfld");
    field.caption = columnText(row, u"Cptn");
    field.table = columnText(row, u"SourceTableName");
    field.width = val(columnText(row, u"wdth"));
    field.alignment = static_cast<int>(val(columnText(row, u"Algn")));
    field.isGroup = columnFlag(row, u"isgroup");
    field.isTotal = columnFlag(row, u"isTot");
    field.hasSum = columnFlag(row, u"Sum");
    field.hasAverage = columnFlag(row, u"Avg");
    field.hasMinimum = columnFlag(row, u"Min");
    field.hasMaximum = columnFlag(row, u"Max");
    return field;
}

bool isWholeNumber(int type) {
    return type == ado::adSmallInt || type == ado::adInteger || type == ado::adBigInt;
}

} // namespace

std::vector<DictionaryField> readFields(const ado::ConnectionPtr& connection, const QString& dictionary,
                                        bool isRestricted) {
    std::vector<DictionaryField> fields;
    const auto rows = connection->Execute(QStringLiteral("SELECT * FROM ") + dictionary);
    for (; !rows->Eof(); rows->MoveNext()) {
        const bool isOffered =
            columnFlag(*rows, u"visbl", true) && (!isRestricted || columnFlag(*rows, u"IsPublic", true));
        if (isOffered && !columnText(*rows, u"dtfld").isEmpty())
            fields.push_back(fieldOf(*rows));
    }
    return fields;
}

void markCounts(std::vector<DictionaryField>& fields, const ado::ConnectionPtr& connection,
                const QString& source) {
    try {
        const auto rows = connection->Execute(QStringLiteral("SELECT * FROM %1 WHERE 0=1").arg(source));
        for (DictionaryField& field : fields)
            if (const int index = rows->Fields().indexOf(field.key); index >= 0)
                field.isCount = isWholeNumber(rows->Fields().Item(index).Type());
    } catch (const Error&) { // the load of the report meets the same failure and shows it
    }
}

const DictionaryField* findField(const std::vector<DictionaryField>& fields, const QString& key) {
    const auto found = std::find_if(fields.begin(), fields.end(),
                                    [&](const DictionaryField& field) { return sameName(field.key, key); });
    return found == fields.end() ? nullptr : &*found;
}

QStringList offeredFactors(const std::vector<DictionaryField>& fields, const QStringList& factors) {
    QStringList offered;
    for (const QString& factor : factors)
        if (const DictionaryField* field = findField(fields, factor);
            field && field->isGroup && !offered.contains(field->key) && offered.size() < kMostFactors)
            offered += field->key;
    return offered;
}

} // namespace zkp::app
