#include "load/row_comparison.h"

#include "ado/constants.h"
#include "base/date_text.h"
#include "base/number.h"
#include "base/text.h"
#include "core/enums.h"

#include <algorithm>
#include <numeric>
#include <tuple>

namespace zkp {

namespace {

/// Stands for a blank factor in a key: the last of the letters.
constexpr QStringView kBlankFactor = u"\u03CE";

/// A factor cell without text; painting marks some of them.
bool isBlankFactor(const QString& text) {
    return isBlank(text) || trimmed(text) == u"----";
}

std::vector<int> numbersTo(std::size_t count) {
    std::vector<int> numbers(count);
    std::iota(numbers.begin(), numbers.end(), 0);
    return numbers;
}

/// The place of each text among the factors. Texts that the locale holds equal are still two groups.
std::vector<int> factorPlaces(const std::vector<QString>& texts, const ReportLocale& locale) {
    DistinctTexts all;
    all.texts = texts;
    all.ofRow = numbersTo(texts.size());
    const SortKeys collated = textKeys(all, locale, true);
    std::vector<int> order = numbersTo(texts.size());
    std::sort(order.begin(), order.end(), [&](int a, int b) {
        const auto rank = [&](int i) {
            const auto at = static_cast<std::size_t>(i);
            return std::make_tuple(texts[at] == kBlankFactor, collated[at], QStringView(texts[at]));
        };
        return rank(a) < rank(b);
    });
    std::vector<int> places(texts.size());
    for (std::size_t i = 0; i < order.size(); ++i)
        places[static_cast<std::size_t>(order[i])] = static_cast<int>(i);
    return places;
}

double numberOf(const QString& text, const ReportLocale& locale) {
    return toNumber(text, locale).value_or(0);
}

double momentOf(const QString& text, const ReportLocale& locale) {
    static const QDateTime none(QDate(1800, 1, 1), QTime(0, 0), Qt::UTC);
    return static_cast<double>(toMoment(text, locale).value_or(none).toMSecsSinceEpoch());
}

} // namespace

/// A subtotal's key ends in blank factors, the last of all, so that the order of keys alone puts it
/// behind the details of its group.
int compareRows(const SortRow& row1, const SortRow& row2, bool descending) {
    if (row1.kind == ZKPTotals)
        return row2.kind == ZKPTotals ? -1 : 1;
    if (row2.kind == ZKPTotals)
        return -1;
    if (row1.group != row2.group)
        return row1.group < row2.group ? -1 : 1;
    const bool isSubtotal1 = row1.kind == ZKPSubTotals;
    const bool isSubtotal2 = row2.kind == ZKPSubTotals;
    if (isSubtotal1 != isSubtotal2)
        return isSubtotal1 ? 1 : -1;
    if (isSubtotal1 || row1.value == row2.value)
        return 0;
    return (row1.value > row2.value) != descending ? 1 : -1;
}

QString groupKey(const QStringList& factors) {
    QString key;
    for (const QString& factor : factors) {
        if (&factor != &factors.front())
            key += u',';
        key += isBlankFactor(factor) ? kBlankFactor : QStringView(factor);
    }
    return key;
}

std::vector<int> groupPlaces(const std::vector<QString>& keys, const ReportLocale& locale) {
    DistinctTexts factors;
    std::vector<std::vector<int>> parts;
    parts.reserve(keys.size());
    for (const QString& key : keys) {
        parts.emplace_back();
        for (const QString& factor : key.split(u','))
            parts.back().push_back(factors.numberOf(factor));
    }
    const std::vector<int> placeOf = factorPlaces(factors.texts, locale);
    for (std::vector<int>& part : parts)
        for (int& factor : part)
            factor = placeOf[static_cast<std::size_t>(factor)];

    std::vector<int> order = numbersTo(keys.size());
    std::sort(order.begin(), order.end(), [&](int a, int b) {
        return parts[static_cast<std::size_t>(a)] < parts[static_cast<std::size_t>(b)];
    });
    std::vector<int> places(keys.size());
    for (std::size_t i = 0; i < order.size(); ++i)
        places[static_cast<std::size_t>(order[i])] = static_cast<int>(i);
    return places;
}

SortValue sortValueOf(const QString& dataField, std::optional<int> fieldType) {
    if (nameKey(dataField) == u"POS_CNT")
        return SortValue::Number;
    switch (fieldType.value_or(ado::adVarWChar)) {
    case ado::adSmallInt:
    case ado::adInteger:
    case ado::adBigInt:
    case ado::adDouble:
    case ado::adCurrency:
        return SortValue::Number;
    case ado::adDBDate:
    case ado::adDBTimeStamp:
        return SortValue::Date;
    default:
        return SortValue::Text;
    }
}

SortKeys sortValues(SortValue kind, const DistinctTexts& texts, const ReportLocale& locale) {
    if (kind == SortValue::Text)
        return textKeys(texts, locale, true);
    SortKeys ofText;
    ofText.reserve(texts.texts.size());
    for (const QString& text : texts.texts)
        ofText.push_back(kind == SortValue::Number ? numberOf(text, locale) : momentOf(text, locale));
    SortKeys values;
    values.reserve(texts.ofRow.size());
    for (const int text : texts.ofRow)
        values.push_back(ofText[static_cast<std::size_t>(text)]);
    return values;
}

} // namespace zkp
