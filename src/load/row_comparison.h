#pragma once

#include "base/report_locale.h"
#include "surface/row_sort.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

namespace zkp {

/// What a row of the report goes by in the control's own order.
struct SortRow {
    int kind = 0;     ///< its `RowData`
    int group = 0;    ///< place of its group key among all
    double value = 0; ///< what it has in the sort column
};

/// Groups stay whole, a subtotal behind its details and the totals row last; details of a group go by
/// their values. 1, -1 or 0; two totals rows each stand before the other, as wanted.
int compareRows(const SortRow& row1, const SortRow& row2, bool descending);

/// The texts of a row's factor cells, joined by ",". Keys that are equal when joined are one group.
QString groupKey(const QStringList& factors);

/// The place of each of these different keys in their order: factor by factor, a blank one behind all.
std::vector<int> groupPlaces(const std::vector<QString>& keys, const ReportLocale& locale);

/// How the cells of a sort column compare.
enum class SortValue { Number, Date, Text };

/// By the type of the column's field, where the records have it. A share of the count is a number all
/// the same.
SortValue sortValueOf(const QString& dataField, std::optional<int> fieldType);

/// The value of each row: its number or 0, its moment or that of 01/01/1800, the place of its text.
SortKeys sortValues(SortValue kind, const DistinctTexts& texts, const ReportLocale& locale);

} // namespace zkp
