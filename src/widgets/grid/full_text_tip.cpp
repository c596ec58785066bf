#include "widgets/grid/full_text_tip.h"

#include <QHelpEvent>
#include <QToolTip>

namespace zkp {

namespace {

constexpr qsizetype kMostLetters = 1000; // more than anybody reads in a tip
constexpr qsizetype kOneLine = 80;

} // namespace

/// A plain tip stands on one line, however long, and one with marks is narrow, however short.
void showFullText(const QHelpEvent& event, QWidget& widget, const QRect& place, QString text) {
    if (text.size() > kMostLetters)
        text = text.first(kMostLetters - 1) + QChar(0x2026);
    const QString breaks = text.size() > kOneLine ? QStringLiteral("pre-wrap") : QStringLiteral("pre");
    const QString shown =
        QStringLiteral("<p style=\"white-space:%1\">%2</p>").arg(breaks, text.toHtmlEscaped());
    QToolTip::showText(event.globalPos(), shown, &widget, place);
}

} // namespace zkp
