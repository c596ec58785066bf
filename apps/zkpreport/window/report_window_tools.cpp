#include "base/error.h"
#include "host/error_box.h"
#include "window/group_choice.h"
#include "window/report_tools.h"
#include "window/report_window.h"
#include "window/statement_panel.h"
#include "window/texts.h"
#include "window/totals_columns.h"

// What stands around a control follows what its user does with it by the control's own menus.

namespace zkp::app {

void ReportWindow::reloadReshaped() {
    setMessage({});
    reconnectDatabase();
    sort_ = sortOf(grid());
    tell(loadReport(grid(), loadFilter_));
}

void ReportWindow::followControl() {
    if (!isLoaded_)
        return;
    try {
        followChanges();
    } catch (const Error& error) {
        ShowError(*host_, error);
    }
}

/// The control writes over its filter whenever it loads; what it loads by itself the next time begins with
/// the user's again.
void ReportWindow::followChanges() {
    if (grid().Filter() != loadFilter_)
        grid().setFilter(loadFilter_);
    const QStringList factors = factorsOf(grid());
    if (factors != groups_->factors()) {
        groups_->choose(factors, grid().TotalForm());
        groups_->setFields(fields_);
    }
    if (!hasLoadedItself_)
        return;
    hasLoadedItself_ = false;
    if (grid().TotalForm())
        formatFigures(grid());
    sort_ = sortOf(grid());
    if (!grid().TotalForm())
        showSort(grid(), sort_);
    panel_->setOutcome(grid().lastLoad());
}

} // namespace zkp::app
