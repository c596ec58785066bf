#include "load/cell_plan.h"

#include "base/error.h"
#include "base/text.h"
#include "base/texts/rows.h"

namespace zkp {

namespace {

const QString kPercentPrefix = QStringLiteral("POS_");

/// Marks a column whose field the records do not have. The loss is lasting: a saved shape keeps it.
void markMissingField(ColumnProperties& properties, int c) {
    const QString caption = trimmed(properties.ColCaption(c)).toString();
    properties.setColDataField(c, QString());
    properties.setColCaption(c, u'#' + caption + texts::missingFieldSuffix());
}

} // namespace

CellPlan::CellPlan(ado::Recordset& records, ColumnProperties& properties, const ColumnList& columns,
                   GridSurface& surface, const DataSettings& data, int lastField)
    : values_(records.table().columns)
    , euro_(data.EuroVer)
    , totalForm_(data.TotalForm)
    , lastField_(lastField) {
    for (int c = 0; c < surface.Cols(); ++c) {
        const QString field = columns.ofGridColumn(c).Datafield;
        if (!isBlank(field) && !field.startsWith(kPercentPrefix)) {
            const int index = records.Fields().indexOf(field);
            if (index < 0)
                markMissingField(properties, c);
            else
                lastField_ = index;
        }
        const Column& column = columns.ofGridColumn(c);
        basis_.push_back({column.Datafield, column.Totals, column.Balance});
        cells_.push_back(plan(c, basis_.back(), records, data));
    }
    layout_ = surface.addLayout(cells_);
    for (const int c : numericColumns_)
        surface.setColDataType(c, ado::adCurrency);
}

/// The first case that holds decides; a "POS_" column of a plain report falls through to the field of
/// the column before it, as wanted.
CellBinding CellPlan::plan(int c, const Basis& basis, ado::Recordset& records, const DataSettings& data) {
    if (isBlank(basis.Datafield))
        return {};
    if (data.TotalForm && upper(basis.Datafield).startsWith(kPercentPrefix)) {
        percents_.push_back({c, mid(basis.Datafield, 5)});
        return {};
    }
    if (lastField_ < 0)
        throw Error(kErrObjectNotSet, QStringLiteral("Object variable not set"), QStringLiteral("LoadRows"));
    const auto format = numberFormat(basis, records.Fields().Item(lastField_).Type());
    if (format)
        numericColumns_.push_back(c);
    return {records.table().columns[static_cast<std::size_t>(lastField_)],
            format.value_or(CellFormat::OwnText)};
}

std::optional<CellFormat> CellPlan::numberFormat(const Basis& basis, int fieldType) const {
    if (basis.Totals && basis.Balance)
        return CellFormat::Grouped2;
    if (basis.Totals || fieldType == ado::adCurrency)
        return euro_ ? CellFormat::Grouped2 : CellFormat::Grouped0;
    return std::nullopt;
}

bool CellPlan::isCurrent(const ado::Recordset& records, const ColumnList& columns, const GridSurface& surface,
                         const DataSettings& data) const {
    if (!refersTo(records) || data.EuroVer != euro_ || data.TotalForm != totalForm_ ||
        static_cast<std::size_t>(surface.Cols()) != basis_.size())
        return false;
    for (std::size_t c = 0; c < basis_.size(); ++c) {
        const Column& column = columns.ofGridColumn(static_cast<int>(c));
        if (column.Datafield != basis_[c].Datafield || column.Totals != basis_[c].Totals ||
            column.Balance != basis_[c].Balance)
            return false;
    }
    return true;
}

} // namespace zkp
