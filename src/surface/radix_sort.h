#pragma once

#include <vector>

namespace zkp {

/// Puts rows in the order of their keys, keys[row], in time that grows with their number alone. Rows
/// with equal keys keep their order, whichever way it goes. No key is NaN.
void sortByKey(std::vector<int>& rows, const std::vector<double>& keys, bool descending);

} // namespace zkp
