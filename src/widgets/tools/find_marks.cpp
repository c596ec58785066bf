#include "widgets/tools/find_marks.h"

#include "widgets/grid/grid_view.h"
#include "widgets/zkp_grid_widget.h"

#include <QEvent>
#include <QPainter>
#include <QScrollBar>

namespace zkp {

namespace {

constexpr int kMiddleGrey = 128;
constexpr int kEdge = 2;
const QColor kEdgeColour(230, 100, 0);

/// The texts under the sheet keep their colour: a light ground is darkened, a dark one made lighter.
struct Tint {
    explicit Tint(const QPalette& palette)
        : isLight(palette.color(QPalette::Base).lightness() >= kMiddleGrey) {}

    bool isLight;
    QPainter::CompositionMode mode() const {
        return isLight ? QPainter::CompositionMode_Multiply : QPainter::CompositionMode_Screen;
    }
    QColor hit() const { return isLight ? QColor(255, 240, 150) : QColor(90, 70, 0); }
    QColor found() const { return isLight ? QColor(255, 200, 140) : QColor(150, 75, 0); }
};

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

/// What shows of the found cell, with the cells that it shows as one with.
QRect FindMarks::foundRect() const {
    const GridSurface& surface = report_.grid().MSFlexGrid1();
    const PageLayout& page = report_.view().page();
    if (found_.row < 0 || page.rows.empty() || found_.row >= surface.Rows() || found_.col >= surface.Cols())
        return {};
    const CellRange block =
        surface.mergedRange(found_.row, found_.col, found_.row, std::max(found_.row, page.rows.back().index));
    QRect rect;
    for (int row = std::max(block.top, surface.TopRow()); row <= block.bottom; ++row)
        rect |= page.cellRect(row, found_.col);
    return rect;
}

void FindMarks::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Tint tint(report_.palette());
    const PageLayout& page = report_.view().page();
    const QRect found = foundRect();
    painter.setCompositionMode(tint.mode());
    for (const FoundCell& cell : marked()) {
        const QRect rect = page.cellRect(cell.row, cell.col);
        painter.fillRect(rect, found.contains(rect) ? tint.found() : tint.hit());
    }
    if (found.isEmpty())
        return;
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setPen(QPen(kEdgeColour, kEdge));
    painter.drawRect(found.adjusted(1, 1, -kEdge, -kEdge));
}

} // namespace zkp
