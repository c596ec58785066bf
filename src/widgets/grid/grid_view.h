#pragma once

#include "base/error.h"
#include "surface/grid_surface.h"
#include "widgets/access/grid_announcer.h"
#include "widgets/grid/column_gesture.h"
#include "widgets/grid/grid_navigation.h"
#include "widgets/grid/surface_painter.h"

#include <QAbstractScrollArea>
#include <QAccessible>
#include <QBasicTimer>
#include <QPixmap>
#include <QPointer>

#include <functional>
#include <optional>

namespace zkp {

/// Shows a surface and reports to it what the user does. It decides nothing: what a click, a drop or a
/// key means is the surface's owner's business. Sets the surface's `VisibleRows`; of several views of one
/// surface the largest.
///
/// The surface may go away in any notification, and the view with it; the surface's owner calls
/// detach() when only the surface goes.
class GridView : public QAbstractScrollArea {
    Q_OBJECT

public:
    explicit GridView(GridSurface& surface, QWidget* parent = nullptr);
    ~GridView() override;

    /// The surface is gone; the view shows nothing from now on.
    void detach();

    /// What comes before the surface hears of a key: the code that is left (0 swallows the key); where an
    /// error goes that a notification raised; and where events for screen readers go (without it: to the
    /// system).
    struct Relays {
        std::function<int(int code, int shift)> keyDown;
        std::function<int(int ascii)> keyPress;
        std::function<void(const Error&)> failed;
        std::function<void(QAccessibleEvent&)> tellReaders;
    };
    Relays relays;

    /// The pointer that the control wants over the surface (MousePointer).
    void setPointer(int pointer);
    /// Rows and columns on screen, up to date.
    const PageLayout& page();
    const TwipScale& scale() const { return scale_; }
    /// Nothing after detach().
    const GridSurface* surface() const { return surface_; }

    // What a user does, for those who do it without mouse and keys. The place must be there.
    void moveTo(CellPlace cell);
    void clickCell(CellPlace cell);
    void selectBlock(const CellRange& block);
    /// Below the current cell, in global pixels, while the keyboard asks for the menu; else nothing.
    std::optional<QPoint> menuPlace() const { return menuPlace_; }
    /// A load has ended, which screen readers are told.
    void reloaded();

Q_SIGNALS:
    /// The surface changed in any way; comes once for all changes since the last time.
    void surfaceChanged();
    /// Something that the user did has been reported.
    void reported();

protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void timerEvent(QTimerEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void invalidate();
    void postSync();
    void layOutNow();
    void syncBars();
    void onScrolled();
    void onRowChanged(int row);
    QRegion mergedColumns() const;

    /// False when the view or the surface did not outlive the call.
    template <class F>
    bool report(F call);
    bool reportChar(int ascii);
    bool reportText(const QString& text);
    bool moveByKey(int code, int shift);
    bool commandByKey(int code, int shift);
    void selectAll();
    void openMenu();
    void resizeColumnBy(int pixels);
    void fitCurrentColumn();
    void moveColumn(int arrow);
    void followColumn(CellPlace from, CellPlace to, const SurfaceMouse& drop);
    bool showCell(CellPlace cell);
    bool followCurrentColumn();

    CellPlace cellAt(QPoint at);
    bool showWholeText(const QHelpEvent& event);
    SurfaceMouse mouseAt(QPoint at, Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers);
    void startSelecting(CellPlace cell, CellPlace anchor, bool extend);
    void extendSelection(QPoint at);
    void showCursor(QPoint at);

    // Headings.
    const Span* resizableAt(QPoint at);
    void pressHeading(int col, QPoint at);
    void dragHeading(QPoint at);
    int scrollOfDrag() const;
    void scrollDrag();
    bool dropHeading(int from, const SurfaceMouse& mouse);
    void endGesture();
    void finishResize();
    void resizeTo(int col, int pixels);
    void fitColumn(int col);
    QPixmap pictureOfHeading(const Span& col);
    void paintGesture(QPainter& painter) const;

    GridSurface* surface_;
    Listening listening_;
    TwipScale scale_;
    PageLayout page_;
    SurfacePainter painter_;
    ColumnGesture gesture_;
    QPixmap ghost_; // of the heading that is dragged
    QPoint dragAt_;
    GridAnnouncer announcer_;
    CellPlace pressed_{-1, -1};
    std::optional<int> currentCol_; // at the last notice of the surface
    std::optional<QPoint> menuPlace_;
    bool selecting_ = false;
    QBasicTimer scrollTimer_; // while a selection or heading is dragged to the edge
    int pointer_ = 0;         // MousePointer
    int roomForRows_ = 1;
    bool stale_ = true; // the page no longer says what is on screen
    bool syncPosted_ = false;
    bool syncing_ = false; // the bars are being set, not moved
};

template <class F>
bool GridView::report(F call) {
    if (!surface_)
        return false;
    const QPointer<GridView> self(this);
    const auto failed = relays.failed; // the view may be gone when it is needed
    try {
        call(*surface_);
    } catch (const Error& error) {
        if (self && failed)
            failed(error);
    }
    return self && surface_;
}

} // namespace zkp
