#include "window/report_window.h"

#include "ado/connection.h"
#include "base/error.h"
#include "support/utility.h"
#include "window/plain_report.h"

#include <QFileInfo>

namespace zkp::app {

namespace {

constexpr QSize kUsualSize{1280, 800};

} // namespace

ReportWindow::ReportWindow(std::shared_ptr<Host> host)
    : report_(host ? new ZkpGridWidget(std::move(host)) : new ZkpGridWidget) {
    setCentralWidget(report_);
    setWindowTitle(QStringLiteral("zkpreport"));
    resize(kUsualSize);
}

bool ReportWindow::showDatabase(const QString& file) {
    try {
        const auto connection = std::make_shared<ado::Connection>();
        connection->setMode(ado::adModeRead);
        connection->Open(QStringLiteral("sqlite:%1").arg(file));
        setWindowTitle(QStringLiteral("Συμβόλαια – %1").arg(QFileInfo(file).fileName()));
        showPlainReport(report_->grid(), connection);
        return true;
    } catch (const Error& error) {
        ShowError(report_->grid().host(), error);
        return false;
    }
}

} // namespace zkp::app
