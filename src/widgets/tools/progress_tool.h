#pragma once

#include "widgets/tools/fetch_figures.h"
#include "widgets/tools/report_tool.h"

#include <QElapsedTimer>

class QLabel;

namespace zkp {

namespace ado {
class Connection;
}

/// Tells on a label how a load goes: the statement runs, rows read and how many a second, rows laid out. A
/// load lets no events in, so the label is painted at once, by itself, and a few times a second at most;
/// nothing else happens while it is.
///
/// Widget: the label, which has its room before a load begins (`loadProgress`).
class ProgressTool : public ReportTool {
    Q_OBJECT

public:
    explicit ProgressTool(QObject* parent = nullptr);

    /// Tells of the loads of another control as well, such as one that is loaded before it is shown.
    void watch(ZkpGridWidget& report);
    /// Tells of the rows that a connection fetches, in place of whoever the connection told before. Without
    /// it the figures between the beginning and the end are missing.
    void watch(ado::Connection& connection);

protected:
    void reportChanged() override;

private:
    void begin();
    void note(std::int64_t rows);
    void layOut(std::int64_t rows);
    void end();
    void show(const QString& text);

    QPointer<QLabel> label_;
    QElapsedTimer timer_;
    std::int64_t lastShown_;
    FetchFigures figures_;
};

} // namespace zkp
