#include "widgets/tools/report_tool.h"

#include "base/error.h"
#include "host/error_box.h"
#include "widgets/grid/grid_view.h"
#include "widgets/zkp_grid_widget.h"

#include <QAction>

namespace zkp {

ReportTool::ReportTool(QObject* parent)
    : QObject(parent) {}

ReportTool::~ReportTool() {
    if (widget_ && !widget_->parentWidget())
        delete widget_;
}

void ReportTool::setReport(ZkpGridWidget* report) {
    if (report_ && report == report_)
        return;
    if (report_) {
        disconnect(&report_->grid().events(), nullptr, this, nullptr);
        disconnect(&report_->view(), nullptr, this, nullptr);
        disconnect(report_, nullptr, this, nullptr);
    }
    loads_.stop();
    report_ = report;
    if (report)
        loads_ = report->grid().listenToLoads(
            {.begins = {}, .ended = [this](const LoadOutcome&) { loadEnded(); }});
    reportChanged();
}

QWidget* ReportTool::widget() const {
    return widget_;
}

void ReportTool::setWidget(QWidget* widget) {
    widget_ = widget;
}

bool ReportTool::isLoading() const {
    return report_ && report_->grid().isLoading();
}

QAction* ReportTool::addCommand(const QString& caption, const char* name, const QList<QKeySequence>& keys,
                                std::function<void()> command) {
    auto* action = new QAction(caption, this);
    action->setObjectName(QLatin1String(name));
    action->setShortcuts(keys);
    connect(action, &QAction::triggered, this, [this, command = std::move(command)] { run(command); });
    actions_ += action;
    return action;
}

/// A command may end the tool or the report: a failure is told where there is still somebody to tell.
void ReportTool::run(const std::function<void()>& command) {
    const QPointer<ZkpGridWidget> report = report_;
    const auto kept = command;
    try {
        kept();
    } catch (const Error& error) {
        if (report)
            ShowError(report->grid().host(), error);
    }
}

} // namespace zkp
