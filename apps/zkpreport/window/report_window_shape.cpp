#include "window/filter_line.h"
#include "window/group_choice.h"
#include "window/report_colours.h"
#include "window/report_window.h"
#include "window/template_pane.h"
#include "window/texts.h"

// The shape of a report, from one control to the next: what the user has made of it stays with another
// user, a filter and other groups.

namespace zkp::app {

void ReportWindow::keepShape() {
    for (int column = 0; report_ && column < grid().Cols(); ++column)
        widths_[grid().ColDataField(column)] = grid().ColWidth(column);
    if (!isLoaded_)
        return;
    kept_.bag = std::make_shared<PropertyBag>();
    kept_.isStart = isLaidAs(grid(), reportColumns(fields_, {factorsOf(grid()), grid().TotalForm()}));
    const ShapeToSave ready(grid(), colours_, filter_->inForce(), template_);
    grid().UserControl_WriteProperties(kept_.bag);
}

/// For a report that starts anew.
void ReportWindow::forgetShape() {
    isLoaded_ = false;
    replaceControl();
    widths_.clear();
    kept_ = {};
    carriesChanges_ = false;
    sort_ = {};
    template_.clear();
    templates_->setCurrent({});
}

/// A shape that starts like the report itself follows the user's fields; one that is the user's own keeps its
/// columns, unless they are not for this user to see.
void ReportWindow::layOut(const QString& user) {
    const auto layAnew = [&](const std::vector<ReportColumn>& columns) {
        layReport(grid(), fields_, columns, shape());
    };
    if (!kept_.bag) {
        layAnew(reportColumns(fields_, shape()));
        restoreWidths();
        return;
    }
    takeShape(grid(), colours_, fields_, [this] { grid().UserControl_ReadProperties(kept_.bag); });
    const bool isDenied = !user.isEmpty() && !deniedFields(grid(), fields_).isEmpty();
    const bool isOtherForm = grid().TotalForm() != groups_->isTotals();
    if (isDenied && !template_.isEmpty()) {
        setMessage(texts::templateLeft(template_));
        template_.clear();
        templates_->setCurrent({});
        showTitle();
    }
    if (kept_.isStart || isDenied || isOtherForm ||
        (groups_->isTotals() && factorsOf(grid()) != groups_->factors()))
        layAnew(reportColumns(fields_, shape()));
    else if (factorsOf(grid()) != groups_->factors())
        layAnew(regroupedColumns(grid(), fields_, groups_->factors()));
    restoreWidths();
}

void ReportWindow::restoreWidths() {
    for (int column = 0; column < grid().Cols(); ++column)
        if (const auto width = widths_.find(grid().ColDataField(column)); width != widths_.end())
            grid().setColWidth(column, width->second);
}

void ReportWindow::showTitle() {
    const ReportEntry* report = chosenReport();
    setWindowTitle(texts::windowTitle(template_, report ? report->title : QString(), database_.name()));
}

} // namespace zkp::app
