#include "zkp_grid.h"

#include "grid/parts.h"

// What the user does to columns, one line each.

namespace zkp {

void ZkpGrid::deletecolumn(int& columnclicked) {
    run([&](Parts& p) { p.interaction.columnCommands.deletecolumn(columnclicked); });
}

void ZkpGrid::mnuAddColumn_Click() {
    run([](Parts& p) { p.interaction.columnCommands.addColumn(); });
}

void ZkpGrid::mnuInsert_Click() {
    run([](Parts& p) { p.interaction.columnCommands.insertColumn(); });
}

void ZkpGrid::mnuAddOmadopoihsh_Click() {
    run([](Parts& p) { p.interaction.columnCommands.addGroup(); });
}

void ZkpGrid::mnuInsertOmadopoihsh_Click() {
    run([](Parts& p) { p.interaction.columnCommands.insertGroup(); });
}

void ZkpGrid::mnuDelete_Click() {
    run([](Parts& p) { p.interaction.columnCommands.deleteCurrent(); });
}

} // namespace zkp
