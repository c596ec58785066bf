#include "window/message_strip.h"

#include <QApplication>
#include <QEvent>

namespace zkp::app {

namespace {

constexpr int kMargin = 4;

} // namespace

MessageStrip::MessageStrip(QWidget* parent)
    : QLabel(parent) {
    setObjectName(QStringLiteral("message"));
    setContentsMargins(kMargin, 0, kMargin, kMargin);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    QFont bold = font();
    bold.setBold(true);
    setFont(bold);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setFixedHeight(fontMetrics().height() + kMargin);
    qApp->installEventFilter(this);
}

MessageStrip::~MessageStrip() {
    qApp->removeEventFilter(this);
}

void MessageStrip::tell(const QString& text) {
    setText(text);
    setToolTip(text);
}

/// Before the key or click does its work, whose own words come afterwards.
bool MessageStrip::eventFilter(QObject* watched, QEvent* event) {
    if (!text().isEmpty() && isUserAction(watched, *event) && mayGo())
        tell({});
    return QLabel::eventFilter(watched, event);
}

/// A key goes to the widget with the focus first, and from there on to those around it.
bool MessageStrip::isUserAction(QObject* watched, const QEvent& event) const {
    const auto* widget = qobject_cast<const QWidget*>(watched);
    if (!widget || widget == this || widget->window() != window())
        return false;
    return event.type() == QEvent::MouseButtonPress ||
           (event.type() == QEvent::KeyPress && widget == QApplication::focusWidget());
}

} // namespace zkp::app
