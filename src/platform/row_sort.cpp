#include "platform/row_sort.h"

#include "base/text.h"

#include <QCollator>
#include <QHash>

#include <algorithm>
#include <numeric>

namespace zkp {

namespace {

std::vector<int> inOrder(int count) {
    std::vector<int> rows(static_cast<std::size_t>(count));
    std::iota(rows.begin(), rows.end(), 0);
    return rows;
}

/// Which texts there are, each once, and which of them each row has.
struct DistinctTexts {
    std::vector<QString> texts;
    std::vector<int> ofRow;
};

DistinctTexts distinctTexts(int count, const TextOfRow& text) {
    DistinctTexts result;
    QHash<QString, int> numbers;
    for (int i = 0; i < count; ++i) {
        const QString cell = text(i);
        const auto known = numbers.constFind(cell);
        int number = known == numbers.cend() ? -1 : *known;
        if (number < 0) {
            number = static_cast<int>(result.texts.size());
            numbers.insert(cell, number);
            result.texts.push_back(cell);
        }
        result.ofRow.push_back(number);
    }
    return result;
}

/// The place of each text in the locale's order.
std::vector<int> places(const std::vector<QString>& texts, const ReportLocale& locale, bool matchCase) {
    QCollator collator(locale.locale());
    collator.setCaseSensitivity(matchCase ? Qt::CaseSensitive : Qt::CaseInsensitive);
    std::vector<QCollatorSortKey> keys;
    keys.reserve(texts.size());
    for (const QString& text : texts)
        keys.push_back(collator.sortKey(text));
    std::vector<int> order = inOrder(static_cast<int>(texts.size()));
    const auto key = [&keys](int i) -> const QCollatorSortKey& { return keys[static_cast<std::size_t>(i)]; };
    std::sort(order.begin(), order.end(), [&](int a, int b) { return key(a).compare(key(b)) < 0; });

    std::vector<int> result(texts.size());
    int place = 0;
    for (std::size_t i = 0; i < order.size(); ++i) {
        if (i > 0 && key(order[i - 1]).compare(key(order[i])) != 0)
            ++place;
        result[static_cast<std::size_t>(order[i])] = place;
    }
    return result;
}

} // namespace

SortKeys numberKeys(int count, const NumberOfRow& number) {
    SortKeys keys(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        keys[static_cast<std::size_t>(i)] = number(i).value_or(0);
    return keys;
}

SortKeys textKeys(int count, const TextOfRow& text, const ReportLocale& locale, bool matchCase) {
    const DistinctTexts distinct = distinctTexts(count, text);
    const std::vector<int> place = places(distinct.texts, locale, matchCase);
    SortKeys keys;
    keys.reserve(static_cast<std::size_t>(count));
    for (const int number : distinct.ofRow)
        keys.push_back(place[static_cast<std::size_t>(number)]);
    return keys;
}

SortKeys genericKeys(int count, const TextOfRow& text, const NumberOfRow& number,
                     const ReportLocale& locale) {
    for (int i = 0; i < count; ++i)
        if (!number(i) && !isBlank(text(i)))
            return textKeys(count, text, locale, false);
    return numberKeys(count, number);
}

// From the least to the weightiest list, each time stable; keys lie beside their rows so that a
// comparison looks at nothing else.
std::vector<int> orderByKeys(int count, const std::vector<SortKeys>& keys, bool descending) {
    struct Keyed {
        double key;
        int row;
    };
    std::vector<int> rows = inOrder(count);
    std::vector<Keyed> keyed(rows.size());
    for (auto list = keys.rbegin(); list != keys.rend(); ++list) {
        for (std::size_t i = 0; i < rows.size(); ++i)
            keyed[i] = {(*list)[static_cast<std::size_t>(rows[i])], rows[i]};
        if (descending)
            std::stable_sort(keyed.begin(), keyed.end(), [](Keyed a, Keyed b) { return b.key < a.key; });
        else
            std::stable_sort(keyed.begin(), keyed.end(), [](Keyed a, Keyed b) { return a.key < b.key; });
        std::transform(keyed.begin(), keyed.end(), rows.begin(), [](Keyed k) { return k.row; });
    }
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
