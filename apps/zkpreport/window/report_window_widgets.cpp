#include "window/filter_line.h"
#include "window/group_choice.h"
#include "window/message_strip.h"
#include "window/report_tools.h"
#include "window/report_window.h"
#include "window/statement_panel.h"
#include "window/template_controller.h"
#include "window/template_pane.h"
#include "window/texts.h"

#include <QAction>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QSplitter>
#include <QToolButton>

namespace zkp::app {

namespace {

constexpr int kReportWidth = 1140;
constexpr int kReportHeight = 650;
constexpr int kListWidth = 138;
constexpr int kPanelHeight = 150;
constexpr int kMargin = 4;
constexpr int kFilterLetters = 12; // at least

QLabel* makeLabel(const QString& text, QWidget* buddy) {
    auto* label = new QLabel(text);
    label->setBuddy(buddy);
    return label;
}

QToolButton* makeButton(QAction* action) {
    auto* button = new QToolButton;
    button->setDefaultAction(action);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

} // namespace

void ReportWindow::buildWidgets() {
    reportList_->setModel(reports_);
    reportList_->setObjectName(QStringLiteral("reports"));
    reportList_->setAccessibleName(texts::reports());
    reportList_->setFrameShape(QFrame::NoFrame);
    reportList_->setTextElideMode(Qt::ElideRight);
    reportList_->setSpacing(1);
    auto* place = new QWidget;
    place->setLayout(place_);
    place_->setContentsMargins({});

    auto* report = new QWidget;
    auto* column = new QVBoxLayout(report);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(makeChoices());
    column->addWidget(makeShapeChoices());
    column->addWidget(message_);
    column->addWidget(place, 1);
    column->addWidget(tools_->find.widget());

    auto* rows = new QSplitter(Qt::Vertical);
    rows->addWidget(report);
    rows->addWidget(panel_);
    rows->setStretchFactor(0, 1);
    rows->setSizes({kReportHeight, kPanelHeight});
    auto* lists = new QSplitter(Qt::Vertical);
    lists->addWidget(reportList_);
    lists->addWidget(&templates_->pane());
    auto* columns = new QSplitter(Qt::Horizontal);
    columns->addWidget(lists);
    columns->addWidget(rows);
    columns->setStretchFactor(1, 1);
    columns->setSizes({kListWidth, kReportWidth});
    for (QSplitter* splitter : {rows, columns, lists})
        splitter->setHandleWidth(3);
    setCentralWidget(columns);
    panel_->hide();
}

QWidget* ReportWindow::makeChoices() {
    userList_->setObjectName(QStringLiteral("users"));
    rights_->setObjectName(QStringLiteral("rights"));
    rights_->setMinimumWidth(1); // cut short where there is no room
    filter_->setObjectName(QStringLiteral("filter"));
    filter_->setMinimumWidth(filter_->sizeHint().height() +
                             kFilterLetters * filter_->fontMetrics().averageCharWidth());
    panelToggle_->setCheckable(true);
    panelToggle_->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_S);
    panelToggle_->setToolTip(texts::statementToggleTip());
    addAction(panelToggle_); // the keys work wherever the focus is

    auto* choices = new QWidget;
    auto* row = new QHBoxLayout(choices);
    row->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    row->setSpacing(kMargin);
    row->addWidget(makeLabel(texts::userLabel(), userList_));
    row->addWidget(userList_);
    row->addWidget(rights_);
    row->addSpacing(2 * kMargin);
    row->addWidget(makeLabel(texts::filterLabel(), filter_));
    row->addWidget(filter_, 1);
    row->addWidget(makeButton(panelToggle_));
    return choices;
}

QWidget* ReportWindow::makeShapeChoices() {
    sortAction_->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_T);
    sortAction_->setToolTip(texts::sortTip());
    addAction(sortAction_);
    auto* choices = new QWidget;
    auto* row = new QHBoxLayout(choices);
    row->setContentsMargins(kMargin, 0, kMargin, kMargin);
    row->setSpacing(kMargin);
    row->addWidget(groups_);
    row->addStretch();
    row->addWidget(makeButton(sortAction_));
    return choices;
}

} // namespace zkp::app
