#pragma once

#include "widgets/tools/report_tool.h"
#include "widgets/tools/selection_sums.h"

#include <QTimer>

#include <optional>

class QLabel;

namespace zkp {

/// Sum, count and average of the selected cells on a label, worked out in slices of a few milliseconds.
/// One cell alone has none.
///
/// Widget: the label (`sums`).
class SumsTool : public ReportTool {
    Q_OBJECT

public:
    explicit SumsTool(QObject* parent = nullptr);

protected:
    void reportChanged() override;
    void loadEnded() override { startAgain(); }

private:
    void startAgain();
    void follow();
    void slice();
    void show(const QString& text);

    QPointer<QLabel> label_;
    std::optional<SelectionSums> sums_;
    CellRange block_;
    QTimer timer_;
};

} // namespace zkp
