#include "surface/prefix_counts.h"

#include <bit>

namespace zkp {

namespace {

std::size_t lowestBit(std::size_t i) {
    return i & (~i + 1);
}

} // namespace

void PrefixCounts::assign(const std::vector<int>& counts) {
    tree_ = counts;
    for (std::size_t i = 1; i <= tree_.size(); ++i) {
        const std::size_t parent = i + lowestBit(i);
        if (parent <= tree_.size())
            tree_[parent - 1] += tree_[i - 1];
    }
}

void PrefixCounts::append(int count) {
    const std::size_t i = tree_.size() + 1;
    const std::size_t first = i - lowestBit(i);
    tree_.push_back(before(i - 1) - before(first) + count);
}

int PrefixCounts::before(std::size_t index) const {
    int sum = 0;
    for (std::size_t i = index; i > 0; i -= lowestBit(i))
        sum += tree_[i - 1];
    return sum;
}

PrefixCounts::Place PrefixCounts::find(int position) const {
    std::size_t i = 0;
    for (std::size_t step = std::bit_floor(tree_.size()); step > 0; step >>= 1) {
        if (i + step <= tree_.size() && tree_[i + step - 1] <= position) {
            i += step;
            position -= tree_[i - 1];
        }
    }
    return {i, position};
}

} // namespace zkp
