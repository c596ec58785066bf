#pragma once

#include <cstddef>
#include <vector>

namespace zkp {

/// A list of counts that answers "in which element does position p fall" and takes a change of one
/// count, both in the logarithm of the list's length (a Fenwick tree).
class PrefixCounts {
public:
    struct Place {
        std::size_t index = 0; ///< the element; the list's size when the position is past the end
        int offset = 0;        ///< the position within it
    };

    void assign(const std::vector<int>& counts);
    void append(int count);
    void add(std::size_t index, int delta) {
        for (std::size_t i = index + 1; i <= tree_.size(); i += i & (~i + 1))
            tree_[i - 1] += delta;
    }

    std::size_t size() const { return tree_.size(); }
    /// The sum of the counts before that element.
    int before(std::size_t index) const;
    /// The element that holds position `position`, counted from 0. Elements of count 0 hold none.
    Place find(int position) const;

private:
    std::vector<int> tree_; // tree_[i] sums the i & -i elements that end at element i (from 1)
};

} // namespace zkp
