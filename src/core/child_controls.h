#pragma once

#include "menu/menu_bar.h"
#include "surface/grid_surface.h"

#include <QString>

#include <functional>

namespace zkp {

struct Label {
    QString Caption;
    bool Visible = true;
};

struct Button {
    QString Caption;
    bool Visible = false;
    bool Enabled = true;
    std::function<void()> pressed;
    void press() {
        const auto handler = pressed; // it may replace itself
        if (Enabled && handler)
            handler();
    }
};

/// What stands on the control, under the names that hosts and scripts know.
struct ChildControls {
    GridSurface MSFlexGrid1; ///< the visible report
    GridSurface MSFlexGrid2; ///< never visible: accumulator of group sums
    GridSurface MSFlexGrid3; ///< never visible; nothing fills it
    MenuBar Picture1;        ///< the bar; tool `txtRecs` of band `BndTemplate` shows the record count
    Button cmdHide;          ///< hides the chart
    Label lbltemplate;
    Label lblfilter;
};

} // namespace zkp
