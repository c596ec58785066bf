#include "widgets/tools/progress_tool.h"

#include "ado/connection.h"
#include "base/texts/tools.h"
#include "widgets/zkp_grid_widget.h"

#include <QLabel>
#include <QLocale>
#include <QTimer>

namespace zkp {

namespace {

constexpr std::int64_t kMsBetweenPaints = 100;

} // namespace

ProgressTool::ProgressTool(QObject* parent)
    : ReportTool(parent)
    , label_(new QLabel)
    , lastShown_(-kMsBetweenPaints) {
    label_->setObjectName(QStringLiteral("loadProgress"));
    setWidget(label_);
    timer_.start();
}

void ProgressTool::reportChanged() {
    if (report())
        watch(*report());
}

void ProgressTool::watch(ZkpGridWidget& report) {
    ZkpGrid& grid = report.grid();
    const auto loads = std::make_shared<Listening>(
        grid.listenToLoads({.begins = [this] { begin(); }, .ended = [this](const LoadOutcome&) { end(); }}));
    connect(&report, &QObject::destroyed, this, [loads] {}); // kept as long as both stand
    connect(&grid.events(), &Events::StartFilling, this,
            [this, &grid] { layOut(static_cast<std::int64_t>(grid.RecCount())); });
}

void ProgressTool::watch(ado::Connection& connection) {
    const QPointer<ProgressTool> self(this);
    connection.setFetchProgress([self](std::int64_t rows) {
        if (self)
            self->note(rows);
    });
}

/// The statement goes to the database; until the first rows come there is nothing more to tell.
void ProgressTool::begin() {
    figures_ = {};
    show(texts::loadBegins());
}

void ProgressTool::note(std::int64_t rows) {
    const std::int64_t now = timer_.elapsed();
    figures_.note(rows, now);
    if (now - lastShown_ < kMsBetweenPaints)
        return;
    lastShown_ = now;
    show(figures_.text());
}

/// The records become rows of the report; told of a fetch that was long enough to report.
void ProgressTool::layOut(std::int64_t rows) {
    const QLocale greek(QLocale::Greek, QLocale::Greece);
    if (figures_.rows() > 0)
        show(texts::layingOut(greek.toString(static_cast<qlonglong>(rows))));
}

void ProgressTool::end() {
    figures_ = {};
    if (label_)
        label_->clear();
}

/// Once events come in again the load has ended, in whatever way.
void ProgressTool::show(const QString& text) {
    if (!label_)
        return;
    if (label_->text().isEmpty())
        QTimer::singleShot(0, label_, &QLabel::clear);
    label_->setText(text);
    label_->repaint();
}

} // namespace zkp
