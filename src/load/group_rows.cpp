#include "load/group_rows.h"

#include "ado/constants.h"
#include "base/format.h"
#include "base/text.h"
#include "core/enums.h"
#include "load/percentages.h"

#include <algorithm>

namespace zkp {

namespace {

/// A row of the surface, wherever it has moved to.
class SurfaceRow : public GroupRow {
public:
    SurfaceRow(const GridSurface& surface, const int& row)
        : surface_(surface)
        , row_(row) {}
    QString text(int column) const override { return surface_.TextMatrix(row_, column); }
    Decimal number(int column) const override {
        return surface_.shownNumber(row_, column).value_or(Decimal());
    }

private:
    const GridSurface& surface_;
    const int& row_;
};

constexpr int kFirstRow = 1;

} // namespace

GroupShape GroupRows::shapeOfReport() const {
    GroupShape shape;
    shape.columns = surface_.Cols();
    shape.factors = std::min<int>(grouping_.GroupFactorCount, shape.columns);
    shape.totalForm = data_.TotalForm;
    for (int c = 0; c < shape.columns; ++c)
        if (columns_.ofGridColumn(c).Totals)
            shape.summed.push_back(c);
    return shape;
}

bool GroupRows::InitTotalsGrid(bool tagIsSeen) {
    sums_.clear(shapeOfReport(), surface_.locale());
    if (sums_.shape().summed.empty())
        return false;
    load_.needTotals();
    sums_.start(SurfaceRow(surface_, kFirstRow));
    surface_.setRows(surface_.Rows() + 2);
    if (tagIsSeen)
        surface_.setRowData(surface_.Rows() - 1, ZKPTotals);
    return true;
}

void GroupRows::AccumulateRow(int& r) {
    takeRecord(SurfaceRow(surface_, r), r);
}

void GroupRows::takeRecord(const GroupRow& record, int& r) {
    sums_.addToGrandSums(record);
    if (!sums_.shape().hasGroups())
        return;
    if (sums_.breaksAt(record))
        closeGroups(record, r);
    else
        sums_.addToGroups(record);
}

/// The outer loop has nothing to do after the first break, since the keys then are those of the record;
/// it stays for factors that are also summed, whose key cells the sums change.
void GroupRows::closeGroups(const GroupRow& record, int& r) {
    const int last = sums_.shape().lastLevel();
    for (int i = 0; i <= last; ++i)
        for (int level = 0; level <= last; ++level)
            if (!sums_.isKeyOpen(level, record)) {
                EmitSubTotalRows(level, r);
                sums_.reset(level, record);
                if (!sums_.shape().sumsKeys())
                    return;
                break;
            }
}

void GroupRows::ResetGroupLevels(int level, int r) {
    sums_.reset(std::clamp(level, 0, sums_.shape().factors), SurfaceRow(surface_, r));
}

/// Also for the innermost factor of a totals report, which has no sums: that row is blank and goes with
/// the other blank rows, unless a balance column shows a sum in it, as wanted.
void GroupRows::EmitSubTotalRows(int level, int& r) {
    for (int lvl = sums_.shape().factors - 1; lvl >= std::max(level, 0); --lvl) {
        surface_.AddItem({}, r);
        load_.addRow();
        writeSubtotalRow(r, lvl);
        surface_.setRowData(r, ZKPSubTotals);
        ++r;
    }
}

void GroupRows::writeSubtotalRow(int row, int level) {
    bool named = false; // whether column 0 names the group
    for (int c = 0; c < sums_.shape().columns; ++c) {
        writeSubtotalCell(row, level, c, named);
        if (c == 0)
            named = !isBlank(surface_.TextMatrix(row, 0));
        const QString& field = columns_.ofGridColumn(c).Datafield;
        if (named && field.startsWith(u"POS_", Qt::CaseInsensitive))
            // The share of the group in its parent: one level further out than for a record.
            surface_.setTextMatrix(row, c, percentages_.PercentOfParent(mid(field, 5), row, level - 1));
    }
}

/// A group without a name shows no sums, except in balance columns; wanted.
void GroupRows::writeSubtotalCell(int row, int level, int c, bool named) {
    const std::vector<int>& summed = sums_.shape().summed;
    if (!std::binary_search(summed.begin(), summed.end(), c)) {
        if (c <= level)
            surface_.setTextMatrix(row, c, sums_.text(level + 1, c));
        return;
    }
    const bool balance = columns_.ofGridColumn(c).Balance;
    if (!balance && !named)
        return;
    const NumberFormat format = balance || data_.EuroVer ? NumberFormat::Grouped2 : NumberFormat::Grouped0;
    surface_.setTextMatrix(row, c, formatNumber(sums_.number(level + 1, c), format, surface_.locale()));
    surface_.setColDataType(c, ado::adCurrency);
}

void GroupRows::showAccumulator(GridSurface& accumulator) const {
    const int columns = sums_.shape().columns;
    if (columns == 0)
        return;
    accumulator.Clear();
    accumulator.setRows(std::max(sums_.rows(), accumulator.FixedRows()));
    accumulator.setCols(columns);
    for (int row = 0; row < sums_.rows(); ++row)
        for (int c = 0; c < columns; ++c)
            accumulator.setTextMatrix(row, c, sums_.text(row, c));
}

} // namespace zkp
