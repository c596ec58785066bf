#include "load/summary_columns.h"

#include "base/format.h"
#include "base/number.h"
#include "base/text.h"
#include "core/enums.h"

#include <algorithm>

namespace zkp {

namespace {

constexpr qsizetype kBehindPrefix = 5; // where the field starts in "AVG_..." and "POS_...", from 1

} // namespace

int SummaryColumns::FindColumnByField(const QString& name) const {
    for (int c = 0; c < surface_.Cols(); ++c)
        if (nameKey(columns_.ofGridColumn(c).Datafield) == name)
            return c;
    return -1;
}

bool SummaryColumns::isSummary(int row) const {
    const int kind = surface_.RowData(row);
    return kind == ZKPSubTotals || kind == ZKPTotals;
}

/// A subtotal's keys end at its level; a record is inside all levels, the totals row outside.
int SummaryColumns::levelOf(int row) const {
    if (surface_.RowData(row) == ZKPTotals)
        return -1;
    if (surface_.RowData(row) == ZKPSingleRow) // in a totals report it is a group of the innermost factor
        return grouping_.GroupFactorCount - (data_.TotalForm ? 1 : 0);
    int level = -1;
    for (int k = 0; k < std::min<int>(grouping_.GroupFactorCount, surface_.Cols()); ++k)
        if (!isBlank(surface_.TextMatrix(row, k)))
            level = k;
    return level;
}

int SummaryColumns::FindParentRow(int r) const {
    const int level = levelOf(r);
    for (int row = r + 1; row < surface_.Rows(); ++row)
        if (surface_.RowData(row) == ZKPTotals ||
            (surface_.RowData(row) == ZKPSubTotals && levelOf(row) < level))
            return row;
    return -1;
}

double SummaryColumns::numberAt(int row, int c) const {
    return surface_.shownNumber(row, c).value_or(Decimal()).toDouble();
}

void SummaryColumns::RecalcAverageColumns() {
    const int counts = FindColumnByField(QStringLiteral("CNT"));
    for (int c = 0; c < surface_.Cols() && counts >= 0; ++c) {
        const QString field = nameKey(columns_.ofGridColumn(c).Datafield);
        const int sums = field.startsWith(u"AVG_")
                             ? FindColumnByField(QStringLiteral("SUM_") + mid(field, kBehindPrefix))
                             : -1;
        for (int row = surface_.FixedRows(); row < surface_.Rows() && sums >= 0; ++row) {
            if (!isSummary(row))
                continue;
            const double sum = numberAt(row, sums);
            const double count = numberAt(row, counts);
            if (sum != 0 && count != 0)
                surface_.setTextMatrix(row, c, surface_.locale().doubleText(roundHalfEven(sum / count, 2)));
        }
    }
}

void SummaryColumns::RecalcPercentColumns() {
    for (int c = 0; c < surface_.Cols(); ++c) {
        const QString field = nameKey(columns_.ofGridColumn(c).Datafield);
        if (!field.startsWith(u"POS_"))
            continue;
        const QString base = mid(field, kBehindPrefix);
        const int sums = FindColumnByField(base == u"CNT" ? base : QStringLiteral("SUM_") + base);
        if (sums < 0)
            continue;
        for (const auto& [row, parent] : parents()) {
            const double sum = numberAt(row, sums);
            const double whole = numberAt(parent, sums);
            if (sum != 0 && whole != 0)
                surface_.setTextMatrix(
                    row, c, formatNumber(sum * 100 / whole, NumberFormat::PlainPercent, surface_.locale()));
        }
    }
}

/// From the last row up with the open outer groups at hand, so that a report of many groups is walked
/// once and not once for each.
std::vector<std::pair<int, int>> SummaryColumns::parents() const {
    std::vector<std::pair<int, int>> result;
    std::vector<std::pair<int, int>> outer; // level and row, the outermost first
    for (int row = surface_.Rows() - 1; row >= surface_.FixedRows(); --row) {
        if (!isSummary(row))
            continue;
        const int level = levelOf(row);
        while (!outer.empty() && outer.back().first >= level)
            outer.pop_back();
        if (!outer.empty())
            result.emplace_back(row, outer.back().second);
        outer.emplace_back(level, row);
    }
    return result;
}

} // namespace zkp
