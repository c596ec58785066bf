#include "widgets/tools/find_line.h"

#include "base/texts/tools.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QToolButton>

namespace zkp {

namespace {

constexpr int kMargin = 4;
constexpr int kEditWidth = 320;

QToolButton* makeButton(const QString& tip, QWidget* parent) {
    auto* button = new QToolButton(parent);
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

/// Without the mark of its shortcut letter.
QString plain(QString caption) {
    return caption.remove(u'&');
}

} // namespace

FindLine::FindLine(QWidget* parent)
    : QWidget(parent)
    , edit_(new QLineEdit)
    , note_(new QLabel) {
    edit_->setObjectName(QStringLiteral("findText"));
    edit_->setAccessibleName(texts::findLabel());
    edit_->setPlaceholderText(texts::findHint());
    edit_->setClearButtonEnabled(true);
    edit_->setMinimumWidth(kEditWidth);
    note_->setObjectName(QStringLiteral("findNote"));
    auto* previous = makeButton(plain(texts::findPreviousAction()) + QStringLiteral(" (Shift+F3)"), this);
    previous->setArrowType(Qt::UpArrow);
    auto* next = makeButton(plain(texts::findNextAction()) + QStringLiteral(" (F3)"), this);
    next->setArrowType(Qt::DownArrow);
    auto* close = makeButton(texts::findCloseTip(), this);
    close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    row->setSpacing(kMargin);
    row->addWidget(new QLabel(texts::findLabel()));
    row->addWidget(edit_);
    row->addWidget(previous);
    row->addWidget(next);
    row->addSpacing(kMargin);
    row->addWidget(note_, 1);
    row->addWidget(close);
    setFocusProxy(edit_);

    connect(edit_, &QLineEdit::textChanged, this, &FindLine::typed);
    connect(previous, &QToolButton::clicked, this, &FindLine::previousWanted);
    connect(next, &QToolButton::clicked, this, &FindLine::nextWanted);
    connect(close, &QToolButton::clicked, this, &FindLine::closeWanted);
}

QString FindLine::text() const {
    return edit_->text();
}

void FindLine::takeFocus() {
    edit_->setFocus(Qt::ShortcutFocusReason);
    edit_->selectAll();
}

void FindLine::setNote(const QString& note) {
    note_->setText(note);
}

/// The keys that the text field leaves.
void FindLine::keyPressEvent(QKeyEvent* event) {
    const bool shift = event->modifiers().testFlag(Qt::ShiftModifier);
    switch (event->key()) {
    case Qt::Key_Escape:
        Q_EMIT closeWanted();
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        shift ? Q_EMIT previousWanted() : Q_EMIT nextWanted();
        return;
    case Qt::Key_Up:
        Q_EMIT previousWanted();
        return;
    case Qt::Key_Down:
        Q_EMIT nextWanted();
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}

} // namespace zkp
