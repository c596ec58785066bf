#include "host/host.h"
#include "widgets/grid/drag_mark.h"
#include "widgets/grid/grid_view.h"

#include <QApplication>
#include <QPainter>

#include <cmath>

namespace zkp {

namespace {

constexpr int kScrollInterval = 250; // milliseconds between two columns while a heading is held at the edge
constexpr int kEdge = 24;            // pixels that count as the edge

/// The pointers of a drag are shown while a button is down: a control keeps the last one.
Qt::CursorShape cursorShape(int pointer, bool isDragging) {
    switch (pointer) {
    case kPointerHourglass:
        return Qt::WaitCursor;
    case kPointerNoDrop:
        return QApplication::mouseButtons() == Qt::NoButton ? Qt::ArrowCursor : Qt::ForbiddenCursor;
    case kPointerCustom: // says where a heading may go, and there is none on its way
        return isDragging ? Qt::DragMoveCursor : Qt::ArrowCursor;
    default:
        return Qt::ArrowCursor;
    }
}

} // namespace

const Span* GridView::resizableAt(QPoint at) {
    const PageLayout& shown = page();
    return at.y() >= 0 && at.y() < shown.bodyTop() ? borderAt(shown.cols, at.x(), ColumnGesture::kBorderReach)
                                                   : nullptr;
}

void GridView::pressHeading(int col, QPoint at) {
    const Span* span = spanOf(page().cols, col); // gone, perhaps, with the press
    if (span && surface_->mayDragHeading(col))
        gesture_.pressHeading(*span, at);
}

void GridView::dragHeading(QPoint at) {
    const bool wasDragging = gesture_.isDragging();
    dragAt_ = at;
    if (!gesture_.moveTo(at, page().cols, page().bodyTop(), QApplication::startDragDistance()))
        return;
    if (gesture_.isDragging()) {
        const Span* span = spanOf(page().cols, gesture_.column());
        if (!wasDragging && span)
            ghost_ = pictureOfHeading(*span);
        if (scrollOfDrag() == 0)
            scrollTimer_.stop();
        else if (!scrollTimer_.isActive())
            scrollTimer_.start(kScrollInterval, this);
    }
    viewport()->update();
}

/// By how many columns a heading that is held at the edge scrolls: -1, 0 or 1.
int GridView::scrollOfDrag() const {
    const Axis& axis = page_.colAxis;
    const Span* first = spanOf(page_.cols, axis.first);
    if (axis.first > axis.fixed && dragAt_.x() < (first ? first->start : 0) + kEdge)
        return -1;
    return axis.first < lastFirst(axis) && dragAt_.x() >= page_.size.width() - kEdge ? 1 : 0;
}

/// The pointer stands still, and another heading comes under it.
void GridView::scrollDrag() {
    const int step = scrollOfDrag();
    if (!report(
            [&](GridSurface& surface) { surface.userScroll(surface.TopRow(), surface.LeftCol() + step); }))
        return;
    const SurfaceMouse mouse = mouseAt(dragAt_, Qt::LeftButton, Qt::NoModifier);
    if (!report([&](GridSurface& surface) { surface.userMove(mouse); }))
        return;
    dragHeading(dragAt_);
    Q_EMIT reported();
}

/// False when the view or the surface did not outlive it. A drop beside the headings is none.
bool GridView::dropHeading(int from, const SurfaceMouse& mouse) {
    const int cols = surface_->Cols(); // fewer, perhaps, than at the press
    const bool onHeading = mouse.row >= 0 && mouse.row < surface_->FixedRows();
    if (!onHeading || mouse.col < 0 || mouse.col >= cols || from >= cols)
        return true;
    return report([&](GridSurface& surface) { surface.userDrop(from, mouse.col); });
}

void GridView::endGesture() {
    gesture_.cancel();
    ghost_ = {};
    scrollTimer_.stop();
    viewport()->update();
}

void GridView::finishResize() {
    const int col = gesture_.column();
    const int width = gesture_.width();
    endGesture();
    const Span* span = spanOf(page().cols, col);
    if (span && span->size != width)
        resizeTo(col, width);
}

void GridView::resizeTo(int col, int pixels) {
    const int twips = static_cast<int>(std::lround(scale_.twips(pixels)));
    report([&](GridSurface& surface) { surface.userResizeColumn(col, twips); });
}

/// As wide as the texts that show.
void GridView::fitColumn(int col) {
    endGesture();
    const SurfacePainter::Frame frame{*surface_, page(), palette(), hasFocus()};
    resizeTo(col, painter_.widestText(frame, col));
}

QPixmap GridView::pictureOfHeading(const Span& col) {
    const double ratio = devicePixelRatioF();
    const QRect heading(col.start, 0, col.size, page_.bodyTop());
    QPixmap picture((QSizeF(heading.size()) * ratio).toSize());
    picture.setDevicePixelRatio(ratio);
    picture.fill(palette().color(QPalette::Button)); // the last pixel may be the heading's only in part
    QPainter painter(&picture);
    painter.translate(-heading.left(), 0);
    painter_.paint(painter, {*surface_, page_, palette(), hasFocus()}, heading);
    return picture;
}

void GridView::paintGesture(QPainter& painter) const {
    if (gesture_.isResizing())
        painter.fillRect(*gesture_.markX(), 0, 1, page_.bottom(), palette().color(QPalette::Highlight));
    if (!gesture_.isDragging())
        return;
    DragMark mark{ghost_,          gesture_.ghostX(), {}, gesture_.markX(), pointer_ == kPointerNoDrop,
                  page_.bodyTop(), page_.bottom()};
    if (const Span* span = spanOf(page_.cols, gesture_.column()))
        mark.from = QRect(span->start, 0, span->size, page_.bodyTop());
    mark.paint(painter, palette());
}

void GridView::setPointer(int pointer) {
    if (pointer != pointer_ && gesture_.isDragging())
        viewport()->update(); // the mark comes and goes with it
    pointer_ = pointer;
    showCursor(viewport()->mapFromGlobal(QCursor::pos()));
}

void GridView::showCursor(QPoint at) {
    const bool border = surface_ && (gesture_.isResizing() || (!gesture_.isDragging() && resizableAt(at)));
    const Qt::CursorShape shape = border ? Qt::SplitHCursor : cursorShape(pointer_, gesture_.isDragging());
    if (viewport()->cursor().shape() != shape)
        viewport()->setCursor(shape);
}

} // namespace zkp
