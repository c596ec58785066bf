#include "widgets/tools/find_tool.h"

#include "base/error.h"
#include "base/texts/tools.h"
#include "widgets/grid/grid_view.h"
#include "widgets/tools/find_line.h"
#include "widgets/tools/find_marks.h"
#include "widgets/zkp_grid_widget.h"

#include <QElapsedTimer>
#include <QKeyEvent>

namespace zkp {

namespace {

constexpr int kSliceMs = 5;
constexpr int kCellsAtATime = 500; // between two looks at the clock

} // namespace

FindTool::FindTool(QObject* parent)
    : ReportTool(parent)
    , line_(new FindLine) {
    addCommand(texts::findAction(), "find", {Qt::CTRL | Qt::Key_F}, [this] { open(); });
    addCommand(texts::findNextAction(), "findNext", {Qt::Key_F3}, [this] { next(); });
    addCommand(texts::findPreviousAction(), "findPrevious", {Qt::SHIFT | Qt::Key_F3}, [this] { previous(); });
    setWidget(line_);
    line_->hide();
    timer_.setInterval(0);
    connect(&timer_, &QTimer::timeout, this, &FindTool::slice);
    connect(line_, &FindLine::typed, this, &FindTool::typed);
    connect(line_, &FindLine::nextWanted, this, &FindTool::next);
    connect(line_, &FindLine::previousWanted, this, &FindTool::previous);
    connect(line_, &FindLine::closeWanted, this, &FindTool::close);
}

FindTool::~FindTool() {
    delete marks_;
}

bool FindTool::isOpen() const {
    return line_ && !line_->isHidden();
}

void FindTool::reportChanged() {
    timer_.stop();
    search_.reset();
    delete marks_;
    note({});
    if (!report())
        return;
    search_.emplace(report()->grid().shownRows());
    if (isOpen()) {
        anchor_ = {};
        mark();
    }
}

/// What the search has to tell beside its line.
void FindTool::note(const QString& text) {
    if (line_)
        line_->setNote(text);
}

FoundCell FindTool::currentCell() const {
    const GridSurface& surface = report()->grid().MSFlexGrid1();
    return {surface.Row(), surface.Col()};
}

void FindTool::open() {
    if (!report() || !line_)
        return;
    if (!isOpen()) {
        anchor_ = currentCell();
        line_->show();
        window_ = line_->window();
        window_->installEventFilter(this);
        mark();
    }
    line_->takeFocus();
}

void FindTool::close() {
    timer_.stop();
    delete marks_;
    if (window_)
        window_->removeEventFilter(this);
    if (line_) {
        line_->setNote({});
        line_->hide();
    }
    if (report())
        report()->view().setFocus();
}

bool FindTool::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && isOpen() &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        close();
        return true;
    }
    return ReportTool::eventFilter(watched, event);
}

void FindTool::mark() {
    if (!marks_ && report())
        marks_ = new FindMarks(*report());
    needle_ = FoldedNeedle(line_->text());
    if (marks_)
        marks_->setNeedle(needle_);
}

void FindTool::typed() {
    if (!report())
        return;
    timer_.stop();
    mark();
    note({});
    if (!needle_.isEmpty())
        start(anchor_, true, true);
}

/// From the current cell, which the user may have moved since.
void FindTool::goOn(bool forward) {
    if (!report())
        return;
    if (!isOpen() || needle_.isEmpty())
        open();
    if (needle_.isEmpty())
        return;
    start(currentCell(), forward, false);
}

void FindTool::start(FoundCell from, bool forward, bool withFirst) {
    forward_ = forward;
    search_->start(needle_, from, forward, withFirst);
    timer_.start();
    slice(); // a hit nearby shows at once
}

void FindTool::slice() {
    if (!report() || !search_) {
        timer_.stop();
        return;
    }
    if (isLoading())
        return;
    try {
        walk();
    } catch (const Error& error) { // a listener of the current cell failed
        timer_.stop();
        note(error.description());
    }
}

void FindTool::walk() {
    QElapsedTimer clock;
    clock.start();
    FindSearch::State state = search_->state();
    do
        state = search_->walk(kCellsAtATime);
    while (state == FindSearch::State::Running && clock.elapsed() < kSliceMs);
    tell(state);
}

void FindTool::tell(FindSearch::State state) {
    if (state == FindSearch::State::Running) {
        note(texts::findRunning(search_->percent()));
        return;
    }
    timer_.stop();
    if (state == FindSearch::State::Nothing)
        note(texts::findNothing());
    if (state != FindSearch::State::Found)
        return;
    note(!search_->hasWrapped() ? QString() : forward_ ? texts::findFromTop() : texts::findFromEnd());
    showFound(search_->found());
}

/// The cell becomes the current one, as if the user had gone there. A row out of sight comes to stand in
/// the upper half, with rows around it, and the report's end at the end of the page.
void FindTool::showFound(FoundCell cell) {
    GridSurface& surface = report()->grid().MSFlexGrid1();
    const QPointer<FindTool> self(this);
    surface.userSelect(cell.row, cell.col);
    if (!self || !report())
        return;
    const PageLayout& page = report()->view().page();
    const int whole = page.wholeRows();
    const bool isInSight = cell.row >= surface.TopRow() && cell.row < surface.TopRow() + whole;
    const int top =
        isInSight ? surface.TopRow()
                  : std::max(surface.FixedRows(), std::min(cell.row - whole / 3, lastFirst(page.rowAxis)));
    const int left = firstToShow(page.colAxis, cell.col);
    // One direction after the other: of a move in both, a listener takes note of the one to the side.
    if (top != surface.TopRow())
        surface.userScroll(top, surface.LeftCol());
    if (self && report() && left != surface.LeftCol())
        surface.userScroll(surface.TopRow(), left);
    if (self && marks_)
        marks_->setFound(cell);
}

} // namespace zkp
