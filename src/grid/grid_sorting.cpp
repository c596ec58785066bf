#include "zkp_grid.h"

#include "grid/parts.h"

// Sorting, one line each.

namespace zkp {

void ZkpGrid::Sort(int mv) {
    run([&](Parts& p) { p.load.sorting.Sort(mv); });
}
void ZkpGrid::SortGrid(int mv) {
    run([&](Parts& p) { p.load.sorting.SortGrid(mv); });
}
void ZkpGrid::SortByColumn(const QString& previous) {
    run([&](Parts& p) { p.load.sorting.SortByColumn(previous); });
}

} // namespace zkp
