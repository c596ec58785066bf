#pragma once

#include "base/report_locale.h"

#include <QHash>
#include <QString>

#include <functional>
#include <vector>

namespace zkp {

/// The text of the i-th row that takes part in a sort.
using TextOfRow = std::function<QString(int)>;
/// One number per row that takes part: rows sort as their keys do.
using SortKeys = std::vector<double>;

/// Which texts the rows have, and which of them each row has, so that what is known of a text is worked
/// out once and not for every row.
struct DistinctTexts {
    std::vector<QString> texts;
    std::vector<int> ofRow;

    /// The number of a text; the same text has the same number.
    int numberOf(const QString& text);
    /// The number of a text that nobody will ask for again; cheaper.
    int numberOfNew(const QString& text);

private:
    QHash<QString, int> numbers_;
};

DistinctTexts distinctTexts(int count, const TextOfRow& text);

/// The place of each row's text in the locale's order of texts; texts that the order holds equal share one.
SortKeys textKeys(const DistinctTexts& texts, const ReportLocale& locale, bool matchCase);

/// The rows 0 to count - 1 in the order of their keys, the first list of keys weighing most. Rows
/// with equal keys keep their order, whichever way it goes.
std::vector<int> orderByKeys(int count, const std::vector<SortKeys>& keys, bool descending);

/// The same by a comparison (negative, 0 or positive for two rows), which may contradict itself: the
/// result then is some order of all the rows.
std::vector<int> orderByCompare(int count, const std::function<int(int, int)>& compare);

} // namespace zkp
