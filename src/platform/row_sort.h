#pragma once

#include "base/report_locale.h"

#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace zkp {

/// The text of the i-th row that takes part in a sort.
using TextOfRow = std::function<QString(int)>;
/// The number that the text is; nothing when it is none.
using NumberOfRow = std::function<std::optional<double>(int)>;
/// One number per row that takes part: rows sort as their keys do.
using SortKeys = std::vector<double>;

/// The number of each row; 0 where there is none.
SortKeys numberKeys(int count, const NumberOfRow& number);
/// The place of each text in the locale's order of texts; texts that the order holds equal share one.
SortKeys textKeys(int count, const TextOfRow& text, const ReportLocale& locale, bool matchCase);
/// Numbers when every text that isn't blank is one; else texts without case.
SortKeys genericKeys(int count, const TextOfRow& text, const NumberOfRow& number, const ReportLocale& locale);

/// The rows 0 to count - 1 in the order of their keys, the first list of keys weighing most. Rows
/// with equal keys keep their order, whichever way it goes.
std::vector<int> orderByKeys(int count, const std::vector<SortKeys>& keys, bool descending);

/// The same by a comparison (negative, 0 or positive for two rows), which may contradict itself: the
/// result then is some order of all the rows.
std::vector<int> orderByCompare(int count, const std::function<int(int, int)>& compare);

} // namespace zkp
