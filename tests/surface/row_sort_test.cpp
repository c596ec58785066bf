#include "surface/row_sort.h"

#include "surface/sample_column.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <numeric>
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

bool holdsEachOnce(Order order) {
    std::sort(order.begin(), order.end());
    for (std::size_t i = 0; i < order.size(); ++i)
        if (order[i] != static_cast<int>(i))
            return false;
    return true;
}

} // namespace

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
    const SortKeys keys = textKeys(distinctTexts(4, names), greek(), true);
    EXPECT_EQ(orderByKeys(4, {keys}, false), (Order{3, 1, 2, 0})) << "an accent weighs less than a letter";
}

TEST(RowSort, WithoutCaseTextsThatDifferInCaseShareAPlace) {
    const DistinctTexts names = distinctTexts(3, texts({u("beta"), u("ALPHA"), u("alpha")}));
    const SortKeys blind = textKeys(names, greek(), false);
    EXPECT_EQ(blind[1], blind[2]);
    const SortKeys cased = textKeys(names, greek(), true);
    EXPECT_NE(cased[1], cased[2]);
}

TEST(RowSort, EachTextStandsOnceAmongTheDistinctTexts) {
    const DistinctTexts distinct = distinctTexts(4, texts({u("b"), u("a"), u("b"), u("")}));
    EXPECT_EQ(distinct.texts, (std::vector<QString>{u("b"), u("a"), u("")}));
    EXPECT_EQ(distinct.ofRow, (std::vector<int>{0, 1, 0, 2}));
}

TEST(RowSort, ATextThatStandsTwiceAmongTheDistinctOnesHasOnePlace) {
    DistinctTexts distinct;
    distinct.ofRow = {distinct.numberOfNew(u("b")), distinct.numberOfNew(u("a")),
                      distinct.numberOfNew(u("b"))};
    EXPECT_EQ(textKeys(distinct, greek(), true), (SortKeys{1, 0, 1}));
}

TEST(RowSort, KeysOfEverySizeSortAsTheNumbersTheyAre) {
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    const SortKeys keys{0.1,  kInfinity, -0.0,  1e300, -2.5, 5e-324, -kInfinity,
                        -1e9, 0.0,       1e-10, -2.5,  3,    -1e300, 9007199254740993.0};
    const Order up{6, 12, 7, 4, 10, 2, 8, 5, 9, 0, 11, 13, 3, 1};
    EXPECT_EQ(orderByKeys(14, {keys}, false), up);
    const Order down{1, 3, 13, 11, 0, 9, 5, 2, 8, 4, 10, 7, 12, 6};
    EXPECT_EQ(orderByKeys(14, {keys}, true), down) << "equal keys keep their order";
}

TEST(RowSort, AmountsSortToTheLastTenThousandth) {
    const SortKeys keys{1234.5678, -0.0001, 1234.5679, 0, -1234.5, 99999999999.9999};
    EXPECT_EQ(orderByKeys(6, {keys}, false), (Order{4, 1, 3, 0, 2, 5}));
}

TEST(RowSort, ManyKeysSortAsAStableSortHasThem) {
    std::mt19937_64 random(11);
    for (const double unit : {1.0, 0.01, 0.0001, 1e-7, 1e12}) {
        SortKeys keys(5000);
        for (double& key : keys)
            key = (static_cast<double>(random() % 40'001) - 20'000) * unit;
        for (const bool descending : {false, true}) {
            Order expected(keys.size());
            std::iota(expected.begin(), expected.end(), 0);
            std::stable_sort(expected.begin(), expected.end(), [&](int a, int b) {
                const double keyA = keys[static_cast<std::size_t>(a)];
                const double keyB = keys[static_cast<std::size_t>(b)];
                return descending ? keyA > keyB : keyA < keyB;
            });
            EXPECT_EQ(orderByKeys(5000, {keys}, descending), expected);
        }
    }
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
