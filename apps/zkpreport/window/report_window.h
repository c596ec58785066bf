#pragma once

#include "widgets/band_bar.h"
#include "widgets/grid_view.h"
#include "widgets/zkp_grid_widget.h"

#include <QMainWindow>

namespace zkp::app {

/// The program's window: one report.
class ReportWindow : public QMainWindow {
    Q_OBJECT

public:
    /// Boxes stand over the window; with a host of the caller's, where the caller wants them.
    explicit ReportWindow(std::shared_ptr<Host> host = {});

    ZkpGrid& grid() { return report_->grid(); }

    /// Opens a SQLite file read-only and shows its list of policies. A failure shows the error box
    /// and gives False.
    bool showDatabase(const QString& file);

private:
    ZkpGridWidget* report_;
};

} // namespace zkp::app
