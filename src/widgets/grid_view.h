#pragma once

#include "base/error.h"
#include "platform/grid_surface.h"
#include "widgets/column_gesture.h"
#include "widgets/grid_navigation.h"
#include "widgets/surface_painter.h"

#include <QAbstractScrollArea>
#include <QBasicTimer>
#include <QPointer>

#include <functional>

namespace zkp {

/// Shows a surface and reports to it what the user does. It decides nothing: what a click, a drop or a
/// key means is the surface's owner's business. Sets the surface's `VisibleRows`.
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

    /// What comes before the surface hears of a key: the code that is left (0 swallows the key); and
    /// where an error goes that a notification raised.
    struct Relays {
        std::function<int(int code, int shift)> keyDown;
        std::function<int(int ascii)> keyPress;
        std::function<void(const Error&)> failed;
    };
    Relays relays;

    /// The pointer that the control wants over the surface (MousePointer).
    void setPointer(int pointer);
    /// Rows and columns on screen, up to date.
    const PageLayout& page();
    const TwipScale& scale() const { return scale_; }

Q_SIGNALS:
    /// The surface changed in any way; comes once for all changes since the last time.
    void surfaceChanged();
    /// Something that the user did has been reported.
    void reported();

protected:
    bool event(QEvent* event) override;
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
    void updateGesture();

    /// False when the view or the surface did not outlive the call.
    template <class F>
    bool report(F call);
    bool reportChar(int ascii);
    bool reportText(const QString& text);
    bool moveByKey(int code, int shift);
    bool showCell(CellPlace cell);

    CellPlace cellAt(QPoint at);
    SurfaceMouse mouseAt(QPoint at, Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers);
    const Span* resizableAt(QPoint at);
    void startSelecting(CellPlace cell, CellPlace anchor, bool extend);
    void extendSelection(QPoint at);
    void finishResize();
    void fitColumn(int col);
    void showCursor(QPoint at);

    GridSurface* surface_;
    TwipScale scale_;
    PageLayout page_;
    SurfacePainter painter_;
    ColumnGesture gesture_;
    CellPlace pressed_{-1, -1};
    bool selecting_ = false;
    QBasicTimer selectTimer_;
    Qt::CursorShape pointer_ = Qt::ArrowCursor;
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
