#include "widgets/zkp_grid_widget.h"

#include "base/text.h"
#include "base/texts/speech.h"
#include "host/error_box.h"
#include "widgets/band/band_bar.h"
#include "widgets/grid/grid_view.h"
#include "widgets/qt_host.h"

#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QResizeEvent>

#include <algorithm>

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
    relayKeys();
    connect(view_, &GridView::surfaceChanged, this, &ZkpGridWidget::applyPlaces);
    connect(view_, &GridView::reported, this, &ZkpGridWidget::showPointer);
    connect(band_, &BandBar::barChanged, this, &ZkpGridWidget::applyPlaces);
    connect(band_, &BandBar::left, view_, [view = view_] { view->setFocus(Qt::OtherFocusReason); });
    connect(&grid_->events(), &Events::StopFillIng, view_, &GridView::reloaded);
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
    band_->keyboardPlace = [view = view_] { return view ? view->menuPlace() : std::nullopt; };
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

/// No focus proxy, with which the Tab key would pass the tools by.
void ZkpGridWidget::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    if (view_)
        view_->setFocus(event->reason());
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
    orderTabs();
    nameForReaders();
}

/// Each assignment is told to screen readers.
void ZkpGridWidget::nameForReaders() {
    const auto name = [](QWidget& widget, const QString& text) {
        if (widget.accessibleName() != text)
            widget.setAccessibleName(text);
    };
    const QString title = grid_->PrintCaption();
    name(*view_, isBlank(title) ? texts::spokenReport() : title);
    name(*band_, texts::spokenTools());
}

/// From tool to tool and then to the surface, also after the band has made its tools anew.
void ZkpGridWidget::orderTabs() {
    QList<QPointer<QWidget>> tools;
    for (QWidget* tool : band_->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        if ((tool->focusPolicy() & Qt::TabFocus) != 0 && !tool->isWindow())
            tools += tool;
    std::stable_sort(tools.begin(), tools.end(),
                     [](const QWidget* one, const QWidget* other) { return one->x() < other->x(); });
    if (tools == tabbed_)
        return;
    tabbed_ = tools;
    for (qsizetype i = 0; i + 1 < tools.size(); ++i)
        setTabOrder(tools[i], tools[i + 1]);
    if (!tools.isEmpty())
        setTabOrder(tools.back(), view_);
}

bool ZkpGridWidget::focusTools() {
    for (const QPointer<QWidget>& tool : tabbed_)
        if (tool && tool->isVisible() && tool->isEnabled()) {
            tool->setFocus(Qt::TabFocusReason);
            return true;
        }
    return false;
}

/// What neither the surface nor a tool had a use for: F6 goes from one to the other, Escape back.
void ZkpGridWidget::keyPressEvent(QKeyEvent* event) {
    event->ignore();
    const QWidget* focus = focusWidget();
    const bool inTools = focus && band_ && band_->isAncestorOf(focus);
    const int key = event->key();
    if (!view_ || (key != Qt::Key_F6 && !(inTools && key == Qt::Key_Escape)))
        return;
    if (inTools)
        view_->setFocus(Qt::TabFocusReason);
    if (inTools || focusTools())
        event->accept();
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
