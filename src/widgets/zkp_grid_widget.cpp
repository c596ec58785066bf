#include "widgets/zkp_grid_widget.h"

#include "support/utility.h"
#include "widgets/band_bar.h"
#include "widgets/grid_view.h"
#include "widgets/qt_host.h"

#include <QApplication>
#include <QResizeEvent>

namespace zkp {

namespace {

const QString kBand = QStringLiteral("BndTemplate");

} // namespace

ZkpGridWidget::ZkpGridWidget(QWidget* parent)
    : QWidget(parent) {
    make(std::make_shared<QtHost>(this));
}

ZkpGridWidget::ZkpGridWidget(std::shared_ptr<Host> host, QWidget* parent)
    : QWidget(parent) {
    make(std::move(host));
}

/// The views go first, while the models that they show still stand.
ZkpGridWidget::~ZkpGridWidget() {
    delete view_;
    delete band_;
    delete grid_;
}

void ZkpGridWidget::make(std::shared_ptr<Host> host) {
    grid_ = new ZkpGrid(std::move(host), this);
    band_ = new BandBar(grid_->Picture1(), kBand, this);
    view_ = new GridView(grid_->MSFlexGrid1(), this);
    setFocusProxy(view_);
    setTabOrder(band_, view_);
    relayKeys();
    connect(view_, &GridView::surfaceChanged, this, &ZkpGridWidget::applyPlaces);
    connect(view_, &GridView::reported, this, &ZkpGridWidget::showPointer);
    connect(band_, &BandBar::barChanged, this, &ZkpGridWidget::applyPlaces);
    connect(qApp, &QApplication::focusChanged, this, &ZkpGridWidget::onFocusChanged);
    connect(grid_, &QObject::destroyed, this, [this] { // by a host that takes the control away
        if (view_)
            view_->detach();
        if (band_)
            band_->detach();
    });
    layOut();
}

void ZkpGridWidget::relayKeys() {
    view_->relays.keyDown = [this](int code, int shift) {
        return grid_ ? grid_->UserControl_KeyDown(code, shift) : code;
    };
    view_->relays.keyPress = [this](int ascii) { return grid_ ? grid_->UserControl_KeyPress(ascii) : ascii; };
    view_->relays.failed = [this](const Error& error) { showError(error); };
    band_->failed = [this](const Error& error) { showError(error); };
}

GridView& ZkpGridWidget::view() {
    return *view_;
}

BandBar& ZkpGridWidget::band() {
    return *band_;
}

QSize ZkpGridWidget::sizeHint() const {
    return {960, 540};
}

QSize ZkpGridWidget::minimumSizeHint() const {
    return {160, 80};
}

void ZkpGridWidget::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    layOut();
}

void ZkpGridWidget::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    layOut();
}

template <class F>
void ZkpGridWidget::guarded(F call) {
    if (!grid_)
        return;
    const QPointer<ZkpGridWidget> self(this);
    try {
        call(*grid_);
    } catch (const Error& error) {
        if (self)
            showError(error);
    }
}

/// The control says where its surface stands; the widget only knows its own size and the band's.
void ZkpGridWidget::layOut() {
    guarded([this](ZkpGrid& grid) {
        const TwipScale& scale = view_->scale();
        grid.Picture1().Bands(kBand).Height = scale.twips(band_->sizeHint().height());
        grid.setWidth(scale.twips(width()));
        grid.setHeight(scale.twips(height()));
        grid.UserControl_Resize();
    });
    applyPlaces();
}

void ZkpGridWidget::applyPlaces() {
    if (!grid_ || !view_ || !band_)
        return;
    const TwipScale& scale = view_->scale();
    const GridSurface::Place place = grid_->MSFlexGrid1().place();
    const int top = scale.pixels(place.Top);
    view_->setGeometry(scale.pixels(place.Left), top, scale.pixels(place.Width),
                       scale.pixels(place.Top + place.Height) - top);
    view_->setVisible(place.Visible);
    band_->sync();
    band_->setGeometry(0, 0, width(), band_->sizeHint().height());
    band_->setVisible(grid_->Picture1().Visible);
}

void ZkpGridWidget::showPointer() {
    if (!grid_ || !view_)
        return;
    const int own = grid_->MousePointer();
    view_->setPointer(own != 0 ? own : grid_->MSFlexGrid1().look().MousePointer);
}

/// No focus at all means that another window is in front: the control has not been left.
void ZkpGridWidget::onFocusChanged(QWidget* old, QWidget* now) {
    const auto inside = [this](QWidget* widget) {
        return widget && (widget == this || isAncestorOf(widget));
    };
    if (!now || inside(old) == inside(now))
        return;
    guarded([&](ZkpGrid& grid) {
        if (!inside(now))
            grid.UserControl_ExitFocus();
        else if (now == this || now == view_)
            grid.UserControl_EnterFocus();
    });
}

void ZkpGridWidget::showError(const Error& error) {
    if (grid_)
        ShowError(grid_->host(), error);
}

} // namespace zkp
