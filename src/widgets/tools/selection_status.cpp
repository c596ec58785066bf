#include "widgets/tools/selection_status.h"

#include "base/texts/tools.h"
#include "widgets/grid/grid_view.h"
#include "widgets/grid/surface_selection.h"
#include "widgets/zkp_grid_widget.h"

#include <QElapsedTimer>

namespace zkp {

namespace {

constexpr int kSliceMs = 5;
constexpr int kCellsAtATime = 500; // between two looks at the clock
constexpr CellRange kNone{0, 0, -1, -1};

} // namespace

SelectionStatus::SelectionStatus(QLabel& label, std::function<bool()> isLoading, QObject* parent)
    : QObject(parent)
    , label_(label)
    , isLoading_(std::move(isLoading))
    , block_(kNone) {
    timer_.setInterval(0);
    connect(&timer_, &QTimer::timeout, this, &SelectionStatus::slice);
}

void SelectionStatus::setReport(ZkpGridWidget* report) {
    timer_.stop();
    label_.clear();
    sums_.reset();
    block_ = kNone;
    report_ = report;
    if (!report)
        return;
    sums_.emplace(report->grid().MSFlexGrid1());
    const Events& events = report->grid().events();
    connect(&report->view(), &GridView::surfaceChanged, this, &SelectionStatus::follow);
    connect(&events, &Events::StopFillIng, this, &SelectionStatus::startAgain);
    connect(&events, &Events::StopSorting, this, &SelectionStatus::startAgain);
}

void SelectionStatus::startAgain() {
    block_ = kNone;
    follow();
}

/// Any change of the surface brings one here; most are none of the selection.
void SelectionStatus::follow() {
    if (!report_)
        return;
    const CellRange block = selectedBlock(report_->grid().MSFlexGrid1());
    if (block == block_)
        return;
    block_ = block;
    const bool isOneCell = block.top == block.bottom && block.left == block.right;
    if (isOneCell || isEmpty(block)) {
        timer_.stop();
        label_.clear();
        return;
    }
    sums_->start(block);
    timer_.start();
}

void SelectionStatus::slice() {
    if (!report_ || !sums_) {
        timer_.stop();
        return;
    }
    if (isLoading_())
        return;
    QElapsedTimer clock;
    clock.start();
    while (!sums_->walk(kCellsAtATime) && clock.elapsed() < kSliceMs) {
    }
    if (!sums_->isDone()) {
        label_.setText(texts::summing(sums_->percent()));
        return;
    }
    timer_.stop();
    label_.setText(sums_->text());
}

} // namespace zkp
