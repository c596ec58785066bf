#include "widgets/band_bar.h"

#include "widgets/band_popup.h"

#include <QComboBox>
#include <QCursor>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QSignalBlocker>
#include <QToolButton>

#include <utility>

namespace zkp {

namespace {

constexpr int kHeight = 26; // pixels: one row of small tools
constexpr int kMargin = 2;
constexpr int kListWidth = 160;

QString tip(const Tool& tool) {
    QString text = tool.Caption;
    return text.remove(u'&');
}

} // namespace

BandBar::BandBar(MenuBar& bar, const QString& band, QWidget* parent)
    : QWidget(parent)
    , bar_(&bar)
    , band_(band)
    , row_(new QHBoxLayout(this)) {
    row_->setContentsMargins(kMargin, 1, 2 * kMargin, 2);
    row_->setSpacing(kMargin);
    bar.changed = [this] {
        sync();
        Q_EMIT barChanged();
    };
    bar.popupWanted = [this](const Band& wanted) { popup(wanted); };
    sync();
}

BandBar::~BandBar() {
    if (bar_) {
        bar_->changed = {};
        bar_->popupWanted = {};
    }
}

void BandBar::detach() {
    bar_ = nullptr;
    setEnabled(false);
    delete menu_;
}

QSize BandBar::sizeHint() const {
    return {320, kHeight};
}

const Band* BandBar::band() const {
    if (bar_)
        for (const auto& band : bar_->bands())
            if (band->Name.compare(band_, Qt::CaseInsensitive) == 0)
                return band.get();
    return nullptr;
}

void BandBar::sync() {
    const Band* shown = band();
    if (!shown || syncing_)
        return;
    QStringList names;
    for (const auto& tool : shown->tools)
        names += tool->Name + QChar(u'/') + QString::number(static_cast<int>(tool->kind));
    syncing_ = true;
    if (names != built_) {
        built_ = names;
        rebuild(*shown);
    }
    for (const auto& [name, widget] : widgets_)
        syncWidget(*widget, shown->Tools(name));
    syncing_ = false;
}

/// Labels stand at the end of the row whatever their place in the band: there the count is looked for.
void BandBar::rebuild(const Band& band) {
    for (const auto& [name, widget] : widgets_) {
        widget->hide();
        widget->deleteLater(); // it may be the one that the user is clicking
    }
    widgets_.clear();
    while (QLayoutItem* item = row_->takeAt(0))
        delete item;
    const auto add = [&](bool labels) {
        for (const auto& tool : band.tools)
            if ((tool->kind == ToolKind::Label) == labels) {
                QWidget* widget = makeWidget(*tool);
                widget->setObjectName(tool->Name);
                widgets_.emplace_back(tool->Name, widget);
                row_->addWidget(widget);
            }
    };
    add(false);
    row_->addStretch(1);
    add(true);
}

QWidget* BandBar::makeWidget(const Tool& tool) {
    const QString name = tool.Name;
    switch (tool.kind) {
    case ToolKind::List: {
        auto* list = new QComboBox(this);
        list->setMinimumWidth(kListWidth);
        connect(list, &QComboBox::activated, this,
                [this, name](int index) { report([&](MenuBar& bar) { bar.changeList(name, index); }); });
        return list;
    }
    case ToolKind::Text: {
        auto* box = new QLineEdit(this);
        box->setMinimumWidth(kListWidth);
        connect(box, &QLineEdit::textEdited, this, [this, name](const QString& text) {
            report([&](MenuBar& bar) { bar.changeText(name, text); });
        });
        return box;
    }
    case ToolKind::Label:
        return new QLabel(this);
    case ToolKind::Separator: {
        auto* line = new QFrame(this);
        line->setFrameShape(QFrame::VLine);
        line->setFrameShadow(QFrame::Sunken);
        return line;
    }
    default:
        break;
    }
    auto* button = new QToolButton(this);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setCheckable(tool.kind == ToolKind::Check);
    const bool opens = tool.kind == ToolKind::SubMenu;
    connect(button, &QToolButton::clicked, this, [this, name, opens, sub = tool.subBand] {
        report([&](MenuBar& bar) { opens ? bar.popup(sub) : bar.click(name); });
    });
    return button;
}

void BandBar::syncWidget(QWidget& widget, const Tool& tool) {
    const QSignalBlocker quiet(widget);
    widget.setVisible(tool.Visible && bar_->isHeard(tool));
    widget.setEnabled(tool.Enabled);
    widget.setToolTip(tip(tool));
    widget.setAccessibleName(tip(tool));
    if (auto* button = qobject_cast<QToolButton*>(&widget)) {
        button->setText(tool.Caption);
        button->setChecked(tool.Checked);
    } else if (auto* label = qobject_cast<QLabel*>(&widget)) {
        label->setText(tool.Text.isEmpty() ? tool.Caption : tool.Text);
    } else if (auto* box = qobject_cast<QLineEdit*>(&widget)) {
        if (box->text() != tool.Text)
            box->setText(tool.Text);
    } else if (auto* list = qobject_cast<QComboBox*>(&widget)) {
        QStringList entries;
        for (int i = 0; i < list->count(); ++i)
            entries += list->itemText(i);
        if (entries != tool.list) {
            list->clear();
            list->addItems(tool.list);
        }
        list->setCurrentIndex(tool.ListIndex);
    }
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
void BandBar::popup(const Band& band) {
    delete menu_;
    BandPopupActions actions;
    actions.click = [this](const QString& tool) { report([&](MenuBar& bar) { bar.click(tool); }); };
    actions.changeList = [this](const QString& tool, int index) {
        report([&](MenuBar& bar) { bar.changeList(tool, index); });
    };
    actions.changeText = [this](const QString& tool, const QString& text) {
        report([&](MenuBar& bar) { bar.changeText(tool, text); });
    };
    menu_ = makeBandPopup(*bar_, band, actions, this);
    menu_->setAttribute(Qt::WA_DeleteOnClose);
    menu_->popup(QCursor::pos());
}

void BandBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), palette().window());
    painter.fillRect(0, height() - 1, width(), 1, palette().color(QPalette::Mid));
}

} // namespace zkp
