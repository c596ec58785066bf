#include "widgets/band/band_bar.h"

#include "base/text.h"
#include "base/texts/dialogs.h"
#include "widgets/band/band_tools.h"
#include "widgets/band/row_plan.h"

#include <QCursor>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QToolButton>

#include <algorithm>

namespace zkp {

namespace {

// Pixels.
constexpr int kHeight = 28; // one row of small tools
constexpr int kMargin = 3;
constexpr int kGap = 2;
constexpr int kSeparator = 7;
constexpr int kLeastInput = 72; // a list or text that has to do with little
constexpr int kWishedInput = 180;
constexpr int kMore = 22;
constexpr int kArrow = 10; // beside the icon of a tool that only opens its band

RowItem itemOf(const Tool& tool, const QWidget& widget) {
    switch (tool.kind) {
    case ToolKind::Separator:
        return {kSeparator, kSeparator, true, true};
    case ToolKind::List:
    case ToolKind::Text:
        return {kLeastInput, kWishedInput};
    default:
        break;
    }
    const int width = widget.sizeHint().width() + (tool.kind == ToolKind::SubMenu ? kArrow : 0);
    return {width, width};
}

} // namespace

BandBar::BandBar(MenuBar& bar, const QString& band, QWidget* parent)
    : QWidget(parent)
    , bar_(&bar)
    , band_(band)
    , more_(new QToolButton(this)) {
    more_->setObjectName(QStringLiteral("more"));
    more_->setText(QStringLiteral("»"));
    more_->setToolTip(texts::moreTools());
    more_->setAccessibleName(texts::moreTools());
    more_->setAutoRaise(true);
    more_->setFocusPolicy(Qt::TabFocus);
    more_->setPopupMode(QToolButton::InstantPopup);
    more_->setMenu(new QMenu(more_));
    more_->installEventFilter(this);
    connect(more_->menu(), &QMenu::aboutToShow, this, [this] { fillMore(); });
    listening_ = bar.views.add({[this] {
                                    sync();
                                    Q_EMIT barChanged();
                                },
                                [this](const Band& wanted, bool& isOpen) {
                                    if (!isOpen)
                                        isOpen = popup(wanted);
                                }});
    sync();
}

BandBar::~BandBar() = default;

void BandBar::detach() {
    listening_.stop();
    bar_ = nullptr;
    setEnabled(false);
    delete menu_;
}

QSize BandBar::sizeHint() const {
    return {320, std::max(kHeight, fontMetrics().height() + 4 * kMargin)};
}

const Band* BandBar::band() const {
    if (bar_)
        for (const auto& band : bar_->bands())
            if (sameName(band->Name, band_))
                return band.get();
    return nullptr;
}

void BandBar::sync() {
    const Band* shown = band();
    if (!shown || syncing_)
        return;
    syncing_ = true;
    ToolList built;
    for (const Item& item : row_)
        built.push_back(item.tool);
    ToolList wanted;
    for (const bool labels : {false, true})
        for (const auto& tool : shown->tools)
            if ((tool->kind == ToolKind::Label) == labels)
                wanted.push_back(tool);
    for (const Item& item : labels_)
        built.push_back(item.tool);
    if (built != wanted)
        rebuild(*shown);
    for (const auto* items : {&row_, &labels_})
        for (const Item& item : *items)
            syncToolWidget(*item.widget, *item.tool);
    place();
    syncing_ = false;
}

/// Labels stand at the end of the row whatever their place in the band: there the count is looked for.
void BandBar::rebuild(const Band& band) {
    for (auto* items : {&row_, &labels_}) {
        for (const Item& item : *items) {
            item.widget->hide();
            item.widget->setObjectName({});
            item.widget->deleteLater(); // it may be the one that the user is clicking
        }
        items->clear();
    }
    for (const auto& tool : band.tools) {
        const auto fillMenu = [this, sub = tool->subBand](QMenu& menu) {
            menu.clear();
            if (bar_)
                fillBandMenu(menu, *bar_, toolsOfBand(*bar_, sub), actions());
        };
        QWidget* widget = makeToolWidget(*tool, actions(), fillMenu, this);
        widget->setObjectName(tool->Name);
        widget->installEventFilter(this);
        setToolIcon(*widget, *tool, palette());
        (tool->kind == ToolKind::Label ? labels_ : row_).push_back({tool, widget});
        if (row_.size() > 1 && tool->kind != ToolKind::Label)
            setTabOrder(row_[row_.size() - 2].widget, widget);
    }
}

bool BandBar::isShown(const Item& item) const {
    return item.tool->Visible && bar_ && bar_->isHeard(*item.tool);
}

int BandBar::placeLabels(int right) {
    for (auto item = labels_.rbegin(); item != labels_.rend(); ++item) {
        const int width = isShown(*item) ? item->widget->sizeHint().width() : 0;
        item->widget->setVisible(width > 0);
        item->widget->setGeometry(right - width, 0, width, height() - 1);
        right -= width > 0 ? width + 2 * kMargin : 0;
    }
    return right;
}

void BandBar::place() {
    const int right = placeLabels(width() - 2 * kMargin);
    std::vector<RowItem> items;
    for (const Item& item : row_) {
        items.push_back(itemOf(*item.tool, *item.widget));
        items.back().isShown = isShown(item);
    }
    const RowPlan plan = planRow(items, right - kMargin, kGap, kMore);
    overflow_.clear();
    int x = kMargin;
    for (std::size_t i = 0; i < row_.size(); ++i) {
        const int width = plan.widths[i];
        row_[i].widget->setGeometry(x, kMargin - 1, width, height() - 2 * kMargin);
        row_[i].widget->setVisible(width > 0);
        if (width > 0)
            x += width + kGap;
        else if (items[i].isShown)
            overflow_.push_back(row_[i].tool);
    }
    more_->setGeometry(x, kMargin - 1, kMore, height() - 2 * kMargin);
    more_->setVisible(plan.overflows);
}

void BandBar::fillMore() {
    more_->menu()->clear();
    if (bar_)
        fillBandMenu(*more_->menu(), *bar_, overflow_, actions());
}

BandActions BandBar::actions() {
    return {[this](const QString& tool) { report([&](MenuBar& bar) { bar.click(tool); }); },
            [this](const QString& tool, int index) {
                report([&](MenuBar& bar) { bar.changeList(tool, index); });
            },
            [this](const QString& tool, const QString& text) {
                report([&](MenuBar& bar) { bar.changeText(tool, text); });
            }};
}

template <class F>
void BandBar::report(F call) {
    if (!bar_ || syncing_)
        return;
    const QPointer<BandBar> self(this);
    const auto onFailure = failed;
    try {
        call(*bar_);
    } catch (const Error& error) {
        if (self && onFailure)
            onFailure(error);
    }
    if (self)
        sync(); // a click that changed nothing must not leave its mark on the row
}

/// Does not wait for the answer: the caller is a notification of the surface.
bool BandBar::popup(const Band& band) {
    delete menu_;
    menu_ = new QMenu(this);
    menu_->setAttribute(Qt::WA_DeleteOnClose);
    fillBandMenu(*menu_, *bar_, band.tools, actions());
    if (menu_->isEmpty()) {
        delete menu_;
        return false;
    }
    const std::optional<QPoint> place = keyboardPlace ? keyboardPlace() : std::nullopt;
    menu_->popup(place.value_or(QCursor::pos()));
    if (place) {
        QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
        QCoreApplication::sendEvent(menu_, &down); // marks the first entry, and opens no submenu of it
    }
    return true;
}

/// Down opens the menu of a tool; Enter and Escape end typing.
bool BandBar::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<QKeyEvent*>(event)->key();
    auto* button = qobject_cast<QToolButton*>(watched);
    if (button && button->menu() && key == Qt::Key_Down) {
        button->showMenu();
        return true;
    }
    if (button || (key != Qt::Key_Return && key != Qt::Key_Enter && key != Qt::Key_Escape))
        return false;
    Q_EMIT left();
    return true;
}

void BandBar::resizeEvent(QResizeEvent*) {
    place();
}

void BandBar::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        for (const Item& item : row_)
            setToolIcon(*item.widget, *item.tool, palette()); // theirs comes after the event
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        place();
}

void BandBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().window());
    painter.fillRect(0, height() - 1, width(), 1, palette().color(QPalette::Mid));
}

} // namespace zkp
