#include "interaction/menu_bands.h"

#include "interaction/menu_table.h"

namespace zkp {

void buildMenuBands(MenuBar& bar) {
    for (const char16_t* name : menuBandNames())
        bar.addBand(QString::fromUtf16(name));
    for (const MenuRow& row : menuRows())
        for (const char16_t* name : row.bands)
            bar.addTool(bar.Bands(name), row.tool);
}

} // namespace zkp
