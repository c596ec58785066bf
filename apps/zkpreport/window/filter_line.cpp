#include "window/filter_line.h"

#include "window/texts.h"

#include <QKeyEvent>

namespace zkp::app {

FilterLine::FilterLine(QWidget* parent)
    : QLineEdit(parent) {
    setPlaceholderText(texts::filterHint());
    setClearButtonEnabled(true);
    connect(this, &QLineEdit::returnPressed, this, [this] { Q_EMIT applied(text()); });
}

void FilterLine::setInForce(const QString& filter) {
    inForce_ = filter;
    setText(filter);
}

void FilterLine::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && text() != inForce_) {
        setText(inForce_);
        return;
    }
    QLineEdit::keyPressEvent(event);
}

} // namespace zkp::app
