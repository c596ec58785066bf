#include "platform/row_sort.h"

#include "base/number.h"
#include "platform/sample_column.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <stdexcept>

using namespace zkp;
using zkp::test::u;
using Order = std::vector<int>;

namespace {

const ReportLocale& greek() {
    static const ReportLocale locale{QLocale(QLocale::Greek, QLocale::Greece)};
    return locale;
}

TextOfRow texts(std::vector<QString> values) {
    return [values = std::move(values)](int i) { return values[static_cast<std::size_t>(i)]; };
}

NumberOfRow numbers(std::vector<QString> values) {
    return [values = std::move(values)](int i) {
        return toNumber(values[static_cast<std::size_t>(i)], greek());
    };
}

bool holdsEachOnce(Order order) {
    std::sort(order.begin(), order.end());
    for (std::size_t i = 0; i < order.size(); ++i)
        if (order[i] != static_cast<int>(i))
            return false;
    return true;
}

} // namespace

TEST(RowSort, ARowWithoutANumberCountsAsZero) {
    EXPECT_EQ(numberKeys(4, numbers({u("1.000,5"), u("-2"), u("abc"), u("")})), (SortKeys{1000.5, -2, 0, 0}));
}

TEST(RowSort, EqualKeysKeepTheirOrderUpAndDown) {
    const std::vector<SortKeys> keys{{2, 1, 2, 1}};
    EXPECT_EQ(orderByKeys(4, keys, false), (Order{1, 3, 0, 2}));
    EXPECT_EQ(orderByKeys(4, keys, true), (Order{0, 2, 1, 3}));
}

TEST(RowSort, TheFirstKeyWeighsMost) {
    EXPECT_EQ(orderByKeys(3, {{1, 0, 1}, {5, 9, 3}}, false), (Order{1, 2, 0}));
}

TEST(RowSort, TextsSortAsTheLocaleHasThem) {
    const TextOfRow names = texts({u("Ωμέγα"), u("Άλφα"), u("Βήτα"), u("Αβγό")});
    const SortKeys keys = textKeys(4, names, greek(), true);
    EXPECT_EQ(orderByKeys(4, {keys}, false), (Order{3, 1, 2, 0})) << "an accent weighs less than a letter";
}

TEST(RowSort, WithoutCaseTextsThatDifferInCaseShareAPlace) {
    const TextOfRow names = texts({u("beta"), u("ALPHA"), u("alpha")});
    const SortKeys blind = textKeys(3, names, greek(), false);
    EXPECT_EQ(blind[1], blind[2]);
    const SortKeys cased = textKeys(3, names, greek(), true);
    EXPECT_NE(cased[1], cased[2]);
}

TEST(RowSort, GenericIsNumericWhenEveryTextIsANumberOrBlank) {
    const auto keys = [](std::vector<QString> values) {
        return genericKeys(static_cast<int>(values.size()), texts(values), numbers(values), greek());
    };
    EXPECT_EQ(keys({u("10"), u(" "), u("9")}), (SortKeys{10, 0, 9}));
    const SortKeys asTexts = keys({u("10"), u("x"), u("9")});
    EXPECT_LT(asTexts[0], asTexts[2]) << "\"10\" stands before \"9\" as a text";
}

TEST(RowSort, ACustomComparisonIsFollowedAndStable) {
    const std::vector<int> values{3, 1, 3, 2, 1};
    const auto compare = [&](int a, int b) {
        return values[static_cast<std::size_t>(a)] - values[static_cast<std::size_t>(b)];
    };
    EXPECT_EQ(orderByCompare(5, compare), (Order{1, 4, 3, 0, 2}));
}

TEST(RowSort, AComparisonThatContradictsItselfLosesNoRow) {
    std::mt19937 random(3);
    for (const int count : {2, 3, 7, 64, 1000}) {
        EXPECT_TRUE(holdsEachOnce(
            orderByCompare(count, [&](int, int) { return static_cast<int>(random() % 3) - 1; })));
        EXPECT_TRUE(holdsEachOnce(orderByCompare(count, [](int, int) { return 1; })));
        EXPECT_TRUE(holdsEachOnce(orderByCompare(count, [](int, int) { return -1; })));
    }
}

TEST(RowSort, AComparisonThatThrowsEndsTheSort) {
    EXPECT_THROW(orderByCompare(10, [](int, int) -> int { throw std::runtime_error("no"); }),
                 std::runtime_error);
}

TEST(RowSort, NothingAndOneRowAreSorted) {
    EXPECT_EQ(orderByCompare(0, {}), Order{});
    EXPECT_EQ(orderByCompare(1, {}), Order{0});
    EXPECT_EQ(orderByKeys(0, {{}}, false), Order{});
}
