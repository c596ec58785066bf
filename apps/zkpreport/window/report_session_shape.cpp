#include "base/texts/columns.h"
#include "widgets/zkp_grid_widget.h"
#include "window/report_colours.h"
#include "window/report_session.h"
#include "window/report_tools.h"
#include "window/showing_errors.h"
#include "window/texts.h"
#include "window/user_list.h"

// The control of a report, and the report's shape from one control to the next: what the user has made of
// it stays with another user, a filter and other groups.

namespace zkp::app {

bool ReportSession::hasChanges() const {
    return isLoaded_ && (tools_.undo.hasChanges() || carriesChanges_);
}

void ReportSession::replaceControl() {
    carriesChanges_ = carriesChanges_ || hasChanges();
    keepShape();
    delete control_;
    isLoaded_ = false;
    control_ = makeControl().release();
    Q_EMIT emptied();
}

std::unique_ptr<ZkpGridWidget> ReportSession::makeControl() {
    auto control = std::make_unique<ZkpGridWidget>(host_);
    control->hide(); // until it has columns
    place_(*control);
    ZkpGrid& grid = control->grid();
    grid.setDesignMode(true);                            // the user's refresh reads a reshaped report
    grid.Picture1().Tools(u"mnuExport").Visible = false; // its command is not ours
    tools_.progress.watch(*control);
    listen(*control);
    setReportColours(grid, colours_);
    connectEvents(*control);
    return control;
}

void ReportSession::listen(ZkpGridWidget& control) {
    const auto listening = std::make_shared<Listening>(
        control.grid().listenToLoads({.begins = {}, .ended = [this](const LoadOutcome& outcome) {
                                          if (outcome.result == ZKPLoaded)
                                              hasLoadedItself_ = true; // unless it was asked for by us
                                      }}));
    connect(&control, &QObject::destroyed, this, [listening] {}); // until then it is kept
}

void ReportSession::connectEvents(ZkpGridWidget& control) {
    ZkpGrid* grid = &control.grid();
    const Events* events = &grid->events();
    connect(events, &Events::Click, this, &ReportSession::sortIfHeading);
    connect(events, &Events::DblClick, this, &ReportSession::sortIfHeading);
    connect(events, &Events::PrintCommand, this, [this, grid] {
        host_->boxes().msgBox(zkp::texts::notThereYet(grid->Picture1().Tools(u"mnuPrint").Caption),
                              kMsgBoxInformation, {});
    });
    // A new group factor is coloured at once, and not at some later moment.
    connect(events, &Events::addcolumn, this, [this, grid] {
        showingErrors(*host_, [&] {
            grid->DrawInterface();
            return true;
        });
    });
}

void ReportSession::keepShape() {
    for (int column = 0; control_ && column < grid().Cols(); ++column)
        widths_[grid().ColDataField(column)] = grid().ColWidth(column);
    if (!isLoaded_)
        return;
    kept_.bag = std::make_shared<PropertyBag>();
    kept_.isStart = isLaidAs(grid(), reportColumns(fields_, {factorsOf(grid()), grid().TotalForm()}));
    const ShapeToSave ready(grid(), colours_, filter_, template_);
    grid().UserControl_WriteProperties(kept_.bag);
}

void ReportSession::forgetShape() {
    isLoaded_ = false;
    replaceControl();
    widths_.clear();
    kept_ = {};
    carriesChanges_ = false;
    shape_.sort = {};
    template_.clear();
    Q_EMIT templateChanged({});
}

/// A shape that starts like the report itself follows the user's fields; one that is the user's own keeps its
/// columns, unless they are not for this user to see.
void ReportSession::layOut() {
    const auto layAnew = [&](const std::vector<ReportColumn>& columns) {
        layReport(grid(), fields_, columns, shape_);
    };
    if (!kept_.bag) {
        layAnew(reportColumns(fields_, shape_));
        restoreWidths();
        return;
    }
    takeShape(grid(), colours_, fields_, [this] { grid().UserControl_ReadProperties(kept_.bag); });
    const bool isDenied = !user_.isEmpty() && !deniedFields(grid(), fields_).isEmpty();
    const bool isOtherForm = grid().TotalForm() != shape_.isTotals;
    if (isDenied)
        leaveTemplate();
    const bool isRegrouped = factorsOf(grid()) != shape_.factors;
    if (kept_.isStart || isDenied || isOtherForm || (shape_.isTotals && isRegrouped))
        layAnew(reportColumns(fields_, shape_));
    else if (isRegrouped)
        layAnew(regroupedColumns(grid(), fields_, shape_.factors));
    restoreWidths();
}

/// It has fields that are not for this user to see.
void ReportSession::leaveTemplate() {
    if (template_.isEmpty())
        return;
    Q_EMIT told(texts::templateLeft(template_));
    template_.clear();
    Q_EMIT templateChanged({});
    Q_EMIT titleChanged();
}

void ReportSession::restoreWidths() {
    for (int column = 0; column < grid().Cols(); ++column)
        if (const auto width = widths_.find(grid().ColDataField(column)); width != widths_.end())
            grid().setColWidth(column, width->second);
}

void ReportSession::take(OpenedReport opened, const QString& templateName) {
    forgetShape();
    delete control_;
    control_ = opened.control.release();
    report_ = std::move(opened.report);
    setGroups(factorsOf(grid()), grid().TotalForm());
    setFields(std::move(opened.fields));
    filter_ = opened.filter;
    Q_EMIT filterTaken(filter_);
    shape_.sort = sortOf(grid());
    template_ = templateName;
    Q_EMIT templateChanged(template_);
    Q_EMIT titleChanged();
    control_->show();
    Q_EMIT rightsChanged(rightsText(connection_, user_));
    tell(opened.record);
}

void ReportSession::setSaved(const QString& templateName) {
    template_ = templateName;
    Q_EMIT templateChanged(template_);
    Q_EMIT titleChanged();
    carriesChanges_ = false;
    tools_.undo.setSaved();
}

} // namespace zkp::app
