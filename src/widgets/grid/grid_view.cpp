#include "widgets/grid/grid_view.h"

#include "widgets/access/grid_accessible.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>

#include <cmath>

namespace zkp {

namespace {

QEvent::Type syncEvent() {
    static const auto type = static_cast<QEvent::Type>(QEvent::registerEventType());
    return type;
}

} // namespace

GridView::GridView(GridSurface& surface, QWidget* parent)
    : QAbstractScrollArea(parent)
    , surface_(&surface) {
    GridAccessible::install();
    setFocusPolicy(Qt::StrongFocus);
    setFrameShape(QFrame::NoFrame);
    setAttribute(Qt::WA_InputMethodEnabled);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent); // every pixel is painted
    viewport()->setMouseTracking(true);
    verticalScrollBar()->setSingleStep(1);
    horizontalScrollBar()->setSingleStep(1);
    scale_.dpi = logicalDpiX();
    listening_ = surface.views.add({.changed = [this] { invalidate(); },
                                    .rowChanged = [this](int row) { onRowChanged(row); },
                                    .scrolled = [this] { onScrolled(); },
                                    .focusWanted = [this] { setFocus(Qt::OtherFocusReason); },
                                    .room = [this] { return roomForRows_; }});
    invalidate();
}

GridView::~GridView() {
    surface_ = nullptr; // a screen reader may still ask while the widget ends
}

void GridView::detach() {
    listening_.stop();
    surface_ = nullptr;
    page_ = {};
    endGesture();
    selecting_ = false;
    GridAnnouncer::announceNothing(*this);
}

void GridView::reloaded() {
    announcer_.reloaded();
    postSync();
}

const PageLayout& GridView::page() {
    if (stale_ && surface_)
        layOutNow();
    return page_;
}

void GridView::postSync() {
    if (syncPosted_)
        return;
    syncPosted_ = true;
    QCoreApplication::postEvent(this, new QEvent(syncEvent()));
}

/// Cheap, since a load calls it for every cell: what follows comes once, with the events.
void GridView::invalidate() {
    postSync();
    if (stale_)
        return;
    stale_ = true;
    viewport()->update();
}

void GridView::layOutNow() {
    page_ = PageLayout::of(*surface_, viewport()->size(), scale_);
    stale_ = false;
    // Rows that come later show in the room below the last one.
    const int rowHeight = page_.rows.empty() ? 1 : page_.rows.back().size;
    const int room = std::max(0, page_.size.height() - page_.bottom());
    roomForRows_ = std::max(1, page_.shownRows() + (room + rowHeight - 1) / rowHeight);
    // More rows are a notification, which must not come in the middle of a paint.
    const int most = surface_->roomInViews();
    if (surface_->VisibleRows() != 0 && surface_->VisibleRows() < most)
        postSync();
    else
        surface_->setVisibleRows(most);
}

void GridView::syncBars() {
    if (!surface_)
        return;
    const PageLayout& shown = page();
    syncing_ = true;
    const auto set = [](QScrollBar* bar, const Axis& axis, int whole) {
        const int last = std::max(lastFirst(axis), axis.first);
        bar->setRange(axis.fixed, std::max(axis.fixed, last));
        bar->setPageStep(std::max(1, whole - 1));
        bar->setValue(axis.first);
    };
    set(verticalScrollBar(), shown.rowAxis, shown.wholeRows());
    set(horizontalScrollBar(), shown.colAxis, wholeCount(shown.colAxis, shown.cols));
    syncing_ = false;
}

bool GridView::event(QEvent* event) {
    if (event->type() != syncEvent())
        return QAbstractScrollArea::event(event);
    syncPosted_ = false;
    if (!surface_)
        return true;
    setEnabled(surface_->look().Enabled);
    syncBars();
    if (!report([this](GridSurface& surface) { surface.setVisibleRows(surface.roomInViews()); }) ||
        !followCurrentColumn())
        return true;
    announcer_.announce(*this);
    Q_EMIT surfaceChanged();
    return true;
}

void GridView::paintEvent(QPaintEvent* event) {
    QPainter painter(viewport());
    if (!surface_) {
        painter.fillRect(event->rect(), palette().window());
        return;
    }
    const SurfacePainter::Frame frame{*surface_, page(), palette(), hasFocus()};
    for (const QRect& dirty : event->region())
        painter_.paint(painter, frame, dirty);
    paintGesture(painter);
}

void GridView::resizeEvent(QResizeEvent*) {
    if (!surface_)
        return;
    layOutNow();
    syncBars();
}

void GridView::changeEvent(QEvent* event) {
    QAbstractScrollArea::changeEvent(event);
    viewport()->update();
}

void GridView::focusInEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusInEvent(event);
    viewport()->update();
    announcer_.focused();
    postSync(); // after the widget itself has been said
}

void GridView::focusOutEvent(QFocusEvent* event) {
    QAbstractScrollArea::focusOutEvent(event);
    viewport()->update();
}

void GridView::scrollContentsBy(int, int) {
    if (syncing_)
        return;
    const int top = verticalScrollBar()->value();
    const int left = horizontalScrollBar()->value();
    if (report([&](GridSurface& surface) { surface.userScroll(top, left); }))
        Q_EMIT reported();
}

/// Rows that stay on screen are moved in the backing store and only the new ones painted; the blocks
/// of merged columns are looked for anew, since they end where the page ends.
void GridView::onScrolled() {
    const double ratio = devicePixelRatioF();
    if (stale_ || gesture_.isActive() || ratio != std::floor(ratio)) {
        stale_ = false;
        invalidate();
        return;
    }
    const PageLayout before = std::move(page_);
    layOutNow();
    syncBars();
    const int oldTop = before.rowAxis.first;
    const int newTop = page_.rowAxis.first;
    const Span* oldPlace = spanOf(before.rows, newTop);
    const Span* newPlace = spanOf(page_.rows, oldTop);
    const int shift = newTop > oldTop ? (oldPlace ? page_.bodyTop() - oldPlace->start : 0)
                                      : (newPlace ? newPlace->start - page_.bodyTop() : 0);
    if (before.colAxis.first != page_.colAxis.first || shift == 0) {
        viewport()->update();
        return;
    }
    const QRect body(0, page_.bodyTop(), page_.size.width(), page_.size.height() - page_.bodyTop());
    viewport()->scroll(0, shift, body);
    viewport()->update(mergedColumns());
}

void GridView::onRowChanged(int row) {
    if (stale_)
        return;
    const Span* span = spanOf(page_.rows, row);
    if (!span)
        return;
    viewport()->update(QRect(0, span->start, page_.size.width(), span->size));
    viewport()->update(mergedColumns());
    postSync();
}

QRegion GridView::mergedColumns() const {
    QRegion region;
    if (surface_->MergeCells() != 0)
        for (const Span& col : page_.cols)
            if (surface_->MergeCol(col.index))
                region += QRect(col.start, 0, col.size, page_.size.height());
    return region;
}

} // namespace zkp
