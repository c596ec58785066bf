#pragma once

#include <QString>

namespace zkp {

/// What table `Reports` says of the source, for run-time statements. MasterTableLookup writes it.
struct MasterTableState {
    QString MasterTable;
    QString RKeyname;
    QString MasterFilter;
};

} // namespace zkp
