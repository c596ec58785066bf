#include "load/field_list.h"

#include "base/texts/fields.h"

namespace zkp {

void buildFieldList(ado::Recordset& dictionary, bool totals, StatFieldList& fields) {
    fields.Clear();
    if (totals)
        buildStatisticsFields(dictionary, fields);
    else
        appendPlainFields(dictionary, fields);
}

void appendLossRatioFields(StatFieldList& fields) {
    const auto append = [&fields](const QString& field, const QString& caption) {
        StatField& entry = fields.Add();
        entry.DataField = field;
        entry.Caption = caption;
        entry.Width = Currency::fromWhole(1050);
        entry.Align = 7;
        entry.IsTot = true;
    };
    append(QStringLiteral("LR"), texts::lossRatio());
    append(QStringLiteral("LR1"), texts::lossRatioInverse());
    append(QStringLiteral("LR2"), texts::lossRatioDifference());
    append(QStringLiteral("LR3"), texts::lossRatioShare());
}

} // namespace zkp
