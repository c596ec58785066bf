#pragma once

#include "core/column_properties.h"
#include "core/state/data_settings.h"
#include "surface/grid_surface.h"

#include <QString>

#include <optional>
#include <vector>

namespace zkp {

/// How one record becomes one grid row: for each column the field and the format of its cell, worked
/// out once and kept while the columns stay as they are.
class CellPlan {
public:
    /// A cell that is a percentage of its group, not a value of the record.
    struct Percent {
        int column;
        QString field; ///< the data field behind "POS_"
    };

    /// `lastField` is the field read last before this plan (from the record before), -1 when there was
    /// none. A field that the records lack costs its column: the column loses its `Datafield` and its
    /// caption becomes "#" caption "# (Λάθος)".
    CellPlan(ado::Recordset& records, ColumnProperties& properties, const ColumnList& columns,
             GridSurface& surface, const DataSettings& data, int lastField);

    GridSurface::LayoutId layout() const { return layout_; }
    /// What each column shows of a record.
    const std::vector<CellBinding>& cells() const { return cells_; }
    const std::vector<Percent>& percents() const { return percents_; }
    int lastField() const { return lastField_; }
    /// Whether the records hold the same values that the plan refers to.
    bool refersTo(const ado::Recordset& records) const { return records.table().columns == values_; }
    /// Whether records, columns and switches that the plan was made from are still the same.
    bool isCurrent(const ado::Recordset& records, const ColumnList& columns, const GridSurface& surface,
                   const DataSettings& data) const;

private:
    struct Basis {
        QString Datafield;
        bool Totals;
        bool Balance;
        bool operator==(const Basis&) const = default;
    };

    CellBinding plan(int c, const Basis& basis, ado::Recordset& records, const DataSettings& data);
    std::optional<CellFormat> numberFormat(const Basis& basis, int fieldType) const;

    std::vector<std::shared_ptr<const store::Column>> values_;
    std::vector<Basis> basis_;
    std::vector<CellBinding> cells_;
    bool euro_;
    bool totalForm_;
    std::vector<Percent> percents_;
    std::vector<int> numericColumns_;
    GridSurface::LayoutId layout_ = 0;
    int lastField_;
};

} // namespace zkp
