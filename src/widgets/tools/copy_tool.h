#pragma once

#include "widgets/tools/report_tool.h"

namespace zkp {

/// Copies the selected block with its headings to the clipboard, as text and as a table (see
/// copySelection).
///
/// Command: `copy` (Ctrl+C).
class CopyTool : public ReportTool {
    Q_OBJECT

public:
    explicit CopyTool(QObject* parent = nullptr);

    void copy();
};

} // namespace zkp
