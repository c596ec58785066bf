#include "window/find_marks.h"

#include "widgets/grid_view.h"
#include "widgets/zkp_grid_widget.h"

#include <QEvent>
#include <QPainter>
#include <QScrollBar>

namespace zkp::app {

namespace {

const QColor kHit(255, 200, 0, 100); // seen on a light and on a dark ground
const QColor kFound(255, 130, 0, 120);
const QColor kFoundEdge(230, 100, 0);
constexpr int kEdge = 2;

} // namespace

FindMarks::FindMarks(ZkpGridWidget& report)
    : QWidget(report.view().viewport())
    , report_(report) {
    setObjectName(QStringLiteral("findMarks"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    GridView& view = report.view();
    resize(view.viewport()->size());
    view.viewport()->installEventFilter(this);
    const auto again = [this] { update(); };
    connect(&view, &GridView::surfaceChanged, this, again);
    // A scroll moves what is on screen, the marks with it, and paints only what is new.
    connect(view.verticalScrollBar(), &QScrollBar::valueChanged, this, again);
    connect(view.horizontalScrollBar(), &QScrollBar::valueChanged, this, again);
    show();
}

void FindMarks::setNeedle(const FoldedNeedle& needle) {
    needle_ = needle;
    found_ = {};
    update();
}

void FindMarks::setFound(FoundCell cell) {
    found_ = cell;
    update();
}

bool FindMarks::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize)
        resize(report_.view().viewport()->size());
    return QWidget::eventFilter(watched, event);
}

std::vector<FoundCell> FindMarks::marked() const {
    std::vector<FoundCell> cells;
    if (needle_.isEmpty())
        return cells;
    const GridSurface& surface = report_.grid().MSFlexGrid1();
    const PageLayout& page = report_.view().page();
    for (const Span& row : page.rows)
        for (const Span& col : page.cols)
            if (!page.isFixed(row, col) && row.index < surface.Rows() && col.index < surface.Cols() &&
                needle_.isIn(surface.TextMatrix(row.index, col.index)))
                cells.push_back({row.index, col.index});
    return cells;
}

void FindMarks::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const PageLayout& page = report_.view().page();
    for (const FoundCell& cell : marked())
        painter.fillRect(page.cellRect(cell.row, cell.col), cell == found_ ? kFound : kHit);
    const QRect found = page.cellRect(found_.row, found_.col);
    if (found.isEmpty())
        return;
    painter.setPen(QPen(kFoundEdge, kEdge));
    painter.drawRect(found.adjusted(1, 1, -kEdge, -kEdge));
}

} // namespace zkp::app
