#include "zkp_grid.h"

#include "base/number.h"
#include "grid/parts.h"

// Group rows, totals and percentages, one line each.

namespace zkp {

namespace {

/// A published row number, which the step moves down.
template <class Step>
void movingRow(double& r, Step step) {
    const int row = toInt32(r);
    int moved = row;
    step(moved);
    r += moved - row;
}

} // namespace

void ZkpGrid::InitTotalsGrid() {
    run([](Parts& p) { p.load.groupRows.InitTotalsGrid(); });
}
void ZkpGrid::AccumulateRow(double& r) {
    run([&](Parts& p) { movingRow(r, [&](int& row) { p.load.groupRows.AccumulateRow(row); }); });
}
void ZkpGrid::EmitSubTotalRows(int level, double& r) {
    run([&](Parts& p) { movingRow(r, [&](int& row) { p.load.groupRows.EmitSubTotalRows(level, row); }); });
}
void ZkpGrid::ResetGroupLevels(int level, double r) {
    run([&](Parts& p) { p.load.groupRows.ResetGroupLevels(level, toInt32(r)); });
}

void ZkpGrid::FinishTotals() {
    run([](Parts& p) { p.load.totalsRows.FinishTotals(); });
}
void ZkpGrid::PaintTotalsRows() {
    run([](Parts& p) { p.load.totalsRows.PaintTotalsRows(); });
}
void ZkpGrid::AppendTotalsRow() {
    run([](Parts& p) { p.load.totalsRows.AppendTotalsRow(); });
}
void ZkpGrid::CalcTotalsOnThisColumn(int clmn) {
    run([&](Parts& p) { p.load.totalsRows.CalcTotalsOnThisColumn(clmn); });
}
int ZkpGrid::FindTotalsRow() const {
    return parts_->load.totalsRows.FindTotalsRow();
}

void ZkpGrid::PercentOfParent(const QString& field, int r, const QVariant& level, QString& result) {
    result = run([&](Parts& p) {
        p.load.percentages.tellFailuresAgain();
        return p.load.percentages.PercentOfParent(
            field, r, level.isValid() ? std::optional<int>(toInt16(level)) : std::nullopt);
    });
}
double ZkpGrid::GroupValueSum(int level, const QString& name, int r) {
    return run([&](Parts& p) {
        p.load.percentages.tellFailuresAgain();
        return p.load.percentages.GroupValueSum(level, name, r);
    });
}

void ZkpGrid::RecalcAverageColumns() {
    run([](Parts& p) { p.load.summaryColumns.RecalcAverageColumns(); });
}
void ZkpGrid::RecalcPercentColumns() {
    run([](Parts& p) { p.load.summaryColumns.RecalcPercentColumns(); });
}
int ZkpGrid::FindColumnByField(const QString& name) const {
    return parts_->load.summaryColumns.FindColumnByField(name);
}
int ZkpGrid::FindParentRow(int r) const {
    return parts_->load.summaryColumns.FindParentRow(r);
}

} // namespace zkp
