#include "window/statement_panel.h"

#include "window/texts.h"

#include <QFontDatabase>
#include <QGridLayout>
#include <QLabel>
#include <QLocale>
#include <QPlainTextEdit>

namespace zkp::app {

namespace {

constexpr int kMargin = 4;

QPlainTextEdit* makeText(const QString& name, QWidget* parent) {
    auto* text = new QPlainTextEdit(parent);
    text->setObjectName(name);
    text->setReadOnly(true);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    text->setTabChangesFocus(true);
    text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    return text;
}

QLabel* makeHeading(const QString& text, QWidget* buddy, QWidget* parent) {
    auto* heading = new QLabel(text, parent);
    heading->setBuddy(buddy);
    return heading;
}

} // namespace

StatementPanel::StatementPanel(QWidget* parent)
    : QWidget(parent)
    , figures_(new QLabel(this))
    , built_(makeText(QStringLiteral("built"), this))
    , sent_(makeText(QStringLiteral("sent"), this)) {
    figures_->setMinimumWidth(1); // both halves shrink alike
    figures_->setObjectName(QStringLiteral("figures"));
    figures_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    built_->setAccessibleName(texts::statementBuilt());
    sent_->setAccessibleName(texts::statementSent());

    auto* sentRow = new QHBoxLayout;
    sentRow->addWidget(makeHeading(texts::statementSent(), sent_, this));
    sentRow->addStretch(1);
    sentRow->addWidget(figures_);
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->setSpacing(kMargin);
    layout->addWidget(makeHeading(texts::statementBuilt(), built_, this), 0, 0);
    layout->addLayout(sentRow, 0, 1);
    layout->addWidget(built_, 1, 0);
    layout->addWidget(sent_, 1, 1);
    layout->setColumnStretch(0, 1);
    layout->setColumnStretch(1, 1);
}

void StatementPanel::setOutcome(const LoadOutcome& outcome) {
    const QLocale greek(QLocale::Greek, QLocale::Greece);
    built_->setPlainText(outcome.built);
    sent_->setPlainText(outcome.sent);
    figures_->setText(texts::loadFigures(greek.toString(static_cast<qlonglong>(outcome.records)),
                                         greek.toString(outcome.firstRecordMs, 'f', 1),
                                         greek.toString(outcome.lastRecordMs, 'f', 1)));
}

void StatementPanel::clear() {
    built_->clear();
    sent_->clear();
    figures_->clear();
}

QString StatementPanel::built() const {
    return built_->toPlainText();
}
QString StatementPanel::sent() const {
    return sent_->toPlainText();
}
QString StatementPanel::figures() const {
    return figures_->text();
}

} // namespace zkp::app
