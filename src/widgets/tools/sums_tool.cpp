#include "widgets/tools/sums_tool.h"

#include "base/texts/tools.h"
#include "widgets/grid/grid_view.h"
#include "widgets/grid/surface_selection.h"
#include "widgets/zkp_grid_widget.h"

#include <QElapsedTimer>
#include <QLabel>

namespace zkp {

namespace {

constexpr int kSliceMs = 5;
constexpr int kCellsAtATime = 500; // between two looks at the clock
constexpr CellRange kNone{0, 0, -1, -1};

} // namespace

SumsTool::SumsTool(QObject* parent)
    : ReportTool(parent)
    , label_(new QLabel)
    , block_(kNone) {
    label_->setObjectName(QStringLiteral("sums"));
    label_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    setWidget(label_);
    timer_.setInterval(0);
    connect(&timer_, &QTimer::timeout, this, &SumsTool::slice);
}

void SumsTool::reportChanged() {
    timer_.stop();
    show({});
    sums_.reset();
    block_ = kNone;
    if (!report())
        return;
    sums_.emplace(report()->grid().MSFlexGrid1());
    connect(&report()->view(), &GridView::surfaceChanged, this, &SumsTool::follow);
    connect(&report()->grid().events(), &Events::StopSorting, this, &SumsTool::startAgain);
}

/// The cells may hold other values.
void SumsTool::startAgain() {
    block_ = kNone;
    follow();
}

/// Any change of the surface brings one here; most are none of the selection.
void SumsTool::follow() {
    if (!report())
        return;
    const CellRange block = selectedBlock(report()->grid().MSFlexGrid1());
    if (block == block_)
        return;
    block_ = block;
    const bool isOneCell = block.top == block.bottom && block.left == block.right;
    if (isOneCell || isEmpty(block)) {
        timer_.stop();
        show({});
        return;
    }
    sums_->start(block);
    timer_.start();
}

void SumsTool::slice() {
    if (!report() || !sums_) {
        timer_.stop();
        return;
    }
    if (isLoading())
        return;
    QElapsedTimer clock;
    clock.start();
    while (!sums_->walk(kCellsAtATime) && clock.elapsed() < kSliceMs) {
    }
    if (!sums_->isDone()) {
        show(texts::summing(sums_->percent()));
        return;
    }
    timer_.stop();
    show(sums_->text());
}

void SumsTool::show(const QString& text) {
    if (label_)
        label_->setText(text);
}

} // namespace zkp
