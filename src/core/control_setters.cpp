#include "core/control_setters.h"

#include "base/error.h"

namespace zkp {

void ControlSetters::setCols(int count) {
    if (count <= 0)
        return;
    children_.MSFlexGrid1.setCols(count);
    columns_.resize(count);
    events_.notify(QStringLiteral("Cols"));
}

void ControlSetters::setRow(int row) {
    GridSurface& surface = children_.MSFlexGrid1;
    try {
        if (row > surface.Rows() - 1)
            surface.setRows(row);
    } catch (const Error&) {
    }
    try {
        surface.setRow(row);
    } catch (const Error&) {
    }
    events_.notify(QStringLiteral("Row"));
}

void ControlSetters::setRefreshOnChange(bool on) {
    MenuBar& bar = children_.Picture1;
    data_.RefreshOnChange = on;
    bar.Tools(u"mnuPrint").Enabled = on; // in all its bands
    bar.Refresh();
    events_.notify(QStringLiteral("Refreshonchange"));
}

void ControlSetters::setPrintCaption(const QString& title) {
    print_.PrintCaption = title;
    children_.lbltemplate.Caption = title;
    events_.notify(QStringLiteral("PrintCaption"));
}

} // namespace zkp
