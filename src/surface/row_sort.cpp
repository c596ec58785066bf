#include "surface/row_sort.h"

#include "surface/radix_sort.h"

#include <QCollator>

#include <algorithm>
#include <numeric>
#include <utility>

namespace zkp {

namespace {

std::vector<int> inOrder(int count) {
    std::vector<int> rows(static_cast<std::size_t>(count));
    std::iota(rows.begin(), rows.end(), 0);
    return rows;
}

/// The place of each text in the locale's order.
std::vector<int> places(const std::vector<QString>& texts, const ReportLocale& locale, bool matchCase) {
    QCollator collator(locale.locale());
    collator.setCaseSensitivity(matchCase ? Qt::CaseSensitive : Qt::CaseInsensitive);
    using Keyed = std::pair<QCollatorSortKey, int>;
    std::vector<Keyed> keys;
    keys.reserve(texts.size());
    for (const QString& text : texts)
        keys.emplace_back(collator.sortKey(text), static_cast<int>(keys.size()));
    std::stable_sort(keys.begin(), keys.end(),
                     [](const Keyed& a, const Keyed& b) { return a.first.compare(b.first) < 0; });

    std::vector<int> result(texts.size());
    int place = 0;
    for (std::size_t i = 0; i < keys.size(); ++i) {
        if (i > 0 && keys[i - 1].first.compare(keys[i].first) != 0)
            ++place;
        result[static_cast<std::size_t>(keys[i].second)] = place;
    }
    return result;
}

} // namespace

int DistinctTexts::numberOf(const QString& text) {
    const auto known = numbers_.constFind(text);
    if (known != numbers_.cend())
        return *known;
    const int number = numberOfNew(text);
    numbers_.insert(text, number);
    return number;
}

int DistinctTexts::numberOfNew(const QString& text) {
    texts.push_back(text);
    return static_cast<int>(texts.size()) - 1;
}

DistinctTexts distinctTexts(int count, const TextOfRow& text) {
    DistinctTexts result;
    result.ofRow.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        result.ofRow.push_back(result.numberOf(text(i)));
    return result;
}

SortKeys textKeys(const DistinctTexts& texts, const ReportLocale& locale, bool matchCase) {
    const std::vector<int> place = places(texts.texts, locale, matchCase);
    SortKeys keys;
    keys.reserve(texts.ofRow.size());
    for (const int number : texts.ofRow)
        keys.push_back(place[static_cast<std::size_t>(number)]);
    return keys;
}

std::vector<int> orderByKeys(int count, const std::vector<SortKeys>& keys, bool descending) {
    std::vector<int> rows = inOrder(count);
    for (auto list = keys.rbegin(); list != keys.rend(); ++list)
        sortByKey(rows, *list, descending);
    return rows;
}

// The library's sorts may read past the ends when a comparison contradicts itself; merging never does.
std::vector<int> orderByCompare(int count, const std::function<int(int, int)>& compare) {
    std::vector<int> rows = inOrder(count);
    std::vector<int> merged(rows.size());
    for (std::size_t width = 1; width < rows.size(); width *= 2) {
        for (std::size_t from = 0; from < rows.size(); from += 2 * width) {
            const std::size_t middle = std::min(from + width, rows.size());
            const std::size_t end = std::min(from + 2 * width, rows.size());
            std::size_t left = from;
            std::size_t right = middle;
            for (std::size_t out = from; out < end; ++out) {
                const bool takeRight =
                    left == middle || (right < end && compare(rows[left], rows[right]) > 0);
                merged[out] = takeRight ? rows[right++] : rows[left++];
            }
        }
        rows.swap(merged);
    }
    return rows;
}

} // namespace zkp
