#include "window/template_pane.h"

#include "window/texts.h"

#include <QAction>
#include <QLabel>
#include <QListView>
#include <QStyledItemDelegate>
#include <QToolButton>
#include <QVBoxLayout>

namespace zkp::app {

namespace {

constexpr int kMargin = 4;

/// Names as wide as the list and no wider: a long one is cut short instead of scrolled.
class NameDelegate : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        return {0, QStyledItemDelegate::sizeHint(option, index).height()};
    }
};

QToolButton* makeButton(QAction* action) {
    auto* button = new QToolButton;
    button->setDefaultAction(action);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    return button;
}

} // namespace

TemplatePane::TemplatePane(QAction* save, QAction* saveAs, QWidget* parent)
    : QWidget(parent)
    , model_(new TemplateListModel(this))
    , list_(new QListView) {
    list_->setModel(model_);
    list_->setObjectName(QStringLiteral("templates"));
    list_->setAccessibleName(texts::templateBoxTitle());
    list_->setToolTip(texts::templatesTip());
    list_->setFrameShape(QFrame::NoFrame);
    list_->setTextElideMode(Qt::ElideRight);
    list_->setSpacing(1);
    list_->setItemDelegate(new NameDelegate(list_));
    auto* label = new QLabel(texts::templates());
    label->setBuddy(list_);
    label->setContentsMargins(kMargin, kMargin, kMargin, kMargin);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(label);
    column->addWidget(list_, 1);
    column->addWidget(makeButton(save));
    column->addWidget(makeButton(saveAs));
    connect(list_, &QListView::activated, this,
            [this](const QModelIndex& index) { Q_EMIT opened(model_->entry(index.row()).name); });
}

void TemplatePane::setTemplates(std::vector<TemplateEntry> templates) {
    const QString chosen = list_->currentIndex().data().toString();
    model_->setTemplates(std::move(templates));
    choose(chosen);
}

void TemplatePane::setCurrent(const QString& name) {
    model_->setCurrent(name);
    if (!name.isEmpty())
        choose(name);
}

void TemplatePane::choose(const QString& name) {
    if (const int row = model_->find(name); row >= 0)
        list_->setCurrentIndex(model_->index(row));
}

void TemplatePane::focusList() {
    list_->setFocus(Qt::OtherFocusReason);
}

} // namespace zkp::app
