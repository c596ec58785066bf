#include "surface/prefix_counts.h"

#include <gtest/gtest.h>

#include <numeric>
#include <random>

using zkp::PrefixCounts;

namespace {

/// Every position is found in the element that a walk from the front finds.
void expectFinds(const PrefixCounts& counts, const std::vector<int>& model) {
    ASSERT_EQ(counts.size(), model.size());
    int position = 0;
    for (std::size_t i = 0; i < model.size(); ++i) {
        EXPECT_EQ(counts.before(i), position);
        for (int offset = 0; offset < model[i]; ++offset, ++position) {
            EXPECT_EQ(counts.find(position).index, i);
            EXPECT_EQ(counts.find(position).offset, offset);
        }
    }
    EXPECT_EQ(counts.find(position).index, model.size());
}

} // namespace

TEST(PrefixCounts, AnEmptyListHoldsNoPosition) {
    PrefixCounts counts;
    EXPECT_EQ(counts.size(), 0u);
    EXPECT_EQ(counts.find(0).index, 0u);
}

TEST(PrefixCounts, ElementsOfNothingHoldNoPosition) {
    PrefixCounts counts;
    counts.assign({2, 0, 0, 3});
    expectFinds(counts, {2, 0, 0, 3});
}

TEST(PrefixCounts, AppendingGivesTheSameAsAssigning) {
    PrefixCounts counts;
    std::vector<int> model;
    for (const int count : {3, 1, 4, 1, 5, 9, 2, 6, 5}) {
        counts.append(count);
        model.push_back(count);
        expectFinds(counts, model);
    }
}

TEST(PrefixCounts, ChangesOfSingleCountsAreSeen) {
    std::mt19937 random(7);
    std::vector<int> model(37, 2);
    PrefixCounts counts;
    counts.assign(model);
    for (int step = 0; step < 200; ++step) {
        const std::size_t i = random() % model.size();
        const int delta = model[i] > 0 && random() % 2 == 0 ? -1 : 1;
        model[i] += delta;
        counts.add(i, delta);
    }
    expectFinds(counts, model);
}
