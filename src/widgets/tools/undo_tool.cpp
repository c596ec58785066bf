#include "widgets/tools/undo_tool.h"

#include "base/scope_guard.h"
#include "base/texts/tools.h"
#include "widgets/grid/grid_view.h"
#include "widgets/zkp_grid_widget.h"

#include <QAction>
#include <QApplication>

namespace zkp {

namespace {

constexpr int kLookAgain = 30; // milliseconds, while a box stands open

} // namespace

UndoTool::UndoTool(QObject* parent)
    : ReportTool(parent)
    , undo_(addCommand({}, "undo", {Qt::CTRL | Qt::Key_Z}, [this] { undo(); }))
    , redo_(addCommand({}, "redo", {Qt::CTRL | Qt::Key_Y, Qt::CTRL | Qt::SHIFT | Qt::Key_Z},
                       [this] { redo(); })) {
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &UndoTool::settle);
    showSteps();
}

void UndoTool::reportChanged() {
    begin();
    if (!report())
        return;
    const Events& events = report()->grid().events();
    connect(&events, &Events::PropertyChanged, this, &UndoTool::wait);
    connect(&events, &Events::addcolumn, this, &UndoTool::wait);
    connect(&events, &Events::InsertColumn, this, &UndoTool::wait);
    connect(&events, &Events::DelColumn, this, &UndoTool::wait);
    connect(&events, &Events::MenuTitle, this, &UndoTool::wait);
    connect(&events, &Events::StopFillIng, this, &UndoTool::wait);
    // Colours and fonts that the control gives itself are told by the picture alone.
    connect(&events, &Events::StopInterface, this, &UndoTool::wait);
    connect(&report()->view(), &GridView::surfaceChanged, this, &UndoTool::wait);
}

void UndoTool::begin() {
    timer_.stop();
    history_.begin(report() ? ReshapeSnapshot::of(report()->grid()) : ReshapeSnapshot());
    showSteps();
}

void UndoTool::showSteps() {
    undo_->setEnabled(history_.canUndo());
    redo_->setEnabled(history_.canRedo());
    undo_->setText(texts::ofStep(texts::undoAction(), history_.undoName()));
    redo_->setText(texts::ofStep(texts::redoAction(), history_.redoName()));
}

void UndoTool::wait() {
    if (!isBringingBack_ && !timer_.isActive())
        timer_.start(0);
}

void UndoTool::settle() {
    if (!report() || isBringingBack_)
        return;
    if (QApplication::activeModalWidget() || isLoading()) {
        timer_.start(kLookAgain);
        return;
    }
    const bool step = history_.note(ReshapeSnapshot::of(report()->grid()));
    if (step)
        showSteps();
    tell(step);
}

/// What the host makes of a step belongs to it.
void UndoTool::tell(bool step) {
    const QPointer<UndoTool> self(this);
    const QPointer<ZkpGridWidget> shown = report();
    Q_EMIT settled(step);
    if (self && shown && shown == report())
        history_.settle(ReshapeSnapshot::of(shown->grid()));
}

void UndoTool::undo() {
    settle(); // what has just happened is a step of its own
    if (history_.canUndo() && report())
        bringBack(history_.undo());
}

void UndoTool::redo() {
    settle();
    if (history_.canRedo() && report())
        bringBack(history_.redo());
}

/// What has just happened counts, too. It is looked at and not settled: this asks and changes nothing.
bool UndoTool::hasChanges() const {
    if (!report())
        return false;
    return timer_.isActive() ? history_.isChangedIn(ReshapeSnapshot::of(report()->grid()))
                             : history_.isChanged();
}

void UndoTool::setSaved() {
    if (timer_.isActive())
        settle();
    history_.setSaved();
}

/// A load leaves the control to `RefreshOnChange`, which is the shape's own again afterwards.
void UndoTool::bringBack(const ReshapeSnapshot& shape) {
    const QPointer<UndoTool> self(this);
    const QPointer<ZkpGridWidget> shown = report();
    ZkpGrid& grid = shown->grid();
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
        if (reload_)
            reload_();
        else
            grid.refresh();
        if (!self || !shown || shown != report())
            return;
        grid.setRefreshOnChange(refreshesOnChange);
    }
    showSteps();
    tell(true);
}

void UndoTool::drawAgain(ZkpGrid& grid) {
    grid.DrawInterface();
    grid.MenuRefresh();
}

} // namespace zkp
