#pragma once

#include "zkp_grid.h"

#include <QPointer>
#include <QWidget>

#include <memory>

namespace zkp {

class BandBar;
class GridView;

/// The reporting grid as a host places it on its form: the band on top, the report's surface below it.
/// Shows the control's models and feeds mouse, keys and scrolling back; it holds no report logic.
///
/// Sizes go to the control in twips (15 to the pixel at 96 dpi). The widget may be destroyed in any
/// event of the control.
class ZkpGridWidget : public QWidget {
    Q_OBJECT

public:
    /// Makes a control of its own, whose boxes and dialogs stand over this widget's window.
    explicit ZkpGridWidget(QWidget* parent = nullptr);
    /// The same with another host, as tests and hosts with dialogs of their own want it.
    explicit ZkpGridWidget(std::shared_ptr<Host> host, QWidget* parent = nullptr);
    ~ZkpGridWidget() override;

    /// Lives as long as the widget.
    ZkpGrid& grid() { return *grid_; }
    GridView& view();
    BandBar& band();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void make(std::shared_ptr<Host> host);
    void relayKeys();
    void layOut();
    void applyPlaces();
    void nameForReaders();
    void orderTabs();
    bool focusTools();
    void showPointer();
    void onFocusChanged(QWidget* old, QWidget* now);
    void showError(const Error& error);
    template <class F>
    void guarded(F call);

    QPointer<ZkpGrid> grid_;
    QPointer<GridView> view_;
    QPointer<BandBar> band_;
    QList<QPointer<QWidget>> tabbed_; // the tools, as the Tab key goes through them
};

} // namespace zkp
