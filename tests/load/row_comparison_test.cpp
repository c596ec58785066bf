#include "load/row_comparison.h"

#include "ado/constants.h"
#include "core/enums.h"
#include "print_qt.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>

using namespace zkp;
using namespace Qt::StringLiterals;

namespace {

const ReportLocale& greek() {
    static const ReportLocale locale{QLocale(QStringLiteral("el_GR"))};
    return locale;
}

SortRow detail(int group, double value) {
    return {ZKPSingleRow, group, value};
}
SortRow subtotal(int group) {
    return {ZKPSubTotals, group, 0};
}
SortRow totals() {
    return {ZKPTotals, 0, 0};
}

int up(const SortRow& row1, const SortRow& row2) {
    return compareRows(row1, row2, false);
}

/// The keys in their order, joined by "|".
QString ordered(const std::vector<QString>& keys) {
    const std::vector<int> places = groupPlaces(keys, greek());
    QStringList result(static_cast<qsizetype>(keys.size()));
    for (std::size_t i = 0; i < keys.size(); ++i)
        result[places[i]] = keys[i];
    return result.join(u'|');
}

DistinctTexts texts(const std::vector<QString>& values) {
    return distinctTexts(static_cast<int>(values.size()),
                         [&](int i) { return values[static_cast<std::size_t>(i)]; });
}

} // namespace

TEST(RowComparison, TheTotalsRowIsLast) {
    EXPECT_EQ(up(totals(), detail(9, 9)), 1);
    EXPECT_EQ(up(detail(9, 9), totals()), -1);
    EXPECT_EQ(up(totals(), subtotal(9)), 1);
    EXPECT_EQ(up(subtotal(9), totals()), -1);
    EXPECT_EQ(compareRows(detail(9, 9), totals(), true), -1) << "descending too";
}

TEST(RowComparison, OfTwoTotalsRowsTheFirstStandsBeforeTheSecondEitherWay) {
    EXPECT_EQ(up(totals(), totals()), -1);
}

TEST(RowComparison, DetailsOfAGroupGoByValue) {
    EXPECT_EQ(up(detail(1, 2), detail(1, 1)), 1);
    EXPECT_EQ(up(detail(1, 1), detail(1, 2)), -1);
    EXPECT_EQ(up(detail(1, 1), detail(1, 1)), 0);
}

TEST(RowComparison, DescendingTurnsTheValuesAndNothingElse) {
    EXPECT_EQ(compareRows(detail(1, 2), detail(1, 1), true), -1);
    EXPECT_EQ(compareRows(detail(1, 1), detail(1, 2), true), 1);
    EXPECT_EQ(compareRows(detail(1, 1), detail(1, 1), true), 0);
    EXPECT_EQ(compareRows(detail(2, 1), detail(1, 2), true), 1) << "groups keep their order";
    EXPECT_EQ(compareRows(subtotal(1), detail(1, 0), true), 1);
}

TEST(RowComparison, ASubtotalStandsBehindTheDetailsOfItsKey) {
    EXPECT_EQ(up(subtotal(1), detail(1, 99)), 1);
    EXPECT_EQ(up(detail(1, 99), subtotal(1)), -1);
    EXPECT_EQ(up(subtotal(1), subtotal(1)), 0);
}

TEST(RowComparison, RowsOfDifferentKeysGoByTheirKeys) {
    EXPECT_EQ(up(detail(2, 0), detail(1, 5)), 1);
    EXPECT_EQ(up(detail(1, 5), detail(2, 0)), -1);
    EXPECT_EQ(up(subtotal(2), subtotal(1)), 1);
    EXPECT_EQ(up(subtotal(1), detail(2, 0)), -1) << "a group's subtotal comes before the next group";
    EXPECT_EQ(up(detail(1, 0), subtotal(2)), -1);
}

TEST(RowComparison, TheKeyJoinsTheFactorsAndMarksBlankOnes) {
    EXPECT_EQ(groupKey({u"Αθήνα"_s, u"Πυρός"_s}), u"Αθήνα,Πυρός"_s);
    EXPECT_EQ(groupKey({u"Αθήνα"_s, u"  "_s}), u"Αθήνα,ώ"_s);
    EXPECT_EQ(groupKey({u""_s, u"Πυρός"_s}), u"ώ,Πυρός"_s);
    EXPECT_EQ(groupKey({}), u""_s);
    EXPECT_EQ(groupKey({u"A,B"_s, u"C"_s}), groupKey({u"A"_s, u"B,C"_s})) << "keys that join to one text";
}

TEST(RowComparison, ABlankFactorThatPaintingMarkedIsStillBlank) {
    EXPECT_EQ(groupKey({u"----"_s, u"Πυρός"_s}), u"ώ,Πυρός"_s);
}

TEST(RowComparison, ABlankKeyStandsBehindEveryOther) {
    EXPECT_EQ(ordered({u"ώ"_s, u"ω"_s, u"Ω"_s, u"ωα"_s, u"я"_s, u"z"_s, u"9"_s}), u"9|ω|Ω|ωα|z|я|ώ"_s)
        << "Greek letters stand before the others in Greek";
}

TEST(RowComparison, KeysGoFactorByFactorInTheLocalesOrder) {
    EXPECT_EQ(ordered({u"Β,α"_s, u"Α,ώ"_s, u"Α,β"_s, u"Α,α"_s}), u"Α,α|Α,β|Α,ώ|Β,α"_s);
    EXPECT_EQ(ordered({u"Αθήνα Α,1"_s, u"Αθήνα,2"_s}), u"Αθήνα,2|Αθήνα Α,1"_s);
    EXPECT_EQ(ordered({u"α,3"_s, u"ά,2"_s, u"α,1"_s}), u"α,1|α,3|ά,2"_s)
        << "an accent does not mix two groups";
}

TEST(RowComparison, KeysThatDifferHaveDifferentPlaces) {
    const std::vector<int> places = groupPlaces({u"α"_s, u"Α"_s, u"a\u0301"_s, u"\u00E1"_s}, greek());
    std::vector<int> sorted = places;
    std::sort(sorted.begin(), sorted.end());
    EXPECT_EQ(sorted, (std::vector<int>{0, 1, 2, 3}));
}

TEST(RowComparison, TheFieldsTypeDecidesHowCellsCompare) {
    for (const int type : {ado::adSmallInt, ado::adInteger, ado::adBigInt, ado::adDouble, ado::adCurrency})
        EXPECT_EQ(sortValueOf(u"PREMIUM"_s, type), SortValue::Number) << type;
    for (const int type : {ado::adDBDate, ado::adDBTimeStamp})
        EXPECT_EQ(sortValueOf(u"STARTS"_s, type), SortValue::Date) << type;
    for (const int type : {ado::adVarChar, ado::adVarWChar, ado::adBoolean, ado::adLongVarBinary})
        EXPECT_EQ(sortValueOf(u"CITY"_s, type), SortValue::Text) << type;
    EXPECT_EQ(sortValueOf(u"CITY"_s, std::nullopt), SortValue::Text) << "a column without a field";
}

TEST(RowComparison, TheShareOfTheCountIsANumberWithOrWithoutAField) {
    EXPECT_EQ(sortValueOf(u"POS_CNT"_s, std::nullopt), SortValue::Number);
    EXPECT_EQ(sortValueOf(u"pos_cnt"_s, int(ado::adVarWChar)), SortValue::Number);
    EXPECT_EQ(sortValueOf(u"POS_NET"_s, std::nullopt), SortValue::Text);
}

TEST(RowComparison, ATextThatIsNoNumberCountsAsZero) {
    EXPECT_EQ(sortValues(SortValue::Number, texts({u"1.234,50"_s, u"x"_s, u""_s, u"-3"_s}), greek()),
              (SortKeys{1234.5, 0, 0, -3}));
}

TEST(RowComparison, ATextThatIsNoDateCountsAsTheYear1800) {
    const SortKeys values = sortValues(
        SortValue::Date,
        texts({u"20/11/2026"_s, u"x"_s, u"1/1/1800"_s, u"31/12/1799"_s, u"20/11/2026 14:05:00"_s}), greek());
    EXPECT_EQ(values[1], values[2]);
    EXPECT_LT(values[3], values[1]);
    EXPECT_GT(values[0], values[1]);
    EXPECT_EQ(values[4] - values[0], (14 * 60 + 5) * 60'000.0) << "its time counts";
}

TEST(RowComparison, TextsCompareAsTheLocaleHasThem) {
    const SortKeys values =
        sortValues(SortValue::Text, texts({u"Ωμέγα"_s, u"Άλφα"_s, u"10"_s, u"9"_s, u"Άλφα"_s}), greek());
    EXPECT_LT(values[2], values[3]) << "digits as texts";
    EXPECT_LT(values[3], values[1]);
    EXPECT_LT(values[1], values[0]);
    EXPECT_EQ(values[1], values[4]);
}
