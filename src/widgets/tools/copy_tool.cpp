#include "widgets/tools/copy_tool.h"

#include "base/scope_guard.h"
#include "base/texts/tools.h"
#include "widgets/tools/clipboard_copy.h"
#include "widgets/zkp_grid_widget.h"

#include <QKeySequence>

namespace zkp {

CopyTool::CopyTool(QObject* parent)
    : ReportTool(parent) {
    addCommand(texts::copyAction(), "copy", {Qt::CTRL | Qt::Key_C, Qt::CTRL | Qt::Key_Insert},
               [this] { copy(); });
}

void CopyTool::copy() {
    if (!report())
        return;
    ZkpGrid& grid = report()->grid();
    Pointer& pointer = grid.host().screenPointer();
    const int before = pointer.pointer();
    const ScopeGuard restore([&] { pointer.setPointer(before); });
    pointer.setPointer(kPointerHourglass);
    QStringList headings;
    for (int c = 0; c < grid.Cols(); ++c)
        headings += grid.ColCaption(c);
    putOnClipboard(copySelection(grid.shownRows(), headings));
}

} // namespace zkp
