#include "ui/menu_bands.h"

namespace zkp {

void buildMenuBands(MenuBar& bar) {
    Band& template_ = bar.addBand(QStringLiteral("BndTemplate"));
    Tool count;
    count.Name = QStringLiteral("txtRecs");
    count.kind = ToolKind::Label;
    bar.addTool(template_, count);
}

} // namespace zkp
