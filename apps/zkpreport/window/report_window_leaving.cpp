#include "window/filter_line.h"
#include "window/group_choice.h"
#include "window/report_tools.h"
#include "window/report_window.h"
#include "window/texts.h"

#include <QAction>
#include <QCloseEvent>
#include <QComboBox>
#include <QListView>
#include <QSignalBlocker>
#include <QTimer>

// What the user has made of a report is not lost without a word: another report, user or template, and the
// end of the program ask first.

namespace zkp::app {

namespace {

constexpr int kAskYesNoCancel = kMsgBoxQuestion | 3;

} // namespace

/// Where the database has no room for templates there is nothing to ask.
bool ReportWindow::hasChanges() const {
    return isLoaded_ && saveAction_->isEnabled() && (tools_->hasChanges() || carriesChanges_);
}

bool ReportWindow::mayLeaveShape() {
    if (!hasChanges())
        return true;
    const int answer = host_->msgBox(texts::keepChanges(), kAskYesNoCancel, texts::templateBoxTitle());
    return answer == kAnswerNo || (answer == kAnswerYes && saveTemplate());
}

/// The list asks from within its own handling of a click, and marks a row when that is over; until there is
/// an answer it shows the report that is open.
void ReportWindow::reportChosen(const QModelIndex& now, const QModelIndex& before) {
    if (!hasChanges()) {
        startReport();
        return;
    }
    QTimer::singleShot(0, this, [this, now = now.row(), before = before.row()] {
        showChosenReport(before);
        if (!mayLeaveShape())
            return;
        showChosenReport(now);
        startReport();
    });
}

void ReportWindow::showChosenReport(int row) {
    const QSignalBlocker quiet(reportList_->selectionModel());
    reportList_->setCurrentIndex(reports_->index(row));
    reportList_->viewport()->update();
}

void ReportWindow::startReport() {
    forgetShape();
    groups_->choose({}, false);
    openReport({});
}

void ReportWindow::userChosen(int index) {
    const auto show = [this](int shown) {
        const QSignalBlocker quiet(userList_);
        userList_->setCurrentIndex(shown);
    };
    show(user_);
    if (!mayLeaveShape())
        return;
    show(index);
    user_ = index;
    carriesChanges_ = false; // asked and answered
    tools_->setSaved();
    replaceControl();
    openReport(filter_->inForce());
}

void ReportWindow::closeEvent(QCloseEvent* event) {
    if (mayLeaveShape())
        event->accept();
    else
        event->ignore();
}

} // namespace zkp::app
