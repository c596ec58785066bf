#include "widgets/full_text_tip.h"

#include <QHelpEvent>
#include <QToolTip>

namespace zkp {

namespace {

constexpr qsizetype kMostLetters = 1000; // more than anybody reads in a tip

} // namespace

/// A plain tip stands on one line, however long.
void showFullText(const QHelpEvent& event, QWidget& widget, const QRect& place, QString text) {
    if (text.size() > kMostLetters)
        text = text.first(kMostLetters - 1) + QChar(0x2026);
    const QString wrapped =
        QStringLiteral("<p style=\"white-space:pre-wrap\">%1</p>").arg(text.toHtmlEscaped());
    QToolTip::showText(event.globalPos(), wrapped, &widget, place);
}

} // namespace zkp
