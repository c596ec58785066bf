#include "widgets/tools/report_find.h"

#include "base/error.h"
#include "base/texts/tools.h"
#include "widgets/grid/grid_view.h"
#include "widgets/zkp_grid_widget.h"

#include <QElapsedTimer>

namespace zkp {

namespace {

constexpr int kSliceMs = 5;
constexpr int kCellsAtATime = 500; // between two looks at the clock

} // namespace

ReportFind::ReportFind(FindLine& line, std::function<bool()> isLoading, QObject* parent)
    : QObject(parent)
    , line_(line)
    , isLoading_(std::move(isLoading)) {
    line_.hide();
    timer_.setInterval(0);
    connect(&timer_, &QTimer::timeout, this, &ReportFind::slice);
    connect(&line_, &FindLine::typed, this, &ReportFind::typed);
    connect(&line_, &FindLine::nextWanted, this, &ReportFind::next);
    connect(&line_, &FindLine::previousWanted, this, &ReportFind::previous);
    connect(&line_, &FindLine::closeWanted, this, &ReportFind::close);
}

void ReportFind::setReport(ZkpGridWidget* report) {
    timer_.stop();
    search_.reset();
    delete marks_;
    line_.setNote({});
    report_ = report;
    if (!report)
        return;
    search_.emplace(report->grid().MSFlexGrid1());
    if (isOpen()) {
        anchor_ = {};
        mark();
    }
}

FoundCell ReportFind::currentCell() const {
    const GridSurface& surface = report_->grid().MSFlexGrid1();
    return {surface.Row(), surface.Col()};
}

void ReportFind::open() {
    if (!report_)
        return;
    if (!isOpen()) {
        anchor_ = currentCell();
        line_.show();
        mark();
    }
    line_.takeFocus();
}

void ReportFind::close() {
    timer_.stop();
    delete marks_;
    line_.setNote({});
    line_.hide();
    if (report_)
        report_->view().setFocus();
}

void ReportFind::mark() {
    if (!marks_ && report_)
        marks_ = new FindMarks(*report_);
    needle_ = FoldedNeedle(line_.text());
    if (marks_)
        marks_->setNeedle(needle_);
}

void ReportFind::typed() {
    if (!report_)
        return;
    timer_.stop();
    mark();
    line_.setNote({});
    if (!needle_.isEmpty())
        start(anchor_, true, true);
}

/// From the current cell, which the user may have moved since.
void ReportFind::goOn(bool forward) {
    if (!report_)
        return;
    if (!isOpen() || needle_.isEmpty())
        open();
    if (needle_.isEmpty())
        return;
    start(currentCell(), forward, false);
}

void ReportFind::start(FoundCell from, bool forward, bool withFirst) {
    forward_ = forward;
    search_->start(needle_, from, forward, withFirst);
    timer_.start();
    slice(); // a hit nearby shows at once
}

void ReportFind::slice() {
    if (!report_ || !search_) {
        timer_.stop();
        return;
    }
    if (isLoading_())
        return;
    try {
        walk();
    } catch (const Error& error) { // a listener of the current cell failed
        timer_.stop();
        line_.setNote(error.description());
    }
}

void ReportFind::walk() {
    QElapsedTimer clock;
    clock.start();
    FindSearch::State state = search_->state();
    do
        state = search_->walk(kCellsAtATime);
    while (state == FindSearch::State::Running && clock.elapsed() < kSliceMs);
    tell(state);
}

void ReportFind::tell(FindSearch::State state) {
    if (state == FindSearch::State::Running) {
        line_.setNote(texts::findRunning(search_->percent()));
        return;
    }
    timer_.stop();
    if (state == FindSearch::State::Nothing)
        line_.setNote(texts::findNothing());
    if (state != FindSearch::State::Found)
        return;
    line_.setNote(!search_->hasWrapped() ? QString()
                  : forward_             ? texts::findFromTop()
                                         : texts::findFromEnd());
    showFound(search_->found());
}

/// The cell becomes the current one, as if the user had gone there. A row out of sight comes to stand in
/// the upper half, with rows around it, and the report's end at the end of the page.
void ReportFind::showFound(FoundCell cell) {
    GridSurface& surface = report_->grid().MSFlexGrid1();
    const QPointer<ReportFind> self(this);
    surface.userSelect(cell.row, cell.col);
    if (!self || !report_)
        return;
    const PageLayout& page = report_->view().page();
    const int whole = page.wholeRows();
    const bool isInSight = cell.row >= surface.TopRow() && cell.row < surface.TopRow() + whole;
    const int top =
        isInSight ? surface.TopRow()
                  : std::max(surface.FixedRows(), std::min(cell.row - whole / 3, lastFirst(page.rowAxis)));
    const int left = firstToShow(page.colAxis, cell.col);
    // One direction after the other: of a move in both, a listener takes note of the one to the side.
    if (top != surface.TopRow())
        surface.userScroll(top, surface.LeftCol());
    if (self && report_ && left != surface.LeftCol())
        surface.userScroll(surface.TopRow(), left);
    if (self && marks_)
        marks_->setFound(cell);
}

} // namespace zkp
