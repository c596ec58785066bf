#include "sql/group_order.h"

#include "base/text.h"
#include "base/value.h"

#include <QSet>

namespace zkp {

namespace {

/// Whether the groups of the first fields, and of fewer and fewer of them, each stand in one place.
bool standTogether(const ado::Recordset& records, const std::vector<int>& fields) {
    const ReportLocale plain{QLocale::c()};
    QStringList open(static_cast<qsizetype>(fields.size()));
    std::vector<QSet<QString>> seen(fields.size());
    for (std::int64_t i = 0; i < records.RecordCount(); ++i) {
        QString keys;
        for (std::size_t k = 0; k < fields.size(); ++k) {
            const QVariant value =
                records.table().columns[static_cast<std::size_t>(fields[k])]->value(records.tableRow(i));
            keys += (isNull(value) ? u'0' : u'1') + valueText(value, plain) + QChar(0x1F);
            QString& group = open[static_cast<qsizetype>(k)];
            if (i > 0 && group == keys)
                continue;
            if (seen[k].contains(keys))
                return false;
            seen[k].insert(keys);
            group = keys;
        }
    }
    return true;
}

} // namespace

void keepGroupsTogether(ado::Recordset& records, const QStringList& factors) {
    std::vector<int> fields;
    QStringList names;
    for (qsizetype k = 0; k + 1 < factors.size(); ++k) {
        const QString name = trimmed(factors[k]).toString();
        const int field = records.Fields().indexOf(name);
        if (field < 0)
            return; // the load marks the column; there is nothing to sort by
        fields.push_back(field);
        names << u'[' + name + u']';
    }
    if (!fields.empty() && !standTogether(records, fields))
        records.setSort(names.join(u','));
}

} // namespace zkp
