#pragma once

#include "widgets/tools/copy_tool.h"
#include "widgets/tools/find_tool.h"
#include "widgets/tools/progress_tool.h"
#include "widgets/tools/sums_tool.h"
#include "widgets/tools/undo_tool.h"

class QMainWindow;

namespace zkp::app {

/// The tools beside the report as the program's window has them: their commands in its menu, what a load
/// and a selection tell in its status line. The find line is placed by the window.
struct ReportTools {
    explicit ReportTools(QMainWindow& window);

    /// The control that shows, loaded. One that is loaded before it shows is watched by `progress`.
    void showReport(ZkpGridWidget* report);

    UndoTool undo;
    CopyTool copy;
    FindTool find;
    SumsTool sums;
    ProgressTool progress;
};

} // namespace zkp::app
