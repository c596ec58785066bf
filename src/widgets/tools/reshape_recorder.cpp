#include "widgets/tools/reshape_recorder.h"

#include "base/scope_guard.h"
#include "widgets/grid/grid_view.h"
#include "widgets/zkp_grid_widget.h"

#include <QApplication>

namespace zkp {

namespace {

constexpr int kLookAgain = 30; // milliseconds, while a box stands open

} // namespace

ReshapeRecorder::ReshapeRecorder(Hooks hooks, QObject* parent)
    : QObject(parent)
    , hooks_(std::move(hooks)) {
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &ReshapeRecorder::settle);
}

void ReshapeRecorder::setReport(ZkpGridWidget* report) {
    isRecording_ = false;
    timer_.stop();
    report_ = report;
    history_.begin({});
    Q_EMIT changed();
    if (!report)
        return;
    const Events& events = report->grid().events();
    connect(&events, &Events::PropertyChanged, this, &ReshapeRecorder::wait);
    connect(&events, &Events::addcolumn, this, &ReshapeRecorder::wait);
    connect(&events, &Events::InsertColumn, this, &ReshapeRecorder::wait);
    connect(&events, &Events::DelColumn, this, &ReshapeRecorder::wait);
    connect(&events, &Events::MenuTitle, this, &ReshapeRecorder::wait);
    connect(&events, &Events::StopFillIng, this, &ReshapeRecorder::wait);
    // Colours and fonts that the control gives itself are told by the picture alone.
    connect(&events, &Events::StopInterface, this, &ReshapeRecorder::wait);
    connect(&report->view(), &GridView::surfaceChanged, this, &ReshapeRecorder::wait);
}

void ReshapeRecorder::begin() {
    if (!report_)
        return;
    timer_.stop();
    history_.begin(ReshapeSnapshot::of(report_->grid()));
    isRecording_ = true;
    Q_EMIT changed();
}

void ReshapeRecorder::wait() {
    if (isRecording_ && !isBringingBack_ && !timer_.isActive())
        timer_.start(0);
}

void ReshapeRecorder::settle() {
    if (!report_ || !isRecording_ || isBringingBack_)
        return;
    if (QApplication::activeModalWidget() || hooks_.isLoading()) {
        timer_.start(kLookAgain);
        return;
    }
    const bool step = history_.note(ReshapeSnapshot::of(report_->grid()));
    if (step)
        Q_EMIT changed();
    tell(step);
}

/// What the host makes of a step belongs to it.
void ReshapeRecorder::tell(bool step) {
    const QPointer<ReshapeRecorder> self(this);
    const QPointer<ZkpGridWidget> report = report_;
    Q_EMIT settled(step);
    if (self && report && report == report_)
        history_.settle(ReshapeSnapshot::of(report->grid()));
}

void ReshapeRecorder::undo() {
    settle(); // what has just happened is a step of its own
    if (canUndo() && report_)
        bringBack(history_.undo());
}

void ReshapeRecorder::redo() {
    settle();
    if (canRedo() && report_)
        bringBack(history_.redo());
}

/// What has just happened counts, too. It is looked at and not settled: this asks and changes nothing.
bool ReshapeRecorder::hasChanges() const {
    if (!isRecording_ || !report_)
        return false;
    return timer_.isActive() ? history_.isChangedIn(ReshapeSnapshot::of(report_->grid()))
                             : history_.isChanged();
}

void ReshapeRecorder::setSaved() {
    if (timer_.isActive())
        settle();
    history_.setSaved();
}

/// A load leaves the control to `RefreshOnChange`, which is the shape's own again afterwards.
void ReshapeRecorder::bringBack(const ReshapeSnapshot& shape) {
    const QPointer<ReshapeRecorder> self(this);
    const QPointer<ZkpGridWidget> report = report_;
    ZkpGrid& grid = report->grid();
    isBringingBack_ = true;
    const ScopeGuard done([&] {
        if (self)
            isBringingBack_ = false;
    });
    const bool hasSameRows = ReshapeSnapshot::of(grid).hasSameRows(shape);
    const bool refreshesOnChange = shape.refreshesOnChange;
    shape.restore(grid);
    if (hasSameRows) {
        drawAgain(grid);
    } else {
        grid.setRefreshOnChange(true);
        hooks_.reload();
        if (!self || !report || report != report_)
            return;
        grid.setRefreshOnChange(refreshesOnChange);
    }
    Q_EMIT changed();
    tell(true);
}

void ReshapeRecorder::drawAgain(ZkpGrid& grid) {
    grid.DrawInterface();
    grid.MenuRefresh();
}

} // namespace zkp
