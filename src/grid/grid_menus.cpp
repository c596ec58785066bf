#include "zkp_grid.h"

#include "grid/parts.h"

// Menus and what they choose, one line each.

namespace zkp {

void ZkpGrid::MenuRefresh() {
    run([](Parts& p) { p.interaction.menuState.MenuRefresh(); });
}
void ZkpGrid::fillBandField() {
    run([](Parts& p) { p.interaction.menuState.fillBandField(); });
}
void ZkpGrid::fillcombos() {
    run([](Parts& p) { p.interaction.menuState.fillcombos(); });
}
void ZkpGrid::fillTotalcombos() {
    run([](Parts& p) { p.interaction.menuState.fillTotalcombos(); });
}
void ZkpGrid::LockMenus() {
    run([](Parts& p) { p.interaction.menuState.LockMenus(); });
}
void ZkpGrid::UnlockMenus() {
    run([](Parts& p) { p.interaction.menuState.UnlockMenus(); });
}

void ZkpGrid::ChooseSectionStyle(int section, int what) {
    run([&](Parts& p) { p.interaction.sectionStyles.ChooseSectionStyle(section, what); });
}
void ZkpGrid::ChooseSectionFont(int section, int /*what*/) {
    run([&](Parts& p) { p.interaction.sectionStyles.ChooseSectionFont(section); });
}

double ZkpGrid::FindKeyColumn() const {
    return parts_->core.keyColumn.FindKeyColumn();
}

} // namespace zkp
